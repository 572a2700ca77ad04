#include "core/instantiate.h"
#include "core/shape_parameters.h"
#include "elementwise/binary_op.h"
#include "scalar/functors/arithmetic_functors.h"
#include "zthalf/half_ops.h"

namespace half {

template <class Left, class Right, class Out>
void minus(Left* a, Right* b, Out* c, ZTHALF_THREE_SHAPES) {
  half_utils::halfBinaryOp<scalar::emulated::minusFtor>(a, b, c, ZTHALF_THREE_SHAPE_NAMES);
}

ZTHALF_TWENTY_PAIRS(ZTHALF_BINARY_ROW, minus)

}  // namespace half
