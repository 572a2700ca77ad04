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

template <class In, class Out>
using reduction_entry = void(In*, Out*, unsigned long, unsigned long*, bool);  // dimensions, sizes, first one reduced

template <class A, class B, class C, class Out>
using ternary_entry = void(A*, B*, C*, Out*,                                     //
                           unsigned long, unsigned long, unsigned long const*,   // a: count, dimensions, sizes
                           unsigned long, unsigned long, unsigned long const*,   // b
                           unsigned long, unsigned long, unsigned long const*,   // c
                           unsigned long, unsigned long, unsigned long const*);  // output

// Rows of the left operand, inner dimension, columns of the right one.
template <class Left, class Right, class Out>
using product_entry = void(Left*, Right*, Out*, unsigned long, unsigned long, unsigned long);

// The routines after BLAS and LAPACK; half_blas.h names the parameters.
template <class Half>
using hgemm_entry = void(char*, char*, unsigned long, unsigned long, unsigned long, Half, Half*, unsigned long, Half*,
                         unsigned long, Half, Half*, unsigned long);
template <class Half>
using hscal_entry = void(unsigned long, Half, Half*, unsigned long);
template <class Half>
using ihamax_entry = unsigned long(unsigned long, Half*, unsigned long);
template <class Half>
using hlaswp_entry = void(unsigned long, Half*, unsigned long, unsigned long, unsigned long, unsigned long*, int);
template <class Half>
using htrsm_entry = void(char*, char*, char*, char*, unsigned long, unsigned long, Half, Half*, unsigned long, Half*,
                         unsigned long);
template <class Half>
using hgetrf_entry = void(unsigned long, unsigned long, Half*, unsigned long, unsigned long*, int&);

// The index of the result beside it; the last flag is whether it counts in the whole array.
template <class In, class Out>
using indexed_whole_entry = void(In*, Out*, double*, unsigned long);
template <class In, class Out>
using indexed_reduction_entry = void(In*, Out*, double*, unsigned long, unsigned long*, bool, bool);

}  // namespace half_ptr
