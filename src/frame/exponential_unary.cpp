// Exponentials on arrays.
#include "core/instantiate.h"
#include "frame/table_loop.h"
#include "scalar/functors/exponential_functors.h"
#include "zthalf/half_ops.h"

namespace half {

using half_utils::unaryOpTableLoop;
namespace functor = scalar::emulated;

template <class T>
void exp(T* src, T* dst, unsigned long n) {
  unaryOpTableLoop(src, dst, n, functor::expFtor{});
}

template <class T>
void expm1(T* src, T* dst, unsigned long n) {
  unaryOpTableLoop(src, dst, n, functor::expm1Ftor{});
}

template <class T>
void pow2(T* src, T* dst, unsigned long n) {
  unaryOpTableLoop(src, dst, n, functor::pow2Ftor{});
}

template <class T>
void pow10(T* src, T* dst, unsigned long n) {
  unaryOpTableLoop(src, dst, n, functor::pow10Ftor{});
}

ZTHALF_EXPONENTIAL_ENTRIES(ZTHALF_UNARY_ROW)

}  // namespace half
