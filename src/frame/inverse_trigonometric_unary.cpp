// Inverse trigonometric functions on arrays, plain and stopping.
#include "core/instantiate.h"
#include "frame/stop_conditions.h"
#include "frame/table_loop.h"
#include "scalar/functors/inverse_trigonometric_functors.h"
#include "zthalf/half_ops.h"

namespace half {

using half_utils::unaryOpTableLoop;
using half_utils::unaryTableLoopWithEarlyExit;
using templates::emulated::isBeyondOne;
namespace functor = scalar::emulated;

template <class T>
void atan(T* src, T* dst, unsigned long n) {
  unaryOpTableLoop(src, dst, n, functor::atanFtor{});
}

void asin(fp16binary_t* src, fp16binary_t* dst, unsigned long n) { unaryOpTableLoop(src, dst, n, functor::asinFtor{}); }

void acos(fp16binary_t* src, fp16binary_t* dst, unsigned long n) { unaryOpTableLoop(src, dst, n, functor::acosFtor{}); }

bool asinEarlyExit(fp16binary_t* src, fp16binary_t* dst, unsigned long n) {
  return unaryTableLoopWithEarlyExit(src, dst, n, functor::asinFtor{}, isBeyondOne{});
}

bool acosEarlyExit(fp16binary_t* src, fp16binary_t* dst, unsigned long n) {
  return unaryTableLoopWithEarlyExit(src, dst, n, functor::acosFtor{}, isBeyondOne{});
}

ZTHALF_ARC_TANGENT_ENTRIES(ZTHALF_UNARY_ROW)

}  // namespace half
