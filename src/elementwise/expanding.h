// What every operation with implicit expansion is made of: a template that hands its arguments on to the engine with
// its functor. The instances follow in the same source, from the rows of the list.
#pragma once

#include "core/instantiate.h"
#include "core/shape_parameters.h"
#include "elementwise/binary_op.h"
#include "zthalf/half_ops.h"

#define ZTHALF_EXPANDING(op, functor)                                     \
  template <class Left, class Right, class Out>                           \
  void op(Left* a, Right* b, Out* c, ZTHALF_THREE_SHAPES) {               \
    half_utils::halfBinaryOp<functor>(a, b, c, ZTHALF_THREE_SHAPE_NAMES); \
  }
