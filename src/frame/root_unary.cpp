// Square roots on arrays.
#include "frame/stop_conditions.h"
#include "frame/table_loop.h"
#include "scalar/functors/root_functors.h"
#include "zthalf/half_ops.h"

namespace half {

namespace functor = scalar::emulated;

void sqrt(fp16binary_t* src, fp16binary_t* dst, unsigned long n) {
  half_utils::unaryOpTableLoop(src, dst, n, functor::sqrtFtor{});
}

void rsqrt(fp16binary_t* src, fp16binary_t* dst, unsigned long n) {
  half_utils::unaryOpTableLoop(src, dst, n, functor::rsqrtFtor{});
}

bool sqrtEarlyExit(fp16binary_t* src, fp16binary_t* dst, unsigned long n) {
  return half_utils::unaryTableLoopWithEarlyExit(src, dst, n, functor::sqrtFtor{},
                                                 templates::emulated::isNegativeNumber{});
}

}  // namespace half
