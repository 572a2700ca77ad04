// What the six comparisons share.
// Internal: promises nothing to users of the library.
#pragma once

#include "core/instantiate.h"
#include "elementwise/binary_op.h"
#include "scalar/functors/elementwise_functors.h"
#include "zthalf/half_ops.h"

namespace half {

template <class T>
T* comparedElements(T* array) {
  return array;
}
inline scalar::emulated::logicalElement* comparedElements(bool* array) {
  return reinterpret_cast<scalar::emulated::logicalElement*>(array);
}

// Op compares two parts, and Combiner makes one answer of those of the real and of the imaginary parts.
template <class Op, class Combiner, class Left, class Right, class... Shapes>
void compare(Left* a, Right* b, bool* c, Shapes... shapes) {
  using ftor = utils::ElementwiseBinaryOpFtor<Op, Combiner, 2048, 128>;
  half_utils::halfBinaryOp<ftor>(comparedElements(a), comparedElements(b), c, shapes...);
}

}  // namespace half
