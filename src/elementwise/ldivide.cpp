// b / a: rdivide with its operands changed over.
#include "elementwise/instantiate.h"
#include "zthalf/half_ops.h"

namespace half {

template <class Left, class Right, class Out>
void ldivide(Left* a, Right* b, Out* c, unsigned long na, unsigned long ndimsA, unsigned long const* dimsA,
             unsigned long nb, unsigned long ndimsB, unsigned long const* dimsB, unsigned long nc, unsigned long ndimsC,
             unsigned long const* dimsC) {
  rdivide<Right, Left, Out>(b, a, c, nb, ndimsB, dimsB, na, ndimsA, dimsA, nc, ndimsC, dimsC);
}

ZTHALF_TWENTY_PAIRS(ZTHALF_INSTANTIATE_BINARY, ldivide)

}  // namespace half
