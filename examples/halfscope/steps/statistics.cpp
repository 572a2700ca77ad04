// Step 5: mean, minimum and maximum of each column as the library's reductions find them in half, missing values left
// out. What does the type that sums are kept in cost?
#include "steps/statistics.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <optional>

#include "half_matrix.h"
#include "number.h"
#include "steps/deviations.h"
#include "words.h"

namespace halfscope {

namespace {

// The first of the extreme values that `isBetter` looks for, counted from 1; 0 where nobody knows which one of several
// numbers beyond double it is.
template <class IsBetter>
std::size_t rowOfExtreme(numericColumn const& c, IsBetter isBetter) {
  const std::size_t rows = c.values.size();
  std::size_t best = rows;
  for (std::size_t i = 0; i < rows; ++i) {
    if (!std::isnan(c.values[i]) && (best == rows || isBetter(c.values[i], c.values[best]))) best = i;
  }
  const double magnitude = std::abs(c.values[best]);
  const bool isUnsure = c.beyond > 1 && (magnitude == std::numeric_limits<double>::max() ||
                                         magnitude == std::numeric_limits<double>::denorm_min());
  return isUnsure ? 0 : best + 1;
}

// As meanOf, but infinities count as they do in the library; nothing where the size of a number is not known.
std::optional<double> fullMeanOf(numericColumn const& c) {
  double infinities = 0;
  bool isKnown = true;
  for (const double value : c.values) {
    infinities += std::isinf(value) ? value : 0.0;
    isKnown = isKnown && !(c.beyond > 0 && std::abs(value) == std::numeric_limits<double>::max());
  }
  if (infinities != 0) return infinities;
  if (!isKnown) return std::nullopt;
  return meanOf(c.values.data(), c.values.size());
}

std::vector<columnStatistics> examine(tablePart const& part) {
  const halfMatrix halves = toHalf(part.values);
  const std::size_t count = part.values.columns;
  matrix mean(1, count);
  std::vector<bool> isMeanKnown;
  for (std::size_t j = 0; j < count; ++j) {
    const auto found = fullMeanOf(part.columns[j]);
    isMeanKnown.push_back(found.has_value());
    mean.cells[j] = found.value_or(std::nan(""));
  }
  const matrix halfSums = fromHalf(columnMeans(halves, sumsIn::half));
  const matrix singleSums = fromHalf(columnMeans(halves, sumsIn::single));
  const matrix doubleSums = columnMeansInDouble(halves);
  const matrix halfError = ulpDistance(halfSums, mean);
  const matrix singleError = ulpDistance(singleSums, mean);
  const matrix doubleError = ulpDistance(doubleSums, mean);
  const extremes low = columnMinima(halves), high = columnMaxima(halves);
  const matrix minimum = fromHalf(low.values), maximum = fromHalf(high.values);
  std::vector<columnStatistics> columns;
  for (std::size_t j = 0; j < count; ++j) {
    columnStatistics c;
    c.name = part.columns[j].name;
    c.mean = mean.cells[j];
    c.isMeanKnown = isMeanKnown[j];
    c.halfSums = {halfSums.cells[j], halfError.cells[j]};
    c.singleSums = {singleSums.cells[j], singleError.cells[j]};
    c.doubleSums = {doubleSums.cells[j], doubleError.cells[j]};
    c.minimum = {minimum.cells[j], static_cast<std::size_t>(low.rows.cells[j]),
                 rowOfExtreme(part.columns[j], [](double a, double b) { return a < b; })};
    c.maximum = {maximum.cells[j], static_cast<std::size_t>(high.rows.cells[j]),
                 rowOfExtreme(part.columns[j], [](double a, double b) { return a > b; })};
    columns.push_back(std::move(c));
  }
  return columns;
}

std::string notice(std::vector<columnStatistics> const& columns) {
  columnStatistics const* worst = nullptr;
  double largestSingle = 0;
  long long fitting = 0, fittingInSingle = 0;
  for (auto const& c : columns) {
    if (!c.meanFits()) continue;
    ++fitting;
    fittingInSingle += std::isfinite(c.singleSums.mean);
    if (std::isfinite(c.singleSums.mean)) largestSingle = std::max(largestSingle, c.singleSums.ulps);
    if (std::isfinite(c.halfSums.mean) && (worst == nullptr || c.halfSums.ulps > worst->halfSums.ulps)) worst = &c;
  }
  const auto overflowing =
      namesOf(columns, [](auto const& c) { return c.meanFits() && !std::isfinite(c.halfSums.mean); });
  std::string text;
  if (!overflowing.empty())
    addSentence(text, "Sums in half run beyond 65504 in " + nameList(overflowing) + ", whose mean would fit.");
  if (worst != nullptr && worst->halfSums.ulps > 0.5)
    addSentence(text, "Rounding every sum to half takes the mean of " + nameInText(worst->name) + " " +
                          ulpText(worst->halfSums.ulps) + " ulp away from " + valueText(worst->mean) + ", to " +
                          valueText(worst->halfSums.mean) + ".");
  if (fittingInSingle > 0)
    addSentence(text, "With sums in single " +
                          std::string(fitting == 1                 ? "the mean that fits"
                                      : fittingInSingle == fitting ? "every mean that fits"
                                                                   : "every mean that stays finite") +
                          " " + nearnessText(largestSingle, "the true one") + ".");
  return text;
}

std::vector<heading> headings() {
  return {{"column", "column", "", 0},
          {"mean", "mean", "of the file", 2},
          {"mean_half_sums", "mean", "half sums", 1},
          {"mean_single_sums", "mean", "single sums", 7},
          {"mean_double_sums", "mean", "double sums", 9},
          {"error_ulp_half_sums", "ulp off", "half sums", 1},
          {"error_ulp_single_sums", "ulp off", "single sums", 1},
          {"error_ulp_double_sums", "ulp off", "double sums", 8},
          {"minimum", "min", "as half", 11},
          {"minimum_row", "min row", "as half", 10},
          {"minimum_row_in_file", "min row", "in file", 10},
          {"maximum", "max", "as half", 5},
          {"maximum_row", "max row", "as half", 4},
          {"maximum_row_in_file", "max row", "in file", 4}};
}

cell rowCell(std::size_t row, bool remarkable = false) {
  return row == 0 ? noCell() : countCell(static_cast<long long>(row), remarkable);
}

std::vector<cell> row(columnStatistics const& c) {
  const auto meanCell = [&](sumResult const& r) {
    cell shown = valueCell(r.mean);
    shown.remarkable = c.meanFits() && !std::isfinite(r.mean);
    return shown;
  };
  const auto errorCell = [&](sumResult const& r) {
    return std::isfinite(r.mean) && std::isfinite(c.mean) ? ulpCell(r.ulps, r.ulps > 1) : noCell();
  };
  return {textCell(c.name),
          c.isMeanKnown ? valueCell(c.mean) : noCell(),
          meanCell(c.halfSums),
          meanCell(c.singleSums),
          meanCell(c.doubleSums),
          errorCell(c.halfSums),
          errorCell(c.singleSums),
          errorCell(c.doubleSums),
          valueCell(c.minimum.value),
          rowCell(c.minimum.row, c.minimum.row != c.minimum.rowInFile),
          rowCell(c.minimum.rowInFile),
          valueCell(c.maximum.value),
          rowCell(c.maximum.row, c.maximum.row != c.maximum.rowInFile),
          rowCell(c.maximum.rowInFile)};
}

}  // namespace

bool columnStatistics::meanFits() const { return std::isfinite(mean) && std::abs(mean) < 65520; }

std::vector<columnStatistics> statisticsOf(table const& t) {
  std::vector<columnStatistics> found;
  forWholeColumns(t, "means of " + t.name, [&](tablePart const& part) {
    for (columnStatistics& c : examine(part)) found.push_back(std::move(c));
  });
  return found;
}

section statisticsSection(std::vector<columnStatistics> const& columns) {
  section s;
  s.key = "statistics";
  s.title = "Column by column in half: means by three kinds of sums, least and largest values";
  s.rowsKey = "columns";
  s.headings = headings();
  for (auto const& c : columns) s.rows.push_back(row(c));
  s.notice = notice(columns);
  return s;
}

}  // namespace halfscope
