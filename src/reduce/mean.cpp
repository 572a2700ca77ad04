#include "core/instantiate.h"
#include "reduce/division.h"
#include "reduce/folds/counting_fold.h"
#include "reduce/reduction.h"
#include "reduce/steps/steps.h"
#include "zthalf/half_reductions.h"

namespace half {

namespace {
template <class Accumulator>
using sumStep = half_utils::partwiseStep<half_utils::addition, Accumulator>;
template <class Accumulator>
using sumFold = half_utils::laneFold<sumStep<Accumulator>>;
template <class Accumulator>
using sumRows = half_utils::laneRows<sumStep<Accumulator>>;
template <class Accumulator>
using countingFold = half_utils::countingFold<sumStep<Accumulator>>;
template <class Accumulator>
using countingRows = half_utils::countingRows<sumStep<Accumulator>>;

// The sum over the number of elements.
template <class Accumulator, class Out>
auto meanTo(Out* dst) {
  return [dst](unsigned long output, auto const& sum, unsigned long elements) {
    half_utils::storeQuotient<Accumulator>(dst[output], sum, elements);
  };
}

// The sum over the number of elements that went into it.
template <class Accumulator, class Out>
auto meanOfCountedTo(Out* dst) {
  return [dst](unsigned long output, auto const& counted, unsigned long) {
    half_utils::storeQuotient<Accumulator>(dst[output], counted.sum, counted.count);
  };
}
}  // namespace

template <class In, class Out, class Accumulator>
void meanSimpleReduce(In* src, Out* dst, unsigned long n) {
  half_utils::reduceWhole<sumFold<Accumulator>>(src, n, meanTo<Accumulator>(dst));
}

template <class In, class Out, class Accumulator>
void meanSimpleReduceOmitNaN(In* src, Out* dst, unsigned long n) {
  half_utils::reduceWhole<countingFold<Accumulator>>(src, n, meanOfCountedTo<Accumulator>(dst));
}

template <class In, class Out, class Accumulator>
void meanReduceFunc(In* src, Out* dst, unsigned long ndims, unsigned long* dims, bool firstDimReduced) {
  half_utils::reduceAlong<sumFold<Accumulator>, sumRows<Accumulator>>(src, ndims, dims, firstDimReduced,
                                                                      meanTo<Accumulator>(dst));
}

template <class In, class Out, class Accumulator>
void meanReduceFuncOmitNaN(In* src, Out* dst, unsigned long ndims, unsigned long* dims, bool firstDimReduced) {
  half_utils::reduceAlong<countingFold<Accumulator>, countingRows<Accumulator>>(src, ndims, dims, firstDimReduced,
                                                                                meanOfCountedTo<Accumulator>(dst));
}

ZTHALF_SIMPLE_REDUCTIONS(ZTHALF_SIMPLE_REDUCTION_ROW, mean)
ZTHALF_SIMPLE_REDUCTIONS_OMITNAN(ZTHALF_SIMPLE_REDUCTION_ROW, mean)
ZTHALF_REDUCTIONS_ALONG_DIMENSIONS(ZTHALF_REDUCTION_ROW, mean)

}  // namespace half
