// The facade: each function loads its entry of the table and jumps to it with all arguments as they came.
#include "core/shape_parameters.h"
#include "frame/table/stored.h"
#include "zthalf/detail/entries.h"
#include "zthalf/half_ptr.h"
#include "zthalf/half_vector.h"

namespace half_vector {

#define ZTHALF_FORWARD_UNARY(entry, facade, In, Out, ...)             \
  void facade(element::In* src, element::Out* dst, unsigned long n) { \
    half_ptr::entry##Ptr(stored(src), stored(dst), n);                \
  }
#define ZTHALF_FORWARD_EARLY_EXIT(entry, facade, In, Out, function)   \
  bool facade(element::In* src, element::Out* dst, unsigned long n) { \
    return half_ptr::entry##Ptr(stored(src), stored(dst), n);         \
  }
#define ZTHALF_FORWARD_TWO_OUT(entry, facade, In, Out, function)                              \
  void facade(element::In* src, element::Out* first, element::Out* second, unsigned long n) { \
    half_ptr::entry##Ptr(stored(src), stored(first), stored(second), n);                      \
  }
#define ZTHALF_FORWARD_QUERY(entry, facade, In, instance) \
  bool facade(element::In* src, unsigned long n) { return half_ptr::entry##Ptr(bare(src), n); }
#define ZTHALF_FORWARD_BINARY(op, Left, Right, Out)                                            \
  void op(element::Left* a, element::Right* b, element::Out* c, ZTHALF_THREE_SHAPES) {         \
    half_ptr::op##Left##Right##Ptr(stored(a), stored(b), stored(c), ZTHALF_THREE_SHAPE_NAMES); \
  }
#define ZTHALF_FORWARD_REMAINDER(op, Left, Right, Out)                                   \
  void op(element::Left* a, element::Right* b, element::Out* c, ZTHALF_THREE_SHAPES) {   \
    half_ptr::op##Left##Right##Ptr(bare(a), bare(b), bare(c), ZTHALF_THREE_SHAPE_NAMES); \
  }
#define ZTHALF_FORWARD_SIMPLE_REDUCTION(entry, facade, function, In, Out, Accumulator) \
  void facade(element::In* src, element::Out* dst, unsigned long n) {                  \
    half_ptr::entry##Ptr(stored(src), stored(dst), n);                                 \
  }
#define ZTHALF_FORWARD_COMPARISON(entry, op, Left, Right)                      \
  void op(element::Left* a, element::Right* b, bool* c, ZTHALF_THREE_SHAPES) { \
    half_ptr::entry##Ptr(stored(a), stored(b), c, ZTHALF_THREE_SHAPE_NAMES);   \
  }
#define ZTHALF_FORWARD_TERNARY(op, A, B, C, Out)                                                     \
  void op(element::A* a, element::B* b, element::C* c, element::Out* d, ZTHALF_FOUR_SHAPES) {        \
    half_ptr::op##A##B##C##Ptr(stored(a), stored(b), stored(c), stored(d), ZTHALF_FOUR_SHAPE_NAMES); \
  }
#define ZTHALF_FORWARD_PRODUCT(op, Left, Right, Out)                                                                  \
  void op(element::Left* a, element::Right* b, element::Out* c, unsigned long m, unsigned long k, unsigned long n) { \
    half_ptr::op##Left##Right##Ptr(stored(a), stored(b), stored(c), m, k, n);                                         \
  }

ZTHALF_UNARY_ENTRIES(ZTHALF_FORWARD_UNARY)
ZTHALF_EARLY_EXIT_ENTRIES(ZTHALF_FORWARD_EARLY_EXIT)
ZTHALF_TWO_OUT_ENTRIES(ZTHALF_FORWARD_TWO_OUT)
ZTHALF_QUERY_ENTRIES(ZTHALF_FORWARD_QUERY)
ZTHALF_BINARY_ENTRIES(ZTHALF_FORWARD_BINARY)
ZTHALF_REMAINDER_ENTRIES(ZTHALF_FORWARD_REMAINDER)
ZTHALF_SIMPLE_REDUCTION_ENTRIES(ZTHALF_FORWARD_SIMPLE_REDUCTION)
ZTHALF_COMPARISON_ENTRIES(ZTHALF_FORWARD_COMPARISON)
ZTHALF_FMA_ENTRIES(ZTHALF_FORWARD_TERNARY)
ZTHALF_PRODUCT_ENTRIES(ZTHALF_FORWARD_PRODUCT)

#undef ZTHALF_FORWARD_UNARY
#undef ZTHALF_FORWARD_EARLY_EXIT
#undef ZTHALF_FORWARD_TWO_OUT
#undef ZTHALF_FORWARD_QUERY
#undef ZTHALF_FORWARD_BINARY
#undef ZTHALF_FORWARD_REMAINDER
#undef ZTHALF_FORWARD_SIMPLE_REDUCTION
#undef ZTHALF_FORWARD_COMPARISON
#undef ZTHALF_FORWARD_TERNARY
#undef ZTHALF_FORWARD_PRODUCT

}  // namespace half_vector
