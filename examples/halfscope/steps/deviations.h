// What the steps that subtract a mean have in common: the mean, and how good the differences are.
#pragma once

#include <limits>
#include <string>
#include <vector>

#include "half_matrix.h"
#include "table.h"

namespace halfscope {

// The mean of the values that are there and finite; 0 where none is.
double meanOf(double const* value, std::size_t rows);

// The means of all columns, 1 by m, and the deviations from them, in double.
matrix meansOf(matrix const& values);
matrix deviationsFrom(matrix const& means, matrix const& values);

// Deviations of one column in half beside those in double.
struct columnDeviations {
  std::string name;
  long long values = 0;
  long long nearest = 0;  // the half nearest to the deviation in double
  long long lost = 0;     // not a number or infinite
  double smallest = std::numeric_limits<double>::infinity();
  double largest = -std::numeric_limits<double>::infinity();
  double largestError = 0;
  double typicalUlps = 0;  // the median
  double largestUlps = 0;

  bool any() const { return lost < values; }
};

// One for each column of the table, whose deviations are `exact` in double.
std::vector<columnDeviations> compare(table const& t, halfMatrix const& deviations, matrix const& exact);

}  // namespace halfscope
