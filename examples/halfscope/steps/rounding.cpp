// Step 1: every column to half and back. What is lost, and how much?
#include <algorithm>
#include <cmath>
#include <limits>

#include "half_matrix.h"
#include "steps/steps.h"
#include "words.h"

namespace halfscope {

namespace {

constexpr half_t smallestNormal{0x0400};
constexpr half_t largestFinite{0x7BFF};

struct columnRounding {
  std::string name;
  long long values = 0;
  long long missing = 0;
  double smallest = std::numeric_limits<double>::infinity();
  double largest = -std::numeric_limits<double>::infinity();
  long long exact = 0;
  long long overflowed = 0;  // finite in the file, infinite as a half
  long long subnormal = 0;
  long long vanished = 0;  // zero as a half, but not in the file
  long long distinctValues = 0;
  long long distinctHalves = 0;
  double largestError = 0;  // the errors are those of the values that stayed finite
  double largestUlps = 0;
  double meanUlps = 0;
  long long finite = 0;
  double spacing = 0;  // of the halves at the largest one that stayed finite
};

template <class T>
long long distinct(std::vector<T> values) {
  std::sort(values.begin(), values.end());
  return std::unique(values.begin(), values.end()) - values.begin();
}

columnRounding examine(std::string const& name, std::size_t rows, double const* value, half_t const* half,
                       double const* back, double const* ulps) {
  columnRounding c;
  c.name = name;
  half_t largestMagnitude{0};
  std::vector<double> present, presentHalves;
  for (std::size_t i = 0; i < rows; ++i) {
    if (std::isnan(value[i])) {
      ++c.missing;
      continue;
    }
    const half_t magnitude = half_scalar::abs(half[i]);
    const bool isZero = magnitude == half_t{0};
    ++c.values;
    present.push_back(value[i]);
    presentHalves.push_back(back[i]);
    c.smallest = std::min(c.smallest, value[i]);
    c.largest = std::max(c.largest, value[i]);
    c.exact += back[i] == value[i];
    c.overflowed += half_scalar::isinf(half[i]) && std::isfinite(value[i]);
    c.subnormal += !isZero && magnitude < smallestNormal;
    c.vanished += isZero && value[i] != 0;
    if (!half_scalar::isfinite(half[i])) continue;
    ++c.finite;
    c.largestError = std::max(c.largestError, std::abs(back[i] - value[i]));
    c.largestUlps = std::max(c.largestUlps, ulps[i]);
    c.meanUlps += ulps[i];
    if (magnitude > largestMagnitude) largestMagnitude = magnitude;
  }
  if (c.finite > 0) c.meanUlps /= static_cast<double>(c.finite);
  c.distinctValues = distinct(std::move(present));
  c.distinctHalves = distinct(std::move(presentHalves));
  c.spacing = half_scalar::impl::convertHalfToDouble(half_scalar::eps(largestMagnitude).bits);
  return c;
}

// The column that shows something most; the first of equals.
template <class Measure>
columnRounding const& worst(std::vector<columnRounding> const& columns, Measure measure) {
  return *std::max_element(columns.begin(), columns.end(),
                           [&](auto const& a, auto const& b) { return measure(a) < measure(b); });
}

double share(long long count, long long whole) {
  return whole == 0 ? 0.0 : static_cast<double>(count) / static_cast<double>(whole);
}

std::string exactColumns(std::vector<columnRounding> const& columns) {
  std::vector<std::string> names;
  for (auto const& c : columns) {
    if (c.exact == c.values) names.push_back(c.name);
  }
  if (names.empty()) return "";
  return nameList(names) + (names.size() == 1 ? " comes" : " come") + " through unchanged.";
}

// The losses in the order in which they matter, each told for the column that shows it most.
std::string notice(std::vector<columnRounding> const& columns) {
  const auto& over = worst(columns, [](auto const& c) { return share(c.overflowed, c.values); });
  const auto& under = worst(columns, [](auto const& c) { return share(c.vanished, c.values); });
  const auto& merged = worst(columns, [](auto const& c) {
    return share(c.distinctValues - c.distinctHalves, c.distinctValues) * (c.finite > 0);
  });
  const auto& error = worst(columns, [](auto const& c) { return c.largestUlps; });
  std::string text;
  if (over.overflowed > 0)
    addSentence(text, nameInText(over.name) + " does not fit: " + someOf(over.overflowed, over.values) +
                          " become infinity, since half ends at " +
                          valueText(half_scalar::impl::convertHalfToDouble(largestFinite.bits)) + ".");
  if (under.vanished > 0)
    addSentence(text, nameInText(under.name) + " fades out: " + someOf(under.vanished, under.values) +
                          " are too small for half and become zero.");
  const bool told = (over.overflowed > 0 && &merged == &over) || (under.vanished > 0 && &merged == &under);
  if (merged.finite > 0 && merged.distinctHalves < merged.distinctValues) {
    if (!told)
      addSentence(text, nameInText(merged.name) + " keeps " + countText(merged.distinctHalves) + " of its " +
                            countText(merged.distinctValues) +
                            " different values: at the top of its range halves are " + valueText(merged.spacing) +
                            " apart.");
  } else if (error.largestUlps > 0) {
    addSentence(text, "No two values fall together; " + nameInText(error.name) + " is off by up to " +
                          valueText(error.largestError) + ".");
  }
  addSentence(text, exactColumns(columns));
  return text;
}

std::vector<heading> headings() {
  return {{"column", "column", "", 0},
          {"values", "values", "", 4},
          {"missing", "missing", "", 4, true},
          {"minimum", "min", "", 2},
          {"maximum", "max", "", 1},
          {"exact", "exact", "%", 1},
          {"distinct_values", "distinct", "in file", 7},
          {"distinct_halves", "distinct", "as half", 7},
          {"overflows", "to inf", "", 3, true},
          {"vanished", "to zero", "", 3, true},
          {"subnormal", "subnormal", "", 3, true},
          {"largest_error", "max err", "in value", 3},
          {"largest_error_ulp", "max err", "ulp", 5},
          {"mean_error_ulp", "mean err", "ulp", 6},
          {"spacing", "spacing", "at max", 9}};
}

std::vector<cell> row(columnRounding const& c) {
  const bool anyFinite = c.finite > 0;
  return {textCell(c.name),
          countCell(c.values),
          countCell(c.missing),
          valueCell(c.smallest),
          valueCell(c.largest),
          shareCell(c.exact, c.values),
          countCell(c.distinctValues),
          countCell(c.distinctHalves),
          countCell(c.overflowed, c.overflowed > 0),
          countCell(c.vanished, c.vanished > 0),
          countCell(c.subnormal, c.subnormal > 0),
          anyFinite ? valueCell(c.largestError) : noCell(),
          anyFinite ? ulpCell(c.largestUlps) : noCell(),
          anyFinite ? ulpCell(c.meanUlps) : noCell(),
          anyFinite ? valueCell(c.spacing) : noCell()};
}

}  // namespace

section roundingStep(table const& t) {
  const halfMatrix halves = toHalf(t.values);
  const matrix back = fromHalf(halves);
  const matrix ulps = ulpDistance(halves, t.values);
  std::vector<columnRounding> columns;
  for (std::size_t j = 0; j < t.columnNames.size(); ++j)
    columns.push_back(
        examine(t.columnNames[j], t.values.rows, t.values.column(j), halves.column(j), back.column(j), ulps.column(j)));

  section s;
  s.key = "rounding";
  s.title = "Rounded to half";
  s.rowsKey = "columns";
  s.headings = headings();
  for (auto const& c : columns) s.rows.push_back(row(c));
  s.notice = notice(columns);
  return s;
}

}  // namespace halfscope
