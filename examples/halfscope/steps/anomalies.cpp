// Step 2: the deviations from each column's mean, all columns in one addition by implicit expansion, and how good they
// are beside the same thing in double.
#include <algorithm>
#include <cmath>
#include <limits>

#include "half_matrix.h"
#include "steps/steps.h"
#include "words.h"

namespace halfscope {

namespace {

// The mean of the values that are there and finite; 0 where none is.
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

struct columnAnomalies {
  std::string name;
  double mean = 0;
  double offset = 0;  // what was added, as a half
  long long values = 0;
  long long nearest = 0;  // the half nearest to the deviation in double
  long long lost = 0;     // not a number or infinite
  double smallest = std::numeric_limits<double>::infinity();
  double largest = -std::numeric_limits<double>::infinity();
  double largestError = 0;
  double typicalUlps = 0;  // the median
  double largestUlps = 0;
};

columnAnomalies examine(std::size_t rows, double const* value, half_t const* anomaly, double const* back,
                        double const* exact, half_t const* nearest, double const* ulps) {
  columnAnomalies c;
  std::vector<double> distances;
  for (std::size_t i = 0; i < rows; ++i) {
    if (std::isnan(value[i])) continue;
    ++c.values;
    if (!half_scalar::isfinite(anomaly[i])) {
      ++c.lost;
      continue;
    }
    c.nearest += anomaly[i] == nearest[i];
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

std::string notice(std::vector<columnAnomalies> const& columns) {
  std::vector<std::string> losing;
  long long lost = 0;
  long long kept = 0;
  long long nearest = 0;
  columnAnomalies const* worst = nullptr;  // by its typical error
  for (auto const& c : columns) {
    if (c.lost > 0) losing.push_back(c.name);
    lost += c.lost;
    kept += c.values - c.lost;
    nearest += c.nearest;
    if (c.lost < c.values && (worst == nullptr || c.typicalUlps > worst->typicalUlps)) worst = &c;
  }
  std::string text;
  if (lost > 0)
    addSentence(text, nameList(losing) + (losing.size() == 1 ? " loses " : " lose ") + countText(lost) +
                          (lost == 1 ? " deviation" : " deviations") +
                          ": beyond half there is only infinity, and infinity minus infinity is not a number.");
  if (worst == nullptr) return text;
  if (worst->typicalUlps > 0.5)
    addSentence(text, nameInText(worst->name) + (columns.size() > 1 ? " shows it most: s" : ": s") +
                          "mall deviations carry the rounding error of values near " + valueText(worst->mean) +
                          ", off by up to " + valueText(worst->largestError) + " and typically by " +
                          ulpText(worst->typicalUlps) +
                          " units in their own last place. Subtract before rounding to half where that matters.");
  else if (nearest == kept)
    addSentence(text, "Every deviation is the nearest half to the true one.");
  else
    addSentence(text, shareText(nearest, kept) + "% of the deviations are the nearest halves to the true ones.");
  return text;
}

std::vector<heading> headings() {
  return {{"column", "column", "", 0},
          {"mean", "mean", "in double", 6},
          {"offset", "offset", "as half", 3},
          {"minimum", "min", "result", 2},
          {"maximum", "max", "result", 2},
          {"nearest", "nearest", "%", 1},
          {"lost", "lost", "inf, NaN", 2, true},
          {"largest_error", "max err", "in value", 3},
          {"typical_error_ulp", "typical err", "ulp", 1},
          {"largest_error_ulp", "max err", "ulp", 5}};
}

std::vector<cell> row(columnAnomalies const& c) {
  const bool any = c.lost < c.values;
  return {textCell(c.name),
          valueCell(c.mean),
          valueCell(c.offset),
          any ? valueCell(c.smallest) : noCell(),
          any ? valueCell(c.largest) : noCell(),
          shareCell(c.nearest, c.values),
          countCell(c.lost, c.lost > 0),
          any ? valueCell(c.largestError) : noCell(),
          any ? ulpCell(c.typicalUlps) : noCell(),
          any ? ulpCell(c.largestUlps) : noCell()};
}

}  // namespace

section anomalyStep(table const& t) {
  const std::size_t rows = t.values.rows;
  const std::size_t count = t.values.columns;
  matrix means(1, count), offsets(1, count), exact(rows, count);
  for (std::size_t j = 0; j < count; ++j) {
    means.cells[j] = meanOf(t.values.column(j), rows);
    offsets.cells[j] = -means.cells[j];
    for (std::size_t i = 0; i < rows; ++i) exact.column(j)[i] = t.values.column(j)[i] - means.cells[j];
  }

  const halfMatrix offsetsAsHalf = toHalf(offsets);
  const halfMatrix anomalies = plusRow(toHalf(t.values), offsetsAsHalf);
  const matrix back = fromHalf(anomalies);
  const matrix offsetsBack = fromHalf(offsetsAsHalf);
  const halfMatrix nearest = toHalf(exact);
  const matrix ulps = ulpDistance(anomalies, exact);

  std::vector<columnAnomalies> columns;
  for (std::size_t j = 0; j < count; ++j) {
    columns.push_back(examine(rows, t.values.column(j), anomalies.column(j), back.column(j), exact.column(j),
                              nearest.column(j), ulps.column(j)));
    columns.back().name = t.columnNames[j];
    columns.back().mean = means.cells[j];
    columns.back().offset = offsetsBack.cells[j];
  }

  const std::string shape = countText(static_cast<long long>(rows)) + " x " + std::to_string(count);
  section s;
  s.key = "anomalies";
  s.title = "Minus the column mean, in half: " + shape + " plus 1 x " + std::to_string(count);
  s.rowsKey = "columns";
  s.headings = headings();
  for (auto const& c : columns) s.rows.push_back(row(c));
  s.notice = notice(columns);
  return s;
}

}  // namespace halfscope
