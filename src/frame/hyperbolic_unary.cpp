// Hyperbolic functions and their inverses on arrays, plain and stopping.
#include "core/instantiate.h"
#include "frame/stop_conditions.h"
#include "frame/table_loop.h"
#include "scalar/functors/hyperbolic_functors.h"
#include "zthalf/half_ops.h"

namespace half {

using half_utils::unaryOpTableLoop;
using half_utils::unaryTableLoopWithEarlyExit;
using templates::emulated::isBeyondOne;
namespace functor = scalar::emulated;

template <class T>
void sinh(T* src, T* dst, unsigned long n) {
  unaryOpTableLoop(src, dst, n, functor::sinhFtor{});
}

template <class T>
void cosh(T* src, T* dst, unsigned long n) {
  unaryOpTableLoop(src, dst, n, functor::coshFtor{});
}

template <class T>
void tanh(T* src, T* dst, unsigned long n) {
  unaryOpTableLoop(src, dst, n, functor::tanhFtor{});
}

template <class T>
void asinh(T* src, T* dst, unsigned long n) {
  unaryOpTableLoop(src, dst, n, functor::asinhFtor{});
}

template <class T>
void acosh(T* src, T* dst, unsigned long n) {
  unaryOpTableLoop(src, dst, n, functor::acoshFtor{});
}

void atanh(fp16binary_t* src, fp16binary_t* dst, unsigned long n) {
  unaryOpTableLoop(src, dst, n, functor::atanhFtor{});
}

bool atanhEarlyExit(fp16binary_t* src, fp16binary_t* dst, unsigned long n) {
  return unaryTableLoopWithEarlyExit(src, dst, n, functor::atanhFtor{}, isBeyondOne{});
}

ZTHALF_HYPERBOLIC_ENTRIES(ZTHALF_UNARY_ROW)

}  // namespace half
