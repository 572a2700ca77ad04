// The table: one writable function pointer for each array operation and pair of element types.
#pragma once

#include "zthalf/detail/element_types.h"
#include "zthalf/detail/entries_begin.h"
#include "zthalf/detail/entry_shapes.h"
#include "zthalf/detail/export.h"

/// The pointers through which every half_vector function jumps. `half_ptr::<entry>Ptr` is filled when the library is
/// loaded and is never null; the library itself never writes one. A program may store a function of the same signature
/// in an entry to replace that operation for the whole process; nothing guards such a store against calls running on
/// other threads.
namespace half_ptr {

#define ZTHALF_DECLARE_UNARY(entry, facade, In, Out, ...) \
  extern ZTHALF_API unary_entry<half::element::In, half::element::Out>* entry##Ptr;
#define ZTHALF_DECLARE_EARLY_EXIT(entry, facade, In, Out, function) \
  extern ZTHALF_API early_exit_entry<half::element::In, half::element::Out>* entry##Ptr;
#define ZTHALF_DECLARE_TWO_OUT(entry, facade, In, Out, function) \
  extern ZTHALF_API two_out_entry<half::element::In, half::element::Out>* entry##Ptr;
#define ZTHALF_DECLARE_QUERY(entry, facade, In, instance) extern ZTHALF_API query_entry<half::storage::In>* entry##Ptr;
#define ZTHALF_DECLARE_BINARY(op, Left, Right, Out) \
  extern ZTHALF_API binary_entry<half::element::Left, half::element::Right, half::element::Out>* op##Left##Right##Ptr;
#define ZTHALF_DECLARE_SIMPLE_REDUCTION(entry, facade, function, In, Out, Accumulator) \
  extern ZTHALF_API unary_entry<half::element::In, half::element::Out>* entry##Ptr;
#define ZTHALF_DECLARE_REDUCTION(entry, facade, function, In, Out, Accumulator) \
  extern ZTHALF_API reduction_entry<half::element::In, half::element::Out>* entry##Ptr;

#define ZTHALF_DECLARE_REMAINDER(op, Left, Right, Out) \
  extern ZTHALF_API binary_entry<half::storage::Left, half::storage::Right, half::storage::Out>* op##Left##Right##Ptr;
#define ZTHALF_DECLARE_COMPARISON(entry, op, Left, Right) \
  extern ZTHALF_API binary_entry<half::element::Left, half::element::Right, bool>* entry##Ptr;
#define ZTHALF_DECLARE_TERNARY(op, A, B, C, Out)                                                             \
  extern ZTHALF_API ternary_entry<half::element::A, half::element::B, half::element::C, half::element::Out>* \
      op##A##B##C##Ptr;
#define ZTHALF_DECLARE_EXTREMUM(entry, shape, Element, Accumulator, function) \
  extern ZTHALF_API shape##_entry<half::element::Element, half::element::Element>* entry##Ptr;

ZTHALF_UNARY_ENTRIES(ZTHALF_DECLARE_UNARY)
ZTHALF_EARLY_EXIT_ENTRIES(ZTHALF_DECLARE_EARLY_EXIT)
ZTHALF_TWO_OUT_ENTRIES(ZTHALF_DECLARE_TWO_OUT)
ZTHALF_QUERY_ENTRIES(ZTHALF_DECLARE_QUERY)
ZTHALF_BINARY_ENTRIES(ZTHALF_DECLARE_BINARY)
ZTHALF_REMAINDER_ENTRIES(ZTHALF_DECLARE_REMAINDER)
ZTHALF_SIMPLE_REDUCTION_ENTRIES(ZTHALF_DECLARE_SIMPLE_REDUCTION)
ZTHALF_SIMPLE_OMITNAN_REDUCTION_ENTRIES(ZTHALF_DECLARE_SIMPLE_REDUCTION)
ZTHALF_REDUCTION_ENTRIES(ZTHALF_DECLARE_REDUCTION)
ZTHALF_COMPARISON_ENTRIES(ZTHALF_DECLARE_COMPARISON)
ZTHALF_FMA_ENTRIES(ZTHALF_DECLARE_TERNARY)
ZTHALF_CHOSEN_BINARY_ENTRIES(ZTHALF_DECLARE_BINARY)
ZTHALF_EXTREMUM_REDUCTION_ENTRIES(ZTHALF_DECLARE_EXTREMUM)

#undef ZTHALF_DECLARE_UNARY
#undef ZTHALF_DECLARE_EARLY_EXIT
#undef ZTHALF_DECLARE_TWO_OUT
#undef ZTHALF_DECLARE_QUERY
#undef ZTHALF_DECLARE_BINARY
#undef ZTHALF_DECLARE_REMAINDER
#undef ZTHALF_DECLARE_SIMPLE_REDUCTION
#undef ZTHALF_DECLARE_REDUCTION
#undef ZTHALF_DECLARE_COMPARISON
#undef ZTHALF_DECLARE_TERNARY
#undef ZTHALF_DECLARE_EXTREMUM

/// 0 when the library is loaded, 1 from the first VLInitialize_half or CPU_Dispatch on. No operation reads it.
extern ZTHALF_API unsigned char initialized;

/// Whether `initialized` is set.
ZTHALF_API bool isInitialized();

/// The function named for choosing among implementations of the entries. There is one implementation of each, so it
/// changes no entry, whatever its argument: it sets `initialized` and returns 0.
ZTHALF_API int CPU_Dispatch(int);

}  // namespace half_ptr

#include "zthalf/detail/entries_end.h"
