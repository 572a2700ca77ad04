// Straight lines by least squares, in units of a power of two that keeps every square in range.
#include "steps/trends.h"

#include <algorithm>
#include <cmath>

#include "number.h"

namespace halfscope {

namespace {

// A line in the units of the column: middle + slope * (row - centre).
struct straightLine {
  double middle = 0;
  double slope = 0;
  double centre = 0;

  double at(std::size_t row) const { return middle + slope * (static_cast<double>(row) - centre); }
};

// Through the values that are not NaN; the missing ones have no weight.
straightLine fit(std::vector<double> const& value) {
  double count = 0, rowSum = 0, valueSum = 0;
  for (std::size_t i = 0; i < value.size(); ++i) {
    if (std::isnan(value[i])) continue;
    ++count;
    rowSum += static_cast<double>(i);
    valueSum += value[i];
  }
  straightLine line;
  if (count == 0) return line;
  line.middle = valueSum / count;
  line.centre = rowSum / count;
  double products = 0, squares = 0;
  for (std::size_t i = 0; i < value.size(); ++i) {
    if (std::isnan(value[i])) continue;
    const double x = static_cast<double>(i) - line.centre;
    products += x * (value[i] - line.middle);
    squares += x * x;
  }
  if (squares > 0) line.slope = products / squares;
  return line;
}

// The exponent of the largest magnitude, 0 where there is none.
int exponentOf(double const* value, std::size_t rows) {
  double largest = 0;
  for (std::size_t i = 0; i < rows; ++i) {
    if (isInRange(value[i])) largest = std::max(largest, std::abs(value[i]));
  }
  int exponent = 0;
  std::frexp(largest, &exponent);
  return exponent;
}

}  // namespace

detrended withoutTrends(matrix const& values) {
  constexpr double noise = 1e-9;  // of the largest magnitude: what is left of a line that was rounded
  const std::size_t rows = values.rows;
  detrended d{matrix(rows, values.columns), matrix(rows, values.columns), {}, {}, {}, {}};
  std::vector<double> scaled(rows);
  for (std::size_t j = 0; j < values.columns; ++j) {
    double const* value = values.column(j);
    const int exponent = exponentOf(value, rows);
    bool finite = true;
    for (std::size_t i = 0; i < rows; ++i) {
      finite = finite && (std::isnan(value[i]) || isInRange(value[i]));
      scaled[i] = isInRange(value[i]) ? std::ldexp(value[i], -exponent) : std::nan("");
    }
    const straightLine line = fit(scaled);
    double largest = 0, squares = 0, count = 0;
    for (std::size_t i = 0; i < rows; ++i) {
      const double deviation = scaled[i] - line.at(i);
      d.lines.column(j)[i] = std::ldexp(line.at(i), exponent);
      d.deviations.column(j)[i] = deviation;
      if (std::isnan(deviation)) continue;
      largest = std::max(largest, std::abs(deviation));
      squares += deviation * deviation;
      ++count;
    }
    d.exponents.push_back(exponent);
    d.trends.push_back(finite ? std::ldexp(line.slope, exponent) : std::nan(""));
    d.meanSquares.push_back(squares / count);
    d.varies.push_back(finite && count > 2 && largest > noise);
  }
  return d;
}

}  // namespace halfscope
