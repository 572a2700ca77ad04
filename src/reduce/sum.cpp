#include "core/instantiate.h"
#include "reduce/folds/steps.h"
#include "reduce/reduction.h"
#include "zthalf/half_reductions.h"

namespace half {

namespace {
template <class Accumulator>
using sumStep = half_utils::partwiseStep<half_utils::addition, Accumulator>;
template <class Accumulator>
using sumStepOmitNaN = half_utils::replacingNaN<sumStep<Accumulator>>;
}  // namespace

template <class In, class Out, class Accumulator>
void sumSimpleReduce(In* src, Out* dst, unsigned long n) {
  half_utils::foldWhole<sumStep<Accumulator>>(src, dst, n);
}

template <class In, class Out, class Accumulator>
void sumSimpleReduceOmitNaN(In* src, Out* dst, unsigned long n) {
  half_utils::foldWhole<sumStepOmitNaN<Accumulator>>(src, dst, n);
}

template <class In, class Out, class Accumulator>
void sumReduceFunc(In* src, Out* dst, unsigned long ndims, unsigned long* dims, bool firstDimReduced) {
  half_utils::foldAlong<sumStep<Accumulator>>(src, dst, ndims, dims, firstDimReduced);
}

template <class In, class Out, class Accumulator>
void sumReduceFuncOmitNaN(In* src, Out* dst, unsigned long ndims, unsigned long* dims, bool firstDimReduced) {
  half_utils::foldAlong<sumStepOmitNaN<Accumulator>>(src, dst, ndims, dims, firstDimReduced);
}

ZTHALF_SIMPLE_REDUCTIONS(ZTHALF_SIMPLE_REDUCTION_ROW, sum)
ZTHALF_SIMPLE_REDUCTIONS_OMITNAN(ZTHALF_SIMPLE_REDUCTION_ROW, sum)
ZTHALF_REDUCTIONS_ALONG_DIMENSIONS(ZTHALF_REDUCTION_ROW, sum)

}  // namespace half
