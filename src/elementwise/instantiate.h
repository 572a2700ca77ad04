// How a source that defines a binary operation makes the instances of its rows.
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
