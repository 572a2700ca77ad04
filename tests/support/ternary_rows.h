// The ternary rows of the entry list as data: the three roads to each operation.
#pragma once

#include "tests/support/shapes.h"
#include "tests/support/unary_rows.h"
#include "zthalf/detail/entries.h"
#include "zthalf/half_ops.h"
#include "zthalf/half_ptr.h"
#include "zthalf/half_vector.h"

namespace zthalf::testing {

template <class A, class B, class C, class Out>
struct ternaryRow {
  using first = A;
  using second = B;
  using third = C;
  using output = Out;
  using pass = half_ptr::ternary_entry<A, B, C, Out> *;

  char const *name;
  pass facade;     // half_vector::...
  pass entry;      // through half_ptr::...Ptr
  pass operation;  // half::...

  static void call(pass road, A *a, B *b, C *c, Out *d, tripleShapes const &shapes) {
    road(a, b, c, d, countOf(shapes.a), shapes.a.size(), shapes.a.data(), countOf(shapes.b), shapes.b.size(),
         shapes.b.data(), countOf(shapes.c), shapes.c.size(), shapes.c.data(), countOf(shapes.out), shapes.out.size(),
         shapes.out.data());
  }
};

#define ZTHALF_ROW_PARAMETERS(A, B, C, Out)                                                                       \
  element::A *a, element::B *b, element::C *c, element::Out *d, unsigned long na, unsigned long ndimsA,           \
      unsigned long const *dimsA, unsigned long nb, unsigned long ndimsB, unsigned long const *dimsB,             \
      unsigned long nc, unsigned long ndimsC, unsigned long const *dimsC, unsigned long nd, unsigned long ndimsD, \
      unsigned long const *dimsD
#define ZTHALF_ROW_ARGUMENTS \
  stored(a), stored(b), stored(c), stored(d), na, ndimsA, dimsA, nb, ndimsB, dimsB, nc, ndimsC, dimsC, nd, ndimsD, dimsD

#define ZTHALF_VISIT_ROW(op, A, B, C, Out)                                                                        \
  visit(ternaryRow<element::A, element::B, element::C, element::Out>{                                             \
      #op #A #B #C, &half_vector::op,                                                                             \
      [](ZTHALF_ROW_PARAMETERS(A, B, C, Out)) { half_ptr::op##A##B##C##Ptr(ZTHALF_ROW_ARGUMENTS); },              \
      [](ZTHALF_ROW_PARAMETERS(A, B, C, Out)) {                                                                   \
        half::op<half::element::A, half::element::B, half::element::C, half::element::Out>(ZTHALF_ROW_ARGUMENTS); \
      }});

// visit(row) for every ternary row.
template <class Visit>
void forEachTernaryRow(Visit visit) {
  ZTHALF_FMA_ENTRIES(ZTHALF_VISIT_ROW)
}

#undef ZTHALF_VISIT_ROW
#undef ZTHALF_ROW_PARAMETERS
#undef ZTHALF_ROW_ARGUMENTS

}  // namespace zthalf::testing
