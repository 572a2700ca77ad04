#include "elementwise/binary_op.h"
#include "elementwise/instantiate.h"
#include "scalar/functors/remainder_functors.h"
#include "zthalf/half_ops.h"

namespace half {

template <class Left, class Right>
void rem(Left* a, Right* b, unsigned short* c, unsigned long na, unsigned long ndimsA, unsigned long const* dimsA,
         unsigned long nb, unsigned long ndimsB, unsigned long const* dimsB, unsigned long nc, unsigned long ndimsC,
         unsigned long const* dimsC) {
  half_utils::halfBinaryOp<impl::emulated::remInLoopFtor>(a, b, c, na, ndimsA, dimsA, nb, ndimsB, dimsB, nc, ndimsC,
                                                          dimsC);
}

ZTHALF_REAL_PAIRS(ZTHALF_INSTANTIATE_REMAINDER, rem, Half)

}  // namespace half
