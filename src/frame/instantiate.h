// How a source that defines a unary operation makes the instances of its rows.
// Internal: promises nothing to users of the library.
#pragma once

#include "zthalf/detail/element_types.h"
#include "zthalf/detail/entries.h"
#include "zthalf/detail/entry_shapes.h"

#define ZTHALF_INSTANTIATE_UNARY(entry, facade, In, Out, ...) \
  template half_ptr::unary_entry<element::In, element::Out> __VA_ARGS__;
