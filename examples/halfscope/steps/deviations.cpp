#include "steps/deviations.h"

#include <algorithm>
#include <cmath>

#include "number.h"

namespace halfscope {

double meanOf(double const* value, std::size_t rows) {
  double count = 0, sum = 0;
  for (std::size_t i = 0; i < rows; ++i) {
    count += isInRange(value[i]);
    sum += isInRange(value[i]) ? value[i] : 0.0;
  }
  if (count == 0) return 0;
  if (std::isfinite(sum)) return sum / count;
  double sumOfShares = 0;  // cannot overflow, but is rounded more often
  for (std::size_t i = 0; i < rows; ++i) sumOfShares += isInRange(value[i]) ? value[i] / count : 0.0;
  return sumOfShares;
}

std::vector<double> meansOf(table const& t) {
  std::vector<double> means;
  for (numericColumn const& c : t.columns) means.push_back(meanOf(c.values.data(), t.rows));
  return means;
}

matrix meansIn(tablePart const& part, table const& t, std::vector<double> const& means) {
  matrix row(1, part.values.columns);
  const auto first = means.begin() + (part.columns - t.columns.data());
  std::copy(first, first + static_cast<std::ptrdiff_t>(row.columns), row.cells.begin());
  return row;
}

matrix deviationsFrom(matrix const& means, matrix const& values) {
  matrix deviations(values.rows, values.columns);
  for (std::size_t j = 0; j < values.columns; ++j) {
    for (std::size_t i = 0; i < values.rows; ++i) deviations.column(j)[i] = values.column(j)[i] - means.cells[j];
  }
  return deviations;
}

void deviationGatherer::add(std::size_t rows, double const* value, double const* back, double const* exact,
                            double const* nearest, double const* ulps) {
  columnDeviations& c = columns_.back();
  for (std::size_t i = 0; i < rows; ++i) {
    if (std::isnan(value[i])) continue;
    ++c.values;
    if (!std::isfinite(back[i])) {
      ++c.lost;
      continue;
    }
    c.nearest += back[i] == nearest[i];
    c.smallest = std::min(c.smallest, back[i]);
    c.largest = std::max(c.largest, back[i]);
    c.largestError = std::max(c.largestError, std::abs(back[i] - exact[i]));
    c.largestUlps = std::max(c.largestUlps, ulps[i]);
    distances_.push_back(ulps[i]);
  }
}

void deviationGatherer::add(tablePart const& part, halfMatrix const& deviations, matrix const& exact) {
  const matrix back = fromHalf(deviations);
  const matrix nearest = fromHalf(toHalf(exact));
  const matrix ulps = ulpDistance(deviations, exact);
  for (std::size_t j = 0; j < exact.columns; ++j) {
    if (part.firstRow == 0) {
      columns_.emplace_back().name = part.columns[j].name;
      distances_.clear();
      distances_.reserve(part.columns[j].values.size());
    }
    add(exact.rows, part.values.column(j), back.column(j), exact.column(j), nearest.column(j), ulps.column(j));
    if (!part.hasLastRow || distances_.empty()) continue;
    const auto middle = distances_.begin() + static_cast<std::ptrdiff_t>(distances_.size() / 2);
    std::nth_element(distances_.begin(), middle, distances_.end());
    columns_.back().typicalUlps = *middle;
  }
}

}  // namespace halfscope
