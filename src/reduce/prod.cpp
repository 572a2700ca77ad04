#include "core/instantiate.h"
#include "reduce/reduction.h"
#include "reduce/steps/complex_half_product.h"
#include "reduce/steps/complex_product.h"
#include "reduce/steps/steps.h"
#include "zthalf/half_reductions.h"

namespace half {

namespace {
template <class Accumulator>
struct productStepFor {
  using type = half_utils::partwiseStep<half_utils::multiplication, Accumulator>;
};
template <class Part>
struct productStepFor<std::complex<Part>> {
  using type = half_utils::complexProductStep<std::complex<Part>>;
};
template <>
struct productStepFor<std::complex<fp16binary_t>> {
  using type = half_utils::complexHalfProductStep;
};
template <class Accumulator>
using productStep = typename productStepFor<Accumulator>::type;
template <class Accumulator>
using productStepOmitNaN = half_utils::replacingNaN<productStep<Accumulator>>;
}  // namespace

ZTHALF_FOLDS(prod, productStep, productStepOmitNaN)

}  // namespace half
