// Trigonometric functions on arrays.
#include "core/instantiate.h"
#include "frame/table_loop.h"
#include "scalar/functors/trigonometric_functors.h"
#include "zthalf/half_ops.h"

namespace half {

using half_utils::unaryOpTableLoop;
namespace functor = scalar::emulated;

template <class T>
void sin(T* src, T* dst, unsigned long n) {
  unaryOpTableLoop(src, dst, n, functor::sinFtor{});
}

template <class T>
void cos(T* src, T* dst, unsigned long n) {
  unaryOpTableLoop(src, dst, n, functor::cosFtor{});
}

template <class T>
void tan(T* src, T* dst, unsigned long n) {
  unaryOpTableLoop(src, dst, n, functor::tanFtor{});
}

template <class T>
void sinpi(T* src, T* dst, unsigned long n) {
  unaryOpTableLoop(src, dst, n, functor::sinpiFtor{});
}

template <class T>
void cospi(T* src, T* dst, unsigned long n) {
  unaryOpTableLoop(src, dst, n, functor::cospiFtor{});
}

ZTHALF_TRIGONOMETRIC_ENTRIES(ZTHALF_UNARY_ROW)

}  // namespace half
