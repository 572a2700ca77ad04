#include "core/instantiate.h"
#include "core/shape_parameters.h"
#include "elementwise/binary_op.h"
#include "scalar/functors/remainder_functors.h"
#include "zthalf/half_ops.h"

namespace half {

template <class Left, class Right>
void mod(Left* a, Right* b, unsigned short* c, ZTHALF_THREE_SHAPES) {
  half_utils::halfBinaryOp<impl::emulated::modInLoopFtor>(a, b, c, ZTHALF_THREE_SHAPE_NAMES);
}

ZTHALF_REAL_PAIRS(ZTHALF_REMAINDER_ROW, mod, Half)

}  // namespace half
