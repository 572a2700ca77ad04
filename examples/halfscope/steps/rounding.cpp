// Step 1: every column to half and back. What is lost, and how much?
#include "steps/rounding.h"

#include <algorithm>
#include <array>
#include <bitset>
#include <cmath>
#include <optional>

#include "distinct.h"
#include "half_matrix.h"
#include "words.h"

namespace halfscope {

namespace {

constexpr double smallestNormal = 0x1p-14;

// How many units in the last place of a finite half make 1, by its exponent: powers of two, so that products are exact.
constexpr std::array<double, 31> unitsPerOne = [] {
  std::array<double, 31> units{};
  double ofLargest = 0x1p-5;
  for (std::size_t exponent = units.size(); exponent-- > 0; ofLargest *= 2) units[exponent] = ofLargest;
  units[0] = units[1];  // subnormal halves are as far apart as the smallest normal ones
  return units;
}();

// What a column's values become, part by part.
class columnExaminer {
 public:
  explicit columnExaminer(numericColumn const& column) : column_(column) {
    found_.name = column.name;
    found_.beyond = column.beyond;
  }

  void add(std::size_t rows, double const* values, half_t const* halves, double const* back);
  columnRounding finish(distinctCounter& distinct);

 private:
  numericColumn const& column_;
  columnRounding found_;
  double largestMagnitude_ = 0;
  std::bitset<65536> patterns_;  // of the halves that were met
};

void columnExaminer::add(std::size_t rows, double const* values, half_t const* halves, double const* back) {
  columnRounding& c = found_;
  for (std::size_t i = 0; i < rows; ++i) {
    const double value = values[i], half = back[i], magnitude = std::abs(half);
    if (std::isnan(value)) {
      ++c.missing;
      continue;
    }
    ++c.values;
    patterns_[half == 0 ? 0 : halves[i].bits] = true;
    c.smallest = std::min(c.smallest, value);
    c.largest = std::max(c.largest, value);
    c.exact += half == value;
    c.overflowed += std::isinf(half) && std::isfinite(value);
    c.subnormal += half != 0 && magnitude < smallestNormal;
    c.vanished += half == 0 && value != 0;
    if (std::isinf(half)) continue;
    ++c.finite;
    const double error = std::abs(half - value), ulps = error * unitsPerOne[halves[i].bits >> 10 & 31];
    c.largestError = std::max(c.largestError, error);
    c.largestUlps = std::max(c.largestUlps, ulps);
    c.meanUlps += ulps;
    largestMagnitude_ = std::max(largestMagnitude_, magnitude);
  }
}

columnRounding columnExaminer::finish(distinctCounter& distinct) {
  columnRounding c = found_;
  if (c.finite > 0) c.meanUlps /= static_cast<double>(c.finite);
  c.distinctValues = c.isExact() ? static_cast<long long>(patterns_.count()) : distinct.count(column_.values);
  c.distinctHalves = static_cast<long long>(patterns_.count());
  c.spacing = half_scalar::impl::convertHalfToDouble(
      half_scalar::eps(half_t{half_scalar::impl::convertDoubleToHalf(largestMagnitude_)}).bits);
  return c;
}

// The column that shows something most; the first of equals.
template <class Measure>
columnRounding const& worst(std::vector<columnRounding> const& columns, Measure measure) {
  return *std::max_element(columns.begin(), columns.end(),
                           [&](auto const& a, auto const& b) { return measure(a) < measure(b); });
}

std::string exactColumns(std::vector<columnRounding> const& columns) {
  const auto names = namesOf(columns, [](auto const& c) { return c.isExact(); });
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
  long long beyond = 0;
  for (auto const& c : columns) beyond += c.beyond;
  std::string text;
  if (over.overflowed > 0)
    addSentence(text, nameInText(over.name) + " does not fit: " + someOf(over.overflowed, over.values) +
                          " become infinity, since half ends at " + valueText(largestHalf) + ".");
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
    addSentence(text, (beyond > 1 ? "" : "No two values fall together; ") + nameInText(error.name) +
                          " is off by up to " + valueText(error.largestError) + ".");
  }
  if (beyond > 0)
    addSentence(text,
                countText(beyond) + (beyond == 1 ? " number is" : " numbers are") + " out of the range of double.");
  addSentence(text, exactColumns(columns));
  return text;
}

std::vector<heading> headings() {
  return {{"column", "column", "", 0},
          {"value_count", "values", "", 4},
          {"missing_count", "missing", "", 4, true},
          {"beyond_double_count", "beyond", "double", 4, true},
          {"minimum", "min", "", 2},
          {"maximum", "max", "", 1},
          {"exact_count", "exact", "%", 1},
          {"distinct_value_count", "distinct", "in file", 7},
          {"distinct_half_count", "distinct", "as half", 7},
          {"overflow_count", "to inf", "", 3, true},
          {"vanished_count", "to zero", "", 3, true},
          {"subnormal_count", "subnormal", "", 3, true},
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
          countCell(c.beyond, c.beyond > 0),
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

std::vector<columnRounding> roundingOf(table const& t) {
  std::vector<columnRounding> found;
  std::optional<columnExaminer> examiner;
  distinctCounter distinct;
  forEachPart(t, "rounding " + t.name + " to half", [&](tablePart const& part) {
    const halfMatrix halves = toHalf(part.values);
    const matrix back = fromHalf(halves);
    for (std::size_t j = 0; j < part.values.columns; ++j) {
      if (part.firstRow == 0) examiner.emplace(part.columns[j]);
      examiner->add(part.values.rows, part.values.column(j), halves.column(j), back.column(j));
      if (part.hasLastRow) found.push_back(examiner->finish(distinct));
    }
  });
  return found;
}

section roundingSection(std::vector<columnRounding> const& columns) {
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
