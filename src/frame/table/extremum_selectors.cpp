// min and max of arrays: the whole array in its exported forms, and the functions that choose an entry of the table by
// the kind of element and by what becomes of NaNs.
#include "frame/table/stored.h"
#include "zthalf/half_extrema.h"
#include "zthalf/half_ptr.h"

namespace half_vector {

namespace {

// A single dimension is the whole array.
template <class Element>
void chosen(half_ptr::unary_entry<Element, Element>* whole, half_ptr::reduction_entry<Element, Element>* along,
            void* src, void* dst, unsigned long ndims, unsigned long* dims, bool firstReduced) {
  auto* const from = static_cast<Element*>(src);
  auto* const to = static_cast<Element*>(dst);
  if (ndims == 1) return whole(from, to, dims[0]);
  along(from, to, ndims, dims, firstReduced);
}

template <class Element>
void chosen(half_ptr::indexed_whole_entry<Element, Element>* whole,
            half_ptr::indexed_reduction_entry<Element, Element>* along, void* src, void* dst, double* index,
            unsigned long ndims, unsigned long* dims, bool firstReduced, bool linear) {
  auto* const from = static_cast<Element*>(src);
  auto* const to = static_cast<Element*>(dst);
  if (ndims == 1) return whole(from, to, index, dims[0]);
  along(from, to, index, ndims, dims, firstReduced, linear);
}

}  // namespace

// The exported forms of the whole array: NaN wins.
#define ZTHALF_DEFINE_WHOLE(op, infix, Element)                                                \
  void op##SimpleReduce(Element* src, Element* dst, unsigned long n) {                         \
    half_ptr::op##infix##SimpleReducePtr(stored(src), stored(dst), n);                         \
  }                                                                                            \
  void op##SimpleReduceWithIndex(Element* src, Element* dst, double* index, unsigned long n) { \
    half_ptr::op##infix##SimpleReduceWithIndexPtr(stored(src), stored(dst), index, n);         \
  }
ZTHALF_DEFINE_WHOLE(min, , half_t)
ZTHALF_DEFINE_WHOLE(min, Cplx, std::complex<half_t>)
ZTHALF_DEFINE_WHOLE(max, , half_t)
ZTHALF_DEFINE_WHOLE(max, Cplx, std::complex<half_t>)
#undef ZTHALF_DEFINE_WHOLE

// The entries of one kind of element and one rule for NaNs.
#define ZTHALF_CHOSEN(op, options, ...) \
  chosen(half_ptr::op##SimpleReduce##options##Ptr, half_ptr::op##Reduce##options##Ptr, __VA_ARGS__)

#define ZTHALF_DEFINE_SELECTORS(op)                                                                                  \
  void op##UnaryOp(void* src, void* dst, unsigned long ndims, unsigned long* dims, bool firstReduced, bool omitNaN,  \
                   bool isComplex) {                                                                                 \
    if (isComplex) {                                                                                                 \
      return omitNaN ? ZTHALF_CHOSEN(op##Cplx, OmitNaN, src, dst, ndims, dims, firstReduced)                         \
                     : ZTHALF_CHOSEN(op##Cplx, , src, dst, ndims, dims, firstReduced);                               \
    }                                                                                                                \
    return omitNaN ? ZTHALF_CHOSEN(op, OmitNaN, src, dst, ndims, dims, firstReduced)                                 \
                   : ZTHALF_CHOSEN(op, , src, dst, ndims, dims, firstReduced);                                       \
  }                                                                                                                  \
  void op##UnaryOpWithIndex(void* src, void* dst, double* index, unsigned long ndims, unsigned long* dims,           \
                            bool firstReduced, bool omitNaN, bool isComplex, bool linear) {                          \
    if (isComplex) {                                                                                                 \
      return omitNaN ? ZTHALF_CHOSEN(op##Cplx, WithIndexOmitNaN, src, dst, index, ndims, dims, firstReduced, linear) \
                     : ZTHALF_CHOSEN(op##Cplx, WithIndex, src, dst, index, ndims, dims, firstReduced, linear);       \
    }                                                                                                                \
    return omitNaN ? ZTHALF_CHOSEN(op, WithIndexOmitNaN, src, dst, index, ndims, dims, firstReduced, linear)         \
                   : ZTHALF_CHOSEN(op, WithIndex, src, dst, index, ndims, dims, firstReduced, linear);               \
  }
ZTHALF_DEFINE_SELECTORS(min)
ZTHALF_DEFINE_SELECTORS(max)
#undef ZTHALF_DEFINE_SELECTORS
#undef ZTHALF_CHOSEN

}  // namespace half_vector
