#include "elementwise/binary_op.h"
#include "elementwise/instantiate.h"
#include "scalar/functors/extremum_functors.h"
#include "zthalf/half_extrema.h"

namespace half {

template <class Left, class Right, class Out>
void max(Left* a, Right* b, Out* c, unsigned long na, unsigned long ndimsA, unsigned long const* dimsA,
         unsigned long nb, unsigned long ndimsB, unsigned long const* dimsB, unsigned long nc, unsigned long ndimsC,
         unsigned long const* dimsC) {
  half_utils::halfBinaryOp<scalar::emulated::maxFtor>(a, b, c, na, ndimsA, dimsA, nb, ndimsB, dimsB, nc, ndimsC, dimsC);
}

template <class Left, class Right, class Out>
void maxOmitNaN(Left* a, Right* b, Out* c, unsigned long na, unsigned long ndimsA, unsigned long const* dimsA,
                unsigned long nb, unsigned long ndimsB, unsigned long const* dimsB, unsigned long nc,
                unsigned long ndimsC, unsigned long const* dimsC) {
  half_utils::halfBinaryOp<scalar::emulated::maxOmitNaNFtor>(a, b, c, na, ndimsA, dimsA, nb, ndimsB, dimsB, nc, ndimsC,
                                                             dimsC);
}

ZTHALF_MAX_ENTRIES(ZTHALF_INSTANTIATE_BINARY)

}  // namespace half
