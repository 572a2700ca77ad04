// min and max of arrays: the whole array in its exported forms, and the functions that choose an entry of the table by
// the kind of element and by what becomes of NaNs.
#include "zthalf/half_extrema.h"
#include "zthalf/half_ptr.h"

namespace half_vector {

namespace {

namespace element = half::element;

element::Half* stored(half_t* p) { return reinterpret_cast<element::Half*>(p); }
element::CplxHalf* stored(std::complex<half_t>* p) { return reinterpret_cast<element::CplxHalf*>(p); }

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

void minSimpleReduce(half_t* src, half_t* dst, unsigned long n) {
  half_ptr::minSimpleReducePtr(stored(src), stored(dst), n);
}
void minSimpleReduceWithIndex(half_t* src, half_t* dst, double* index, unsigned long n) {
  half_ptr::minSimpleReduceWithIndexPtr(stored(src), stored(dst), index, n);
}

void minSimpleReduce(std::complex<half_t>* src, std::complex<half_t>* dst, unsigned long n) {
  half_ptr::minCplxSimpleReducePtr(stored(src), stored(dst), n);
}
void minSimpleReduceWithIndex(std::complex<half_t>* src, std::complex<half_t>* dst, double* index, unsigned long n) {
  half_ptr::minCplxSimpleReduceWithIndexPtr(stored(src), stored(dst), index, n);
}

void maxSimpleReduce(half_t* src, half_t* dst, unsigned long n) {
  half_ptr::maxSimpleReducePtr(stored(src), stored(dst), n);
}
void maxSimpleReduceWithIndex(half_t* src, half_t* dst, double* index, unsigned long n) {
  half_ptr::maxSimpleReduceWithIndexPtr(stored(src), stored(dst), index, n);
}

void maxSimpleReduce(std::complex<half_t>* src, std::complex<half_t>* dst, unsigned long n) {
  half_ptr::maxCplxSimpleReducePtr(stored(src), stored(dst), n);
}
void maxSimpleReduceWithIndex(std::complex<half_t>* src, std::complex<half_t>* dst, double* index, unsigned long n) {
  half_ptr::maxCplxSimpleReduceWithIndexPtr(stored(src), stored(dst), index, n);
}

void minUnaryOp(void* src, void* dst, unsigned long ndims, unsigned long* dims, bool firstReduced, bool omitNaN,
                bool isComplex) {
  using namespace half_ptr;
  if (isComplex) {
    return omitNaN ? chosen(minCplxSimpleReduceOmitNaNPtr, minCplxReduceOmitNaNPtr, src, dst, ndims, dims, firstReduced)
                   : chosen(minCplxSimpleReducePtr, minCplxReducePtr, src, dst, ndims, dims, firstReduced);
  }
  omitNaN ? chosen(minSimpleReduceOmitNaNPtr, minReduceOmitNaNPtr, src, dst, ndims, dims, firstReduced)
          : chosen(minSimpleReducePtr, minReducePtr, src, dst, ndims, dims, firstReduced);
}

void minUnaryOpWithIndex(void* src, void* dst, double* index, unsigned long ndims, unsigned long* dims,
                         bool firstReduced, bool omitNaN, bool isComplex, bool linear) {
  using namespace half_ptr;
  if (isComplex) {
    return omitNaN ? chosen(minCplxSimpleReduceWithIndexOmitNaNPtr, minCplxReduceWithIndexOmitNaNPtr, src, dst, index,
                            ndims, dims, firstReduced, linear)
                   : chosen(minCplxSimpleReduceWithIndexPtr, minCplxReduceWithIndexPtr, src, dst, index, ndims, dims,
                            firstReduced, linear);
  }
  omitNaN
      ? chosen(minSimpleReduceWithIndexOmitNaNPtr, minReduceWithIndexOmitNaNPtr, src, dst, index, ndims, dims,
               firstReduced, linear)
      : chosen(minSimpleReduceWithIndexPtr, minReduceWithIndexPtr, src, dst, index, ndims, dims, firstReduced, linear);
}

void maxUnaryOp(void* src, void* dst, unsigned long ndims, unsigned long* dims, bool firstReduced, bool omitNaN,
                bool isComplex) {
  using namespace half_ptr;
  if (isComplex) {
    return omitNaN ? chosen(maxCplxSimpleReduceOmitNaNPtr, maxCplxReduceOmitNaNPtr, src, dst, ndims, dims, firstReduced)
                   : chosen(maxCplxSimpleReducePtr, maxCplxReducePtr, src, dst, ndims, dims, firstReduced);
  }
  omitNaN ? chosen(maxSimpleReduceOmitNaNPtr, maxReduceOmitNaNPtr, src, dst, ndims, dims, firstReduced)
          : chosen(maxSimpleReducePtr, maxReducePtr, src, dst, ndims, dims, firstReduced);
}

void maxUnaryOpWithIndex(void* src, void* dst, double* index, unsigned long ndims, unsigned long* dims,
                         bool firstReduced, bool omitNaN, bool isComplex, bool linear) {
  using namespace half_ptr;
  if (isComplex) {
    return omitNaN ? chosen(maxCplxSimpleReduceWithIndexOmitNaNPtr, maxCplxReduceWithIndexOmitNaNPtr, src, dst, index,
                            ndims, dims, firstReduced, linear)
                   : chosen(maxCplxSimpleReduceWithIndexPtr, maxCplxReduceWithIndexPtr, src, dst, index, ndims, dims,
                            firstReduced, linear);
  }
  omitNaN
      ? chosen(maxSimpleReduceWithIndexOmitNaNPtr, maxReduceWithIndexOmitNaNPtr, src, dst, index, ndims, dims,
               firstReduced, linear)
      : chosen(maxSimpleReduceWithIndexPtr, maxReduceWithIndexPtr, src, dst, index, ndims, dims, firstReduced, linear);
}

}  // namespace half_vector
