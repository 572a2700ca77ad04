#include "elementwise/binary_op.h"

namespace half_utils {

void meetAndRun(elementwiseOp const& op, void* a, void* b, void* c, shape shapeA, shape shapeB, shape shapeC) {
  if (shapeC.n == 0) return;
  const operandPointers in{a, b};
  if (std::max(shapeA.n, shapeB.n) == shapeC.n) {
    if (shapeA.n == shapeB.n) return flatLoop(op, bothVary, in, c, shapeA.n);
    if (shapeA.n == 1) return flatLoop(op, rightVaries, in, c, shapeB.n);
    if (shapeB.n == 1) return flatLoop(op, leftVaries, in, c, shapeA.n);
  }
  const expansionPlan plan(shapeA, shapeB, shapeC);
  expand(op, in, c, plan, shapeC.n >= expansionThreshold);
}

}  // namespace half_utils
