// Rounding to integers, on arrays.
#include "frame/loops/simple_loop.h"
#include "scalar/functors/elementwise_functors.h"
#include "scalar/functors/rounding_functors.h"
#include "zthalf/half_ops.h"

namespace half {

using half_utils::unaryOpSimpleLoop;
namespace functor = scalar::emulated;

template <class Op>
using roundingTo = utils::ElementwiseUnaryOpFtor<Op, utils::combineRealComplexFtor, 2048, 128>;

void ceil(fp16binary_t* src, fp16binary_t* dst, unsigned long n) {
  unaryOpSimpleLoop(src, dst, n, roundingTo<functor::realOps::ceilFtor>{});
}

void fix(fp16binary_t* src, fp16binary_t* dst, unsigned long n) {
  unaryOpSimpleLoop(src, dst, n, roundingTo<functor::realOps::fixFtor>{});
}

void floor(fp16binary_t* src, fp16binary_t* dst, unsigned long n) {
  unaryOpSimpleLoop(src, dst, n, roundingTo<functor::realOps::floorFtor>{});
}

void round(fp16binary_t* src, fp16binary_t* dst, unsigned long n) {
  unaryOpSimpleLoop(src, dst, n, roundingTo<functor::realOps::roundFtor>{});
}

}  // namespace half
