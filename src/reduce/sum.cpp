#include "core/instantiate.h"
#include "reduce/reduction.h"
#include "reduce/steps/steps.h"
#include "zthalf/half_reductions.h"

namespace half {

namespace {
template <class Accumulator>
using sumStep = half_utils::partwiseStep<half_utils::addition, Accumulator>;
template <class Accumulator>
using sumStepOmitNaN = half_utils::replacingNaN<sumStep<Accumulator>>;
}  // namespace

ZTHALF_FOLDS(sum, sumStep, sumStepOmitNaN)

}  // namespace half
