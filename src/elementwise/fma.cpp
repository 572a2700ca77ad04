#include "elementwise/instantiate.h"
#include "elementwise/ternary_op.h"
#include "scalar/functors/fma_functor.h"
#include "zthalf/half_ops.h"

namespace half {

template <class A, class B, class C, class Out>
void fma(A* a, B* b, C* c, Out* d, unsigned long na, unsigned long ndimsA, unsigned long const* dimsA, unsigned long nb,
         unsigned long ndimsB, unsigned long const* dimsB, unsigned long nc, unsigned long ndimsC,
         unsigned long const* dimsC, unsigned long nd, unsigned long ndimsD, unsigned long const* dimsD) {
  half_utils::halfTernaryOp<scalar::emulated::fmaFtor>(a, b, c, d, na, ndimsA, dimsA, nb, ndimsB, dimsB, nc, ndimsC,
                                                       dimsC, nd, ndimsD, dimsD);
}

ZTHALF_FMA_ENTRIES(ZTHALF_INSTANTIATE_TERNARY)

}  // namespace half
