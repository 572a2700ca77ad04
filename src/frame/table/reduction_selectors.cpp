// The reduction selectors: from flags and precisions to one entry of the table.
#include "zthalf/half_ptr.h"
#include "zthalf/half_vector.h"

namespace half_vector {

namespace {

struct reduction {
  void* src;
  void* dst;
  unsigned long ndims;
  unsigned long* dims;
  bool firstDimReduced;
};

template <class In, class Out>
void run(half_ptr::unary_entry<In, Out>* whole, half_ptr::reduction_entry<In, Out>* alongDimensions, reduction r) {
  auto* const src = static_cast<In*>(r.src);
  auto* const dst = static_cast<Out*>(r.dst);
  if (r.ndims == 1 && r.firstDimReduced) return whole(src, dst, r.dims[0]);
  alongDimensions(src, dst, r.ndims, r.dims, r.firstDimReduced);
}

}  // namespace

#define ZTHALF_RUN(op, precision, options) \
  run(half_ptr::op##SimpleReduce##precision##options##Ptr, half_ptr::op##Reduce##precision##options##Ptr, r)

#define ZTHALF_RUN_WITH_OPTIONS(op, precision)                                                                 \
  if (omitNaN) return isComplex ? ZTHALF_RUN(op, precision, OmitNaNCplx) : ZTHALF_RUN(op, precision, OmitNaN); \
  return isComplex ? ZTHALF_RUN(op, precision, Cplx) : ZTHALF_RUN(op, precision, )

// A double result is always summed in double. For a half result a double accumulator is not on offer, and asking for
// one gives half accumulators.
#define ZTHALF_DEFINE_SELECTOR(op)                                                                              \
  void op(void* src, void* dst, unsigned long ndims, unsigned long* dims, bool firstDimReduced, bool isComplex, \
          bool omitNaN, FloatTypeEnum accumType, FloatTypeEnum outType) {                                       \
    const reduction r{src, dst, ndims, dims, firstDimReduced};                                                  \
    if (outType == FloatTypeDouble) {                                                                           \
      ZTHALF_RUN_WITH_OPTIONS(op, Double);                                                                      \
    } else if (accumType == FloatTypeSingle) {                                                                  \
      ZTHALF_RUN_WITH_OPTIONS(op, Single);                                                                      \
    } else {                                                                                                    \
      ZTHALF_RUN_WITH_OPTIONS(op, Half);                                                                        \
    }                                                                                                           \
  }

ZTHALF_DEFINE_SELECTOR(sum)
ZTHALF_DEFINE_SELECTOR(prod)
ZTHALF_DEFINE_SELECTOR(mean)

#undef ZTHALF_DEFINE_SELECTOR
#undef ZTHALF_RUN_WITH_OPTIONS
#undef ZTHALF_RUN

}  // namespace half_vector
