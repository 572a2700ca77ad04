// All entries of the table as data, read from the entry list.
#pragma once

#include "zthalf/detail/entries.h"
#include "zthalf/half_extrema.h"
#include "zthalf/half_ops.h"
#include "zthalf/half_ptr.h"
#include "zthalf/half_vector.h"

namespace zthalf::testing {

namespace table_rows {

namespace element = half::element;
namespace facade_element = half_vector::element;

// A facade function has the parameters of its entry, with half_t for the stored types.
#define ZTHALF_VISIT_UNARY(entry, facade, In, Out, ...)   \
  visit(#entry, half_ptr::entry##Ptr, &half::__VA_ARGS__, \
        static_cast<half_ptr::unary_entry<facade_element::In, facade_element::Out>*>(&half_vector::facade));
#define ZTHALF_VISIT_QUERY(entry, facade, In, instance) \
  visit(#entry, half_ptr::entry##Ptr, &half::instance,  \
        static_cast<half_ptr::query_entry<facade_element::In>*>(&half_vector::facade));
#define ZTHALF_VISIT_BINARY(op, Left, Right, Out)                                                                 \
  visit(#op #Left #Right, half_ptr::op##Left##Right##Ptr, &half::op<element::Left, element::Right, element::Out>, \
        static_cast<half_ptr::binary_entry<facade_element::Left, facade_element::Right, facade_element::Out>*>(   \
            &half_vector::op));
#define ZTHALF_VISIT_COMPARISON(entry, op, Left, Right)                         \
  visit(#entry, half_ptr::entry##Ptr, &half::op<element::Left, element::Right>, \
        static_cast<half_ptr::binary_entry<facade_element::Left, facade_element::Right, bool>*>(&half_vector::op));
#define ZTHALF_VISIT_TERNARY(op, A, B, C, Out)                                                                       \
  visit(#op #A #B #C, half_ptr::op##A##B##C##Ptr, &half::op<element::A, element::B, element::C, element::Out>,       \
        static_cast<                                                                                                 \
            half_ptr::ternary_entry<facade_element::A, facade_element::B, facade_element::C, facade_element::Out>*>( \
            &half_vector::op));

#define ZTHALF_VISIT_CHOSEN(op, Left, Right, Out)                                                                 \
  visit(#op #Left #Right, half_ptr::op##Left##Right##Ptr, &half::op<element::Left, element::Right, element::Out>, \
        nullptr);
#define ZTHALF_VISIT_EXTREMUM(entry, shape, Element, Accumulator, function)             \
  visit(#entry, half_ptr::entry##Ptr,                                                   \
        static_cast<half_ptr::shape##_entry<element::Element, element::Element>*>(      \
            &half::function<element::Element, element::Element, element::Accumulator>), \
        nullptr);

// visit(name, entry, implementation, facade function) for every entry, where entry is the table's own variable. The
// facade function is null where the entry is one of several that a function chooses among.
template <class Visit>
void forEachEntry(Visit visit) {
  ZTHALF_UNARY_ENTRIES(ZTHALF_VISIT_UNARY)
  ZTHALF_QUERY_ENTRIES(ZTHALF_VISIT_QUERY)
  ZTHALF_BINARY_ENTRIES(ZTHALF_VISIT_BINARY)
  ZTHALF_COMPARISON_ENTRIES(ZTHALF_VISIT_COMPARISON)
  ZTHALF_FMA_ENTRIES(ZTHALF_VISIT_TERNARY)
  ZTHALF_CHOSEN_BINARY_ENTRIES(ZTHALF_VISIT_CHOSEN)
  ZTHALF_EXTREMUM_REDUCTION_ENTRIES(ZTHALF_VISIT_EXTREMUM)
}

#undef ZTHALF_VISIT_UNARY
#undef ZTHALF_VISIT_QUERY
#undef ZTHALF_VISIT_BINARY
#undef ZTHALF_VISIT_COMPARISON
#undef ZTHALF_VISIT_TERNARY
#undef ZTHALF_VISIT_CHOSEN
#undef ZTHALF_VISIT_EXTREMUM

}  // namespace table_rows

using table_rows::forEachEntry;

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
