// What the six comparisons are made of: an operation on two parts, and a combiner that makes one answer of those of the
// real and of the imaginary parts.
#pragma once

#include "core/instantiate.h"
#include "core/shape_parameters.h"
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

template <class Op, class Combiner, class Left, class Right, class... Shapes>
void compare(Left* a, Right* b, bool* c, Shapes... shapes) {
  using ftor = utils::ElementwiseBinaryOpFtor<Op, Combiner, 2048, 128>;
  half_utils::halfBinaryOp<ftor>(comparedElements(a), comparedElements(b), c, shapes...);
}

}  // namespace half

#define ZTHALF_COMPARING(op, combiner)                                                                \
  template <class Left, class Right>                                                                  \
  void op(Left* a, Right* b, bool* c, ZTHALF_THREE_SHAPES) {                                          \
    compare<scalar::emulated::realOps::op##Ftor, utils::combiner>(a, b, c, ZTHALF_THREE_SHAPE_NAMES); \
  }                                                                                                   \
  ZTHALF_COMPARISON(ZTHALF_COMPARISON_ROW, op)
