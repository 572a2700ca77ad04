// The comparison rows of the entry list as data, and what each must answer: a comparison of numbers in a type that
// holds all of them exactly.
#pragma once

#include <complex>
#include <limits>
#include <type_traits>

#include "tests/support/binary_rows.h"
#include "tests/support/reference.h"

namespace zthalf::testing {

enum class relation { eq, ne, gt, ge, lt, le };

// Every half, float, double and integer of 64 bits is one of these.
using exactNumber = long double;
static_assert(std::numeric_limits<exactNumber>::digits >= 64);

template <class T>
exactNumber realNumber(T x) {
  if constexpr (halfElement<T>) {
    return reference::widenedToDouble(x.bits);
  } else if constexpr (std::is_same_v<T, logicalByte>) {
    return x.byte == 0 ? 0 : 1;
  } else {
    return static_cast<exactNumber>(x);
  }
}
template <class T>
exactNumber realNumber(std::complex<T> z) {
  return realNumber(z.real());
}

template <class T>
exactNumber imaginaryNumber(T) {
  return 0;
}
template <class T>
exactNumber imaginaryNumber(std::complex<T> z) {
  return realNumber(z.imag());
}

template <class Left, class Right>
bool holds(relation asked, Left x, Right y) {
  const exactNumber a = realNumber(x), b = realNumber(y);
  const bool areEqual = a == b && imaginaryNumber(x) == imaginaryNumber(y);
  switch (asked) {
    case relation::eq:
      return areEqual;
    case relation::ne:
      return !areEqual;
    case relation::gt:
      return a > b;
    case relation::ge:
      return a > b || a == b;
    case relation::lt:
      return a < b;
    default:
      return a < b || a == b;
  }
}

template <class Left, class Right>
struct comparisonRow : binaryRow<Left, Right, bool> {
  relation asked;
};

#define ZTHALF_ROW_PARAMETERS(Left, Right)                                                                          \
  element::Left *a, element::Right *b, bool *c, unsigned long na, unsigned long ndimsA, unsigned long const *dimsA, \
      unsigned long nb, unsigned long ndimsB, unsigned long const *dimsB, unsigned long nc, unsigned long ndimsC,   \
      unsigned long const *dimsC
#define ZTHALF_ROW_ARGUMENTS stored(a), stored(b), c, na, ndimsA, dimsA, nb, ndimsB, dimsB, nc, ndimsC, dimsC

#define ZTHALF_VISIT_ROW(entryName, op, Left, Right)                                               \
  visit(comparisonRow<element::Left, element::Right>{                                              \
      {#entryName, &half_vector::op,                                                               \
       [](ZTHALF_ROW_PARAMETERS(Left, Right)) { half_ptr::entryName##Ptr(ZTHALF_ROW_ARGUMENTS); }, \
       [](ZTHALF_ROW_PARAMETERS(Left, Right)) {                                                    \
         half::op<half::element::Left, half::element::Right>(ZTHALF_ROW_ARGUMENTS);                \
       }},                                                                                         \
      relation::op});

// visit(row) for every comparison row.
template <class Visit>
void forEachComparisonRow(Visit visit) {
  ZTHALF_COMPARISON_ENTRIES(ZTHALF_VISIT_ROW)
}

#undef ZTHALF_VISIT_ROW
#undef ZTHALF_ROW_PARAMETERS
#undef ZTHALF_ROW_ARGUMENTS

}  // namespace zthalf::testing
