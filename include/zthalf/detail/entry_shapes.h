// The signatures of the table's entries, each shape stated once.
#pragma once

namespace half_ptr {

template <class In, class Out>
using unary_entry = void(In*, Out*, unsigned long);

// True when the whole array was done.
template <class In, class Out>
using early_exit_entry = bool(In*, Out*, unsigned long);

template <class In, class Out>
using two_out_entry = void(In*, Out*, Out*, unsigned long);

template <class In>
using query_entry = bool(In*, unsigned long);

template <class Left, class Right, class Out>
using binary_entry = void(Left*, Right*, Out*,                                  //
                          unsigned long, unsigned long, unsigned long const*,   // left: count, dimensions, sizes
                          unsigned long, unsigned long, unsigned long const*,   // right
                          unsigned long, unsigned long, unsigned long const*);  // output

// min and max of a whole array, and along dimensions: sizes, and whether the first one is reduced. The index is written
// beside the value; the last flag of the indexed form is whether it counts in the whole array.
template <class Element>
using whole_extremum_entry = void(Element*, Element*, unsigned long);
template <class Element>
using indexed_whole_extremum_entry = void(Element*, Element*, double*, unsigned long);
template <class Element>
using extremum_entry = void(Element*, Element*, unsigned long, unsigned long*, bool);
template <class Element>
using indexed_extremum_entry = void(Element*, Element*, double*, unsigned long, unsigned long*, bool, bool);

}  // namespace half_ptr
