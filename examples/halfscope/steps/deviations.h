// What the steps that subtract a mean have in common: the mean, and how good the differences are.
#pragma once

#include <limits>
#include <string>
#include <utility>
#include <vector>

#include "half_matrix.h"
#include "table.h"

namespace halfscope {

// The mean of the values that are there, finite and in the range of double; 0 where none is.
double meanOf(double const* value, std::size_t rows);

// The means of all columns of a table.
std::vector<double> meansOf(table const& t);

// The means of a part's columns, 1 by m, and the deviations from them, in double.
matrix meansIn(tablePart const& part, table const& t, std::vector<double> const& means);
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

  long long kept() const { return values - lost; }
  bool any() const { return kept() > 0; }
};

// The deviations of a table's columns, part by part.
class deviationGatherer {
 public:
  // The deviations of the next part, which are `exact` in double.
  void add(tablePart const& part, halfMatrix const& deviations, matrix const& exact);

  std::vector<columnDeviations> take() { return std::move(columns_); }

 private:
  void add(std::size_t rows, double const* value, double const* back, double const* exact, double const* nearest,
           double const* ulps);

  std::vector<columnDeviations> columns_;
  std::vector<double> distances_;  // of the last column
};

}  // namespace halfscope
