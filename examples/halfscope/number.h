// What a cell says: a number, a missing value, or neither. The same in every locale.
#pragma once

#include <cmath>
#include <limits>
#include <string_view>

namespace halfscope {

struct reading {
  enum class kind { number, missing, text };

  kind is = kind::text;
  double value = std::numeric_limits<double>::quiet_NaN();  // of a number
  bool beyond = false;                                      // whether double has no place for it
};

// Decimal numbers with an optional sign and exponent, and the words inf and infinity in any case. Nothing at all, NA
// and nan are missing values.
//
// What is said about a number later must be true of what stands in the file, so a number is never read as something
// that is easier for half: beyond the range of double it becomes the largest or the smallest double, not an infinity
// or zero, which are halves; and where the nearest double is a half but not the number, its neighbour is taken.
reading readCell(std::string_view text);

// Finite, and not a number whose size got lost beyond the end of double.
inline bool isInRange(double value) { return std::abs(value) < std::numeric_limits<double>::max(); }

}  // namespace halfscope
