// Step 5: mean, minimum and maximum of each column as the library's reductions find them in half, missing values left
// out. What does the type that sums are kept in cost?
#include <algorithm>
#include <cmath>

#include "half_matrix.h"
#include "steps/deviations.h"
#include "steps/steps.h"
#include "words.h"

namespace halfscope {

namespace {

// Where a column has its first smallest and largest values, counted from 1.
struct places {
  double minimum;
  double maximum;
};

places placesOf(double const* value, std::size_t rows) {
  std::size_t lowest = rows, highest = rows;
  for (std::size_t i = 0; i < rows; ++i) {
    if (std::isnan(value[i])) continue;
    if (lowest == rows || value[i] < value[lowest]) lowest = i;
    if (highest == rows || value[i] > value[highest]) highest = i;
  }
  return {static_cast<double>(lowest + 1), static_cast<double>(highest + 1)};
}

// As meanOf, but infinities count as they do in the library.
double fullMeanOf(double const* value, std::size_t rows) {
  double infinities = 0;
  for (std::size_t i = 0; i < rows; ++i) infinities += std::isinf(value[i]) ? value[i] : 0.0;
  return infinities == 0 ? meanOf(value, rows) : infinities;
}

// The library's results for all columns, each 1 by m, in double for the report.
struct statistics {
  matrix mean;  // in double from the file's values
  matrix halfSums, singleSums, doubleSums;
  matrix halfError, singleError, doubleError;  // of these means, in ulp
  matrix minimum, minimumRow, maximum, maximumRow;
};

statistics examine(matrix const& values) {
  const halfMatrix halves = toHalf(values);
  statistics s;
  s.mean = matrix(1, values.columns);
  for (std::size_t j = 0; j < values.columns; ++j) s.mean.cells[j] = fullMeanOf(values.column(j), values.rows);
  s.halfSums = fromHalf(columnMeans(halves, sumsIn::half));
  s.singleSums = fromHalf(columnMeans(halves, sumsIn::single));
  s.doubleSums = columnMeansInDouble(halves);
  s.halfError = ulpDistance(s.halfSums, s.mean);
  s.singleError = ulpDistance(s.singleSums, s.mean);
  s.doubleError = ulpDistance(s.doubleSums, s.mean);
  const extremes low = columnMinima(halves), high = columnMaxima(halves);
  s.minimum = fromHalf(low.values);
  s.minimumRow = low.rows;
  s.maximum = fromHalf(high.values);
  s.maximumRow = high.rows;
  return s;
}

bool fits(double mean) { return std::isfinite(mean) && std::abs(mean) < 65520; }

std::string notice(table const& t, statistics const& s) {
  std::vector<std::string> overflowing;
  std::size_t worst = t.columnNames.size();
  double largestSingle = 0;
  long long fitting = 0;
  for (std::size_t j = 0; j < t.columnNames.size(); ++j) {
    if (!fits(s.mean.cells[j])) continue;
    ++fitting;
    if (std::isfinite(s.singleSums.cells[j])) largestSingle = std::max(largestSingle, s.singleError.cells[j]);
    if (!std::isfinite(s.halfSums.cells[j]))
      overflowing.push_back(t.columnNames[j]);
    else if (worst == t.columnNames.size() || s.halfError.cells[j] > s.halfError.cells[worst])
      worst = j;
  }
  std::string text;
  if (!overflowing.empty())
    addSentence(text, "Sums in half run beyond 65504 in " + nameList(overflowing) + ", whose mean would fit.");
  if (worst < t.columnNames.size() && s.halfError.cells[worst] > 0.5)
    addSentence(text, "Rounding every sum to half takes the mean of " + nameInText(t.columnNames[worst]) + " " +
                          ulpText(s.halfError.cells[worst]) + " ulp away from " + valueText(s.mean.cells[worst]) +
                          ", to " + valueText(s.halfSums.cells[worst]) + ".");
  if (fitting > 0)
    addSentence(text, "With sums in single " +
                          std::string(fitting == 1 ? "the mean that fits" : "every mean that fits") + " is within " +
                          ulpText(largestSingle) + " ulp of the true one.");
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

cell rowCell(double row, bool remarkable = false) { return countCell(static_cast<long long>(row), remarkable); }

cell errorCell(double error, double result, double mean) {
  return std::isfinite(result) && std::isfinite(mean) ? ulpCell(error, error > 1) : noCell();
}

std::vector<cell> row(std::string const& name, statistics const& s, std::size_t j, places const& file) {
  const double mean = s.mean.cells[j];
  const auto meanCell = [&](double result) {
    cell c = valueCell(result);
    c.remarkable = fits(mean) && !std::isfinite(result);
    return c;
  };
  return {textCell(name),
          valueCell(mean),
          meanCell(s.halfSums.cells[j]),
          meanCell(s.singleSums.cells[j]),
          meanCell(s.doubleSums.cells[j]),
          errorCell(s.halfError.cells[j], s.halfSums.cells[j], mean),
          errorCell(s.singleError.cells[j], s.singleSums.cells[j], mean),
          errorCell(s.doubleError.cells[j], s.doubleSums.cells[j], mean),
          valueCell(s.minimum.cells[j]),
          rowCell(s.minimumRow.cells[j], s.minimumRow.cells[j] != file.minimum),
          rowCell(file.minimum),
          valueCell(s.maximum.cells[j]),
          rowCell(s.maximumRow.cells[j], s.maximumRow.cells[j] != file.maximum),
          rowCell(file.maximum)};
}

}  // namespace

section statisticsStep(table const& t) {
  const statistics found = examine(t.values);
  section s;
  s.key = "statistics";
  s.title = "Column by column in half: means by three kinds of sums, least and largest values";
  s.rowsKey = "columns";
  s.headings = headings();
  for (std::size_t j = 0; j < t.columnNames.size(); ++j)
    s.rows.push_back(row(t.columnNames[j], found, j, placesOf(t.values.column(j), t.values.rows)));
  s.notice = notice(t, found);
  return s;
}

}  // namespace halfscope
