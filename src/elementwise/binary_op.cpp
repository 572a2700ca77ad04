#include "elementwise/binary_op.h"

namespace half_utils {

void expandBinary(elementwiseOp const& op, operandPointers const& in, void* out, shape const& a, shape const& b,
                  shape const& c) {
  const expansionPlan plan(a, b, c);
  expand(op, in, out, plan, c.n >= expansionThreshold);
}

}  // namespace half_utils
