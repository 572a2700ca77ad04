#include "elementwise/ternary_op.h"

#include <algorithm>

namespace half_utils {

namespace {

// Whether both have more than one element, and not the same shape.
bool differ(shape const& s, shape const& t) {
  if (s.n < 2 || t.n < 2) return false;
  for (unsigned long d = 0; d < std::max(s.ndims, t.ndims); ++d) {
    if (s.size(d) != t.size(d)) return true;
  }
  return false;
}

}  // namespace

// Once no shapes differ, counts tell who is a single element.
void meetAndRun(elementwiseOp const& op, operandPointers const& in, void* out, shape const& shapeA, shape const& shapeB,
                shape const& shapeC, shape const& shapeD) {
  if (shapeD.n == 0) return;
  if (differ(shapeA, shapeB) || differ(shapeA, shapeC) || differ(shapeB, shapeC)) {
    const expansionPlan plan(shapeA, shapeB, shapeC, shapeD);
    return expand(op, in, out, plan, shapeD.n >= expansionThreshold);
  }
  const unsigned long na = shapeA.n, nb = shapeB.n, nc = shapeC.n;
  const meeting withC = nc != 1 ? cVaries : 0;
  if (na != nb && na != 1) return flatLoop(op, aVaries | withC, in, out, na);
  if (na != nb) return flatLoop(op, bVaries | withC, in, out, nb);
  if (nc == na) return flatLoop(op, aVaries | bVaries | cVaries, in, out, na);
  return nc != 1 ? flatLoop(op, cVaries, in, out, nc) : flatLoop(op, aVaries | bVaries, in, out, na);
}

}  // namespace half_utils
