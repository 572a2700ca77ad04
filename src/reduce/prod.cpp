#include "core/instantiate.h"
#include "reduce/folds/complex_half_product.h"
#include "reduce/folds/complex_product.h"
#include "reduce/folds/steps.h"
#include "reduce/reduction.h"
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

template <class In, class Out, class Accumulator>
void prodSimpleReduce(In* src, Out* dst, unsigned long n) {
  half_utils::foldWhole<productStep<Accumulator>>(src, dst, n);
}

template <class In, class Out, class Accumulator>
void prodSimpleReduceOmitNaN(In* src, Out* dst, unsigned long n) {
  half_utils::foldWhole<productStepOmitNaN<Accumulator>>(src, dst, n);
}

template <class In, class Out, class Accumulator>
void prodReduceFunc(In* src, Out* dst, unsigned long ndims, unsigned long* dims, bool firstDimReduced) {
  half_utils::foldAlong<productStep<Accumulator>>(src, dst, ndims, dims, firstDimReduced);
}

template <class In, class Out, class Accumulator>
void prodReduceFuncOmitNaN(In* src, Out* dst, unsigned long ndims, unsigned long* dims, bool firstDimReduced) {
  half_utils::foldAlong<productStepOmitNaN<Accumulator>>(src, dst, ndims, dims, firstDimReduced);
}

ZTHALF_SIMPLE_REDUCTIONS(ZTHALF_SIMPLE_REDUCTION_ROW, prod)
ZTHALF_SIMPLE_REDUCTIONS_OMITNAN(ZTHALF_SIMPLE_REDUCTION_ROW, prod)
ZTHALF_REDUCTIONS_ALONG_DIMENSIONS(ZTHALF_REDUCTION_ROW, prod)

}  // namespace half
