// b / a: rdivide with its operands changed over.
#include "core/instantiate.h"
#include "core/shape_parameters.h"
#include "zthalf/half_ops.h"

namespace half {

template <class Left, class Right, class Out>
void ldivide(Left* a, Right* b, Out* c, ZTHALF_THREE_SHAPES) {
  rdivide<Right, Left, Out>(b, a, c, ZTHALF_SHAPE_NAMES(B), ZTHALF_SHAPE_NAMES(A), ZTHALF_SHAPE_NAMES(C));
}

ZTHALF_TWENTY_PAIRS(ZTHALF_BINARY_ROW, ldivide)

}  // namespace half
