#include "steps/deviations.h"

#include <algorithm>
#include <cmath>

namespace halfscope {

namespace {

columnDeviations examine(std::size_t rows, double const* value, half_t const* deviation, double const* back,
                         double const* exact, half_t const* nearest, double const* ulps) {
  columnDeviations c;
  std::vector<double> distances;
  for (std::size_t i = 0; i < rows; ++i) {
    if (std::isnan(value[i])) continue;
    ++c.values;
    if (!half_scalar::isfinite(deviation[i])) {
      ++c.lost;
      continue;
    }
    c.nearest += deviation[i] == nearest[i];
    c.smallest = std::min(c.smallest, back[i]);
    c.largest = std::max(c.largest, back[i]);
    c.largestError = std::max(c.largestError, std::abs(back[i] - exact[i]));
    c.largestUlps = std::max(c.largestUlps, ulps[i]);
    distances.push_back(ulps[i]);
  }
  if (!distances.empty()) {
    const auto middle = distances.begin() + static_cast<std::ptrdiff_t>(distances.size() / 2);
    std::nth_element(distances.begin(), middle, distances.end());
    c.typicalUlps = *middle;
  }
  return c;
}

}  // namespace

double meanOf(double const* value, std::size_t rows) {
  double count = 0;
  double sum = 0;
  double sumOfShares = 0;  // cannot overflow, but is rounded more often
  for (std::size_t i = 0; i < rows; ++i) count += std::isfinite(value[i]);
  for (std::size_t i = 0; i < rows; ++i) {
    if (!std::isfinite(value[i])) continue;
    sum += value[i];
    sumOfShares += value[i] / count;
  }
  return count == 0 ? 0.0 : std::isfinite(sum) ? sum / count : sumOfShares;
}

matrix meansOf(matrix const& values) {
  matrix means(1, values.columns);
  for (std::size_t j = 0; j < values.columns; ++j) means.cells[j] = meanOf(values.column(j), values.rows);
  return means;
}

matrix deviationsFrom(matrix const& means, matrix const& values) {
  matrix deviations(values.rows, values.columns);
  for (std::size_t j = 0; j < values.columns; ++j) {
    for (std::size_t i = 0; i < values.rows; ++i) deviations.column(j)[i] = values.column(j)[i] - means.cells[j];
  }
  return deviations;
}

std::vector<columnDeviations> compare(table const& t, halfMatrix const& deviations, matrix const& exact) {
  const matrix back = fromHalf(deviations);
  const halfMatrix nearest = toHalf(exact);
  const matrix ulps = ulpDistance(deviations, exact);
  std::vector<columnDeviations> columns;
  for (std::size_t j = 0; j < t.columnNames.size(); ++j) {
    columns.push_back(examine(t.values.rows, t.values.column(j), deviations.column(j), back.column(j), exact.column(j),
                              nearest.column(j), ulps.column(j)));
    columns.back().name = t.columnNames[j];
  }
  return columns;
}

}  // namespace halfscope
