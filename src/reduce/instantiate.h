// How a source that defines a reduction makes the instances of its rows.
// Internal: promises nothing to users of the library.
#pragma once

#include "zthalf/detail/element_types.h"
#include "zthalf/detail/entries.h"
#include "zthalf/detail/entry_shapes.h"

#define ZTHALF_INSTANTIATE_SIMPLE_REDUCTION(entry, facade, function, In, Out, Accumulator) \
  template half_ptr::unary_entry<element::In, element::Out> function<element::In, element::Out, element::Accumulator>;
#define ZTHALF_INSTANTIATE_REDUCTION(entry, facade, function, In, Out, Accumulator) \
  template half_ptr::reduction_entry<element::In, element::Out>                     \
      function<element::In, element::Out, element::Accumulator>;
