// x 2^y of two arrays of one size.
#include "core/instantiate.h"
#include "elementwise/binary_op.h"
#include "scalar/functors/power_functors.h"
#include "zthalf/half_ops.h"

namespace half {

template <class Left, class Right, class Out>
void pow2(Left* x, Right* y, Out* out, unsigned long n) {
  half_utils::halfBinaryOpParallelLoop(x, y, out, n, scalar::emulated::pow2Ftor{});
}

ZTHALF_SCALING_ENTRIES(ZTHALF_FLAT_BINARY_ROW)

}  // namespace half
