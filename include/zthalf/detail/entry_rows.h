// Every entry of the table as a row of one shape, for whoever needs no more than that: half_ptr.h, the table itself,
// the template instances, the tests. They define
//
//   ZTHALF_ROW(entry, signature, function...)     entry name, function type, what it leads to in namespace half
//
// and write ZTHALF_TABLE for all rows, or the list of a family with its shape's macro for those, such as
// ZTHALF_TWENTY_PAIRS(ZTHALF_BINARY_ROW, plus). A new family is a line of ZTHALF_TABLE, and is then in all of them.
//
// Like the list this may be included any number of times; entries_end.h takes it away again.

// A signature has commas: as a macro of its own it is one argument.
#define ZTHALF_SIGNATURE(shape, ...) half_ptr::shape##_entry<__VA_ARGS__>

#define ZTHALF_UNARY_ROW(entry, facade, In, Out, ...) \
  ZTHALF_ROW(entry, ZTHALF_SIGNATURE(unary, half::element::In, half::element::Out), __VA_ARGS__)
#define ZTHALF_EARLY_EXIT_ROW(entry, facade, In, Out, function) \
  ZTHALF_ROW(entry, ZTHALF_SIGNATURE(early_exit, half::element::In, half::element::Out), function)
#define ZTHALF_TWO_OUT_ROW(entry, facade, In, Out, function) \
  ZTHALF_ROW(entry, ZTHALF_SIGNATURE(two_out, half::element::In, half::element::Out), function)
#define ZTHALF_QUERY_ROW(entry, facade, In, function) \
  ZTHALF_ROW(entry, ZTHALF_SIGNATURE(query, half::storage::In), function)
#define ZTHALF_BINARY_ROW(op, Left, Right, Out)                                                                      \
  ZTHALF_ROW(op##Left##Right, ZTHALF_SIGNATURE(binary, half::element::Left, half::element::Right, half::element::Out), \
             op<half::element::Left, half::element::Right, half::element::Out>)
#define ZTHALF_REMAINDER_ROW(op, Left, Right, Out)                                                                   \
  ZTHALF_ROW(op##Left##Right, ZTHALF_SIGNATURE(binary, half::storage::Left, half::storage::Right, half::storage::Out), \
             op<half::storage::Left, half::storage::Right>)
#define ZTHALF_REAL_TO_COMPLEX_POWER_ROW(op, Left, Right, Out)                                                       \
  ZTHALF_ROW(op##Left##Right, ZTHALF_SIGNATURE(binary, half::element::Left, half::element::Right, half::element::Out), \
             power<half::element::Left, half::element::Right>)
#define ZTHALF_POWER_EARLY_EXIT_ROW(op, Left, Right, Out)                                                      \
  ZTHALF_ROW(op##Left##Right,                                                                                  \
             ZTHALF_SIGNATURE(binary_early_exit, half::element::Left, half::element::Right, half::element::Out), \
             op<half::element::Left, half::element::Right, half::element::Out>)
#define ZTHALF_FLAT_BINARY_ROW(op, Left, Right, Out)                                                               \
  ZTHALF_ROW(op##Left##Right,                                                                                      \
             ZTHALF_SIGNATURE(flat_binary, half::element::Left, half::element::Right, half::element::Out),         \
             op<half::element::Left, half::element::Right, half::element::Out>)
#define ZTHALF_COMPARISON_ROW(entry, op, Left, Right)                                        \
  ZTHALF_ROW(entry, ZTHALF_SIGNATURE(binary, half::element::Left, half::element::Right, bool), \
             op<half::element::Left, half::element::Right>)
#define ZTHALF_TERNARY_ROW(op, A, B, C, Out)                                                                    \
  ZTHALF_ROW(op##A##B##C,                                                                                       \
             ZTHALF_SIGNATURE(ternary, half::element::A, half::element::B, half::element::C, half::element::Out), \
             op<half::element::A, half::element::B, half::element::C, half::element::Out>)
#define ZTHALF_PRODUCT_ROW(op, Left, Right, Out)                                                                      \
  ZTHALF_ROW(op##Left##Right, ZTHALF_SIGNATURE(product, half::element::Left, half::element::Right, half::element::Out), \
             op<half::element::Left, half::element::Right, half::element::Out>)
#define ZTHALF_BLAS_ROW(entry, shape, ...) \
  ZTHALF_ROW(entry, ZTHALF_SIGNATURE(shape, half::storage::Half), blas::__VA_ARGS__)
#define ZTHALF_SIMPLE_REDUCTION_ROW(entry, facade, function, In, Out, Accumulator) \
  ZTHALF_ROW(entry, ZTHALF_SIGNATURE(unary, half::element::In, half::element::Out),  \
             function<half::element::In, half::element::Out, half::element::Accumulator>)
#define ZTHALF_REDUCTION_ROW(entry, facade, function, In, Out, Accumulator)           \
  ZTHALF_ROW(entry, ZTHALF_SIGNATURE(reduction, half::element::In, half::element::Out), \
             function<half::element::In, half::element::Out, half::element::Accumulator>)
#define ZTHALF_EXTREMUM_ROW(entry, shape, Element, Accumulator, function)                  \
  ZTHALF_ROW(entry, ZTHALF_SIGNATURE(shape, half::element::Element, half::element::Element), \
             function<half::element::Element, half::element::Element, half::element::Accumulator>)

#define ZTHALF_TABLE                                                   \
  ZTHALF_UNARY_ENTRIES(ZTHALF_UNARY_ROW)                               \
  ZTHALF_EARLY_EXIT_ENTRIES(ZTHALF_EARLY_EXIT_ROW)                     \
  ZTHALF_TWO_OUT_ENTRIES(ZTHALF_TWO_OUT_ROW)                           \
  ZTHALF_QUERY_ENTRIES(ZTHALF_QUERY_ROW)                               \
  ZTHALF_BINARY_ENTRIES(ZTHALF_BINARY_ROW)                             \
  ZTHALF_REMAINDER_ENTRIES(ZTHALF_REMAINDER_ROW)                       \
  ZTHALF_COMPLEX_POWER_ENTRIES(ZTHALF_BINARY_ROW)                      \
  ZTHALF_REAL_TO_COMPLEX_POWER_ENTRIES(ZTHALF_REAL_TO_COMPLEX_POWER_ROW) \
  ZTHALF_POWER_EARLY_EXIT_ENTRIES(ZTHALF_POWER_EARLY_EXIT_ROW)         \
  ZTHALF_SCALING_ENTRIES(ZTHALF_FLAT_BINARY_ROW)                       \
  ZTHALF_SIMPLE_REDUCTION_ENTRIES(ZTHALF_SIMPLE_REDUCTION_ROW)         \
  ZTHALF_SIMPLE_OMITNAN_REDUCTION_ENTRIES(ZTHALF_SIMPLE_REDUCTION_ROW) \
  ZTHALF_REDUCTION_ENTRIES(ZTHALF_REDUCTION_ROW)                       \
  ZTHALF_COMPARISON_ENTRIES(ZTHALF_COMPARISON_ROW)                     \
  ZTHALF_FMA_ENTRIES(ZTHALF_TERNARY_ROW)                               \
  ZTHALF_PRODUCT_ENTRIES(ZTHALF_PRODUCT_ROW)                           \
  ZTHALF_BLAS_ENTRIES(ZTHALF_BLAS_ROW)                                 \
  ZTHALF_CHOSEN_BINARY_ENTRIES(ZTHALF_BINARY_ROW)                      \
  ZTHALF_EXTREMUM_REDUCTION_ENTRIES(ZTHALF_EXTREMUM_ROW)
