// Unary operations that are bit work on the patterns.
#include "core/instantiate.h"
#include "frame/loops/simple_loop.h"
#include "scalar/functors/elementwise_functors.h"
#include "scalar/functors/sign_and_class_functors.h"
#include "zthalf/half_ops.h"

namespace half {

using half_utils::unaryOpSimpleLoop;
namespace functor = scalar::emulated;

template <class T>
void uminus(T* src, T* dst, unsigned long n) {
  unaryOpSimpleLoop(src, dst, n, functor::uminusFtor{});
}

template <class T>
void abs(T* src, typename realType<T>::type* dst, unsigned long n) {
  unaryOpSimpleLoop(src, dst, n, functor::absFtor{});
}

template <class T>
void cplxReal(std::complex<T>* src, T* dst, unsigned long n) {
  unaryOpSimpleLoop(src, dst, n, functor::realFtor{});
}

template <class T>
void cplxImag(std::complex<T>* src, T* dst, unsigned long n) {
  unaryOpSimpleLoop(src, dst, n, functor::imagFtor{});
}

template <class T>
void cplxConj(std::complex<T>* src, std::complex<T>* dst, unsigned long n) {
  unaryOpSimpleLoop(src, dst, n, functor::conjFtor{});
}

template <class T>
void realToComplex(T* src, std::complex<T>* dst, unsigned long n) {
  unaryOpSimpleLoop(src, dst, n, functor::realToComplexFtor{});
}

template <class T>
void sign(T* src, T* dst, unsigned long n) {
  unaryOpSimpleLoop(src, dst, n, functor::signFtor{});
}

template <class Op, class Combiner>
using classification = utils::ElementwiseUnaryOpFtor<Op, Combiner, 40960, 4096>;

template <class T>
void isnan(T* src, bool* dst, unsigned long n) {
  unaryOpSimpleLoop(src, dst, n, classification<functor::realOps::isnanFtor, utils::boolOrFtor>{});
}

template <class T>
void isinf(T* src, bool* dst, unsigned long n) {
  unaryOpSimpleLoop(src, dst, n, classification<functor::realOps::isinfFtor, utils::boolOrFtor>{});
}

template <class T>
void isfinite(T* src, bool* dst, unsigned long n) {
  unaryOpSimpleLoop(src, dst, n, classification<functor::realOps::isfiniteFtor, utils::boolAndFtor>{});
}

ZTHALF_BITWISE_ENTRIES(ZTHALF_UNARY_ROW)
ZTHALF_CLASSIFICATION_ENTRIES(ZTHALF_UNARY_ROW)

}  // namespace half
