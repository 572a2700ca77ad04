#include "elementwise/binary_op.h"
#include "elementwise/instantiate.h"
#include "scalar/functors/arithmetic_functors.h"
#include "zthalf/half_ops.h"

namespace half {

template <class Left, class Right, class Out>
void rdivide(Left* a, Right* b, Out* c, unsigned long na, unsigned long ndimsA, unsigned long const* dimsA,
             unsigned long nb, unsigned long ndimsB, unsigned long const* dimsB, unsigned long nc, unsigned long ndimsC,
             unsigned long const* dimsC) {
  half_utils::halfBinaryOp<scalar::emulated::rdivideFtor>(a, b, c, na, ndimsA, dimsA, nb, ndimsB, dimsB, nc, ndimsC,
                                                          dimsC);
}

ZTHALF_TWENTY_PAIRS(ZTHALF_INSTANTIATE_BINARY, rdivide)

}  // namespace half
