// Rows of tables of known results. The reason why a row is worth having is printed where it fails.
#pragma once

#include <ostream>

namespace zthalf::testing {

template <class Operand, class Result>
struct known {
  Operand operand;
  Result expected;
  char const* why;
};

template <class First, class Second, class Result>
struct knownPair {
  First first;
  Second second;
  Result expected;
  char const* why;
};

template <class Operand, class Result>
void PrintTo(known<Operand, Result> const& row, std::ostream* out) {
  *out << row.why;
}

template <class First, class Second, class Result>
void PrintTo(knownPair<First, Second, Result> const& row, std::ostream* out) {
  *out << row.why;
}

}  // namespace zthalf::testing
