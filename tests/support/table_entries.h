// All entries of the table as data, read from the entry list.
#pragma once

#include "zthalf/detail/entries.h"
#include "zthalf/half_ops.h"
#include "zthalf/half_ptr.h"
#include "zthalf/half_reductions.h"
#include "zthalf/half_vector.h"

namespace zthalf::testing {

// visit(name, entry, implementation) for every entry, where entry is the table's own variable.
template <class Visit>
void forEachEntry(Visit visit) {
  namespace element = half::element;
#define ZTHALF_ROW(entry, signature, ...) \
  visit(#entry, half_ptr::entry##Ptr, static_cast<signature*>(&half::__VA_ARGS__));
  ZTHALF_TABLE
#undef ZTHALF_ROW
}

namespace facade_rows {

namespace element = half_vector::element;
using namespace half_ptr;

#define ZTHALF_VISIT(entry, name, ...) \
  visit(#entry, half_ptr::entry##Ptr, static_cast<__VA_ARGS__*>(&half_vector::name));
#define ZTHALF_VISIT_UNARY(entry, facade, In, Out, ...) \
  ZTHALF_VISIT(entry, facade, unary_entry<element::In, element::Out>)
#define ZTHALF_VISIT_EARLY_EXIT(entry, facade, In, Out, function) \
  ZTHALF_VISIT(entry, facade, early_exit_entry<element::In, element::Out>)
#define ZTHALF_VISIT_TWO_OUT(entry, facade, In, Out, function) \
  ZTHALF_VISIT(entry, facade, two_out_entry<element::In, element::Out>)
#define ZTHALF_VISIT_QUERY(entry, facade, In, function) ZTHALF_VISIT(entry, facade, query_entry<element::In>)
#define ZTHALF_VISIT_BINARY(op, Left, Right, Out) \
  ZTHALF_VISIT(op##Left##Right, op, binary_entry<element::Left, element::Right, element::Out>)
#define ZTHALF_VISIT_COMPARISON(entry, op, Left, Right) \
  ZTHALF_VISIT(entry, op, binary_entry<element::Left, element::Right, bool>)
#define ZTHALF_VISIT_TERNARY(op, A, B, C, Out) \
  ZTHALF_VISIT(op##A##B##C, op, ternary_entry<element::A, element::B, element::C, element::Out>)
#define ZTHALF_VISIT_PRODUCT(op, Left, Right, Out) \
  ZTHALF_VISIT(op##Left##Right, op, product_entry<element::Left, element::Right, element::Out>)
#define ZTHALF_VISIT_SIMPLE_REDUCTION(entry, facade, function, In, Out, Accumulator) \
  ZTHALF_VISIT(entry, facade, unary_entry<element::In, element::Out>)

// visit(name, entry, facade function) for every entry with a function of its own in half_vector, which has the
// parameters of its entry, with half_t for the stored types. The others are chosen among by selectors.
template <class Visit>
void forEachFacadeFunction(Visit visit) {
  ZTHALF_UNARY_ENTRIES(ZTHALF_VISIT_UNARY)
  ZTHALF_EARLY_EXIT_ENTRIES(ZTHALF_VISIT_EARLY_EXIT)
  ZTHALF_TWO_OUT_ENTRIES(ZTHALF_VISIT_TWO_OUT)
  ZTHALF_QUERY_ENTRIES(ZTHALF_VISIT_QUERY)
  ZTHALF_BINARY_ENTRIES(ZTHALF_VISIT_BINARY)
  ZTHALF_REMAINDER_ENTRIES(ZTHALF_VISIT_BINARY)
  ZTHALF_SIMPLE_REDUCTION_ENTRIES(ZTHALF_VISIT_SIMPLE_REDUCTION)
  ZTHALF_COMPARISON_ENTRIES(ZTHALF_VISIT_COMPARISON)
  ZTHALF_FMA_ENTRIES(ZTHALF_VISIT_TERNARY)
  ZTHALF_PRODUCT_ENTRIES(ZTHALF_VISIT_PRODUCT)
}

#undef ZTHALF_VISIT
#undef ZTHALF_VISIT_UNARY
#undef ZTHALF_VISIT_EARLY_EXIT
#undef ZTHALF_VISIT_TWO_OUT
#undef ZTHALF_VISIT_QUERY
#undef ZTHALF_VISIT_BINARY
#undef ZTHALF_VISIT_COMPARISON
#undef ZTHALF_VISIT_TERNARY
#undef ZTHALF_VISIT_PRODUCT
#undef ZTHALF_VISIT_SIMPLE_REDUCTION

}  // namespace facade_rows

using facade_rows::forEachFacadeFunction;

// Puts another function into an entry for as long as it lives.
template <class Function>
class replacedEntry {
 public:
  replacedEntry(Function*& entry, Function* replacement) : entry_(entry), original_(entry) { entry_ = replacement; }
  ~replacedEntry() { entry_ = original_; }
  replacedEntry(replacedEntry const&) = delete;
  replacedEntry& operator=(replacedEntry const&) = delete;

 private:
  Function*& entry_;
  Function* original_;
};

}  // namespace zthalf::testing
