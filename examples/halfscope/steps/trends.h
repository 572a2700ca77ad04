// Columns without their straight trends, for the search for cycles.
#pragma once

#include <vector>

#include "matrix.h"

namespace halfscope {

struct detrended {
  matrix lines;       // the straight line through each column, by least squares
  matrix deviations;  // of column j from its line, in units of 2^exponents[j], so that no square of one overflows
  std::vector<int> exponents;
  std::vector<double> trends;       // what a line rises by from row to row; NaN for a column with values beyond double
  std::vector<double> meanSquares;  // of the deviations
  std::vector<bool> varies;         // whether a column differs from its line, and has no values beyond double
};

detrended withoutTrends(matrix const& values);

}  // namespace halfscope
