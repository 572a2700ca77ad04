// Step 1: every column to half and back.
#pragma once

#include <limits>
#include <string>
#include <vector>

#include "section.h"
#include "table.h"

namespace halfscope {

inline constexpr double largestHalf = 65504;

struct columnRounding {
  std::string name;
  long long values = 0;
  long long missing = 0;
  long long beyond = 0;  // out of the range of double
  double smallest = std::numeric_limits<double>::infinity();
  double largest = -std::numeric_limits<double>::infinity();
  long long exact = 0;
  long long overflowed = 0;  // finite in the file, infinite as a half
  long long subnormal = 0;
  long long vanished = 0;  // zero as a half, but not in the file
  long long distinctValues = 0;
  long long distinctHalves = 0;
  double largestError = 0;  // the errors are those of the values that stayed finite
  double largestUlps = 0;
  double meanUlps = 0;
  long long finite = 0;
  double spacing = 0;  // of the halves at the largest one that stayed finite

  bool isExact() const { return exact == values; }
  long long lost() const { return overflowed + vanished; }
  long long merged() const { return distinctValues - distinctHalves; }  // fallen together with another value
};

std::vector<columnRounding> roundingOf(table const& t);

section roundingSection(std::vector<columnRounding> const& columns);

}  // namespace halfscope
