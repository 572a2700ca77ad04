// How a source that defines an operation of two or three operands makes the instances of its rows.
// Internal: promises nothing to users of the library.
#pragma once

#include "zthalf/detail/element_types.h"
#include "zthalf/detail/entries.h"
#include "zthalf/detail/entry_shapes.h"

#define ZTHALF_INSTANTIATE_BINARY(op, Left, Right, Out)                        \
  template half_ptr::binary_entry<element::Left, element::Right, element::Out> \
      op<element::Left, element::Right, element::Out>;

#define ZTHALF_INSTANTIATE_REMAINDER(op, Left, Right, Out) \
  template half_ptr::binary_entry<storage::Left, storage::Right, storage::Out> op<storage::Left, storage::Right>;
#define ZTHALF_INSTANTIATE_COMPARISON(entry, op, Left, Right) \
  template half_ptr::binary_entry<element::Left, element::Right, bool> op<element::Left, element::Right>;

#define ZTHALF_INSTANTIATE_TERNARY(op, A, B, C, Out)                                 \
  template half_ptr::ternary_entry<element::A, element::B, element::C, element::Out> \
      op<element::A, element::B, element::C, element::Out>;
