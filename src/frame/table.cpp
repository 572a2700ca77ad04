// The table's variables, filled statically: no code runs to make them.
#include "zthalf/detail/entries.h"
#include "zthalf/half_extrema.h"
#include "zthalf/half_ops.h"
#include "zthalf/half_ptr.h"
#include "zthalf/half_reductions.h"

namespace half_ptr {

namespace element = half::element;

#define ZTHALF_FILL_UNARY(entry, facade, In, Out, ...) \
  unary_entry<element::In, element::Out>* entry##Ptr = &half::__VA_ARGS__;
#define ZTHALF_FILL_EARLY_EXIT(entry, facade, In, Out, function) \
  early_exit_entry<element::In, element::Out>* entry##Ptr = &half::function;
#define ZTHALF_FILL_TWO_OUT(entry, facade, In, Out, function) \
  two_out_entry<element::In, element::Out>* entry##Ptr = &half::function;
#define ZTHALF_FILL_QUERY(entry, facade, In, instance) query_entry<half::storage::In>* entry##Ptr = &half::instance;
#define ZTHALF_FILL_BINARY(op, Left, Right, Out)                                    \
  binary_entry<element::Left, element::Right, element::Out>* op##Left##Right##Ptr = \
      &half::op<element::Left, element::Right, element::Out>;
#define ZTHALF_FILL_REMAINDER(op, Left, Right, Out)                                                   \
  binary_entry<half::storage::Left, half::storage::Right, half::storage::Out>* op##Left##Right##Ptr = \
      &half::op<half::storage::Left, half::storage::Right>;
#define ZTHALF_FILL_SIMPLE_REDUCTION(entry, facade, function, In, Out, Accumulator) \
  unary_entry<element::In, element::Out>* entry##Ptr = &half::function<element::In, element::Out, element::Accumulator>;
#define ZTHALF_FILL_REDUCTION(entry, facade, function, In, Out, Accumulator) \
  reduction_entry<element::In, element::Out>* entry##Ptr =                   \
      &half::function<element::In, element::Out, element::Accumulator>;
#define ZTHALF_FILL_COMPARISON(entry, op, Left, Right) \
  binary_entry<element::Left, element::Right, bool>* entry##Ptr = &half::op<element::Left, element::Right>;
#define ZTHALF_FILL_TERNARY(op, A, B, C, Out)                                         \
  ternary_entry<element::A, element::B, element::C, element::Out>* op##A##B##C##Ptr = \
      &half::op<element::A, element::B, element::C, element::Out>;
#define ZTHALF_FILL_EXTREMUM(entry, shape, Element, Accumulator, function) \
  shape##_entry<element::Element, element::Element>* entry##Ptr =          \
      &half::function<element::Element, element::Element, element::Accumulator>;

ZTHALF_UNARY_ENTRIES(ZTHALF_FILL_UNARY)
ZTHALF_EARLY_EXIT_ENTRIES(ZTHALF_FILL_EARLY_EXIT)
ZTHALF_TWO_OUT_ENTRIES(ZTHALF_FILL_TWO_OUT)
ZTHALF_QUERY_ENTRIES(ZTHALF_FILL_QUERY)
ZTHALF_BINARY_ENTRIES(ZTHALF_FILL_BINARY)
ZTHALF_REMAINDER_ENTRIES(ZTHALF_FILL_REMAINDER)
ZTHALF_SIMPLE_REDUCTION_ENTRIES(ZTHALF_FILL_SIMPLE_REDUCTION)
ZTHALF_SIMPLE_OMITNAN_REDUCTION_ENTRIES(ZTHALF_FILL_SIMPLE_REDUCTION)
ZTHALF_REDUCTION_ENTRIES(ZTHALF_FILL_REDUCTION)
ZTHALF_COMPARISON_ENTRIES(ZTHALF_FILL_COMPARISON)
ZTHALF_FMA_ENTRIES(ZTHALF_FILL_TERNARY)
ZTHALF_CHOSEN_BINARY_ENTRIES(ZTHALF_FILL_BINARY)
ZTHALF_EXTREMUM_REDUCTION_ENTRIES(ZTHALF_FILL_EXTREMUM)

#undef ZTHALF_FILL_UNARY
#undef ZTHALF_FILL_EARLY_EXIT
#undef ZTHALF_FILL_TWO_OUT
#undef ZTHALF_FILL_QUERY
#undef ZTHALF_FILL_BINARY
#undef ZTHALF_FILL_REMAINDER
#undef ZTHALF_FILL_SIMPLE_REDUCTION
#undef ZTHALF_FILL_REDUCTION
#undef ZTHALF_FILL_COMPARISON
#undef ZTHALF_FILL_TERNARY
#undef ZTHALF_FILL_EXTREMUM

}  // namespace half_ptr
