// Step 3: the deviations again with one operand left in double. Which rounding spoils them, that of the values or that
// of the mean?
#include "half_matrix.h"
#include "steps/deviations.h"
#include "steps/steps.h"
#include "words.h"

namespace halfscope {

namespace {

// One column's deviations, value - mean, in three ways.
struct columnMixtures {
  columnDeviations halves;      // both in half
  columnDeviations halfValues;  // from a mean in double
  columnDeviations halfMean;    // from values in double
};

long long total(std::vector<columnMixtures> const& columns, columnDeviations columnMixtures::*way,
                long long columnDeviations::*figure) {
  long long sum = 0;
  for (auto const& c : columns) sum += c.*way.*figure;
  return sum;
}

std::string notice(std::vector<columnMixtures> const& columns) {
  const auto nearest = [&](columnDeviations columnMixtures::*way) {
    return shareText(total(columns, way, &columnDeviations::nearest), total(columns, way, &columnDeviations::values)) +
           '%';
  };
  std::string text =
      "value - mean, with one side in double: the difference is taken in double and rounded to half once.";
  addSentence(text, "Nearest to the true deviations are " + nearest(&columnMixtures::halves) +
                        " of the results with both sides in half, " + nearest(&columnMixtures::halfValues) +
                        " with the mean in double, " + nearest(&columnMixtures::halfMean) +
                        " with the values in double.");
  columnMixtures const* worst = nullptr;  // where a rounded mean does most harm
  for (auto const& c : columns) {
    if (!c.halfMean.any() || c.halfMean.typicalUlps <= 0.5) continue;
    if (worst == nullptr || c.halfMean.typicalUlps > worst->halfMean.typicalUlps) worst = &c;
  }
  if (worst != nullptr)
    addSentence(text, "A mean in half moves all of a column by its own rounding error, " +
                          nameInText(worst->halfMean.name) + " typically by " + ulpText(worst->halfMean.typicalUlps) +
                          " ulp; values in half are each off by another amount.");
  return text;
}

std::vector<heading> headings() {
  return {{"column", "column", "", 0},
          {"nearest_count_half_half", "nearest %", "half-half", 1},
          {"nearest_count_half_double", "nearest %", "half-double", 1},
          {"nearest_count_double_half", "nearest %", "double-half", 1},
          {"lost_count_half_half", "lost", "half-half", 4, true},
          {"lost_count_half_double", "lost", "half-double", 4, true},
          {"lost_count_double_half", "lost", "double-half", 4, true},
          {"typical_error_ulp_half_half", "typical ulp", "half-half", 6},
          {"typical_error_ulp_half_double", "typical ulp", "half-double", 2},
          {"typical_error_ulp_double_half", "typical ulp", "double-half", 2},
          {"largest_error_half_double", "max err", "half-double", 5},
          {"largest_error_double_half", "max err", "double-half", 5}};
}

cell typicalCell(columnDeviations const& c) { return c.any() ? ulpCell(c.typicalUlps) : noCell(); }
cell errorCell(columnDeviations const& c) { return c.any() ? valueCell(c.largestError) : noCell(); }
cell lostCell(columnDeviations const& c) { return countCell(c.lost, c.lost > 0); }
cell nearestCell(columnDeviations const& c) { return shareCell(c.nearest, c.values); }

std::vector<cell> row(columnMixtures const& c) {
  return {textCell(c.halves.name),   nearestCell(c.halves),   nearestCell(c.halfValues), nearestCell(c.halfMean),
          lostCell(c.halves),        lostCell(c.halfValues),  lostCell(c.halfMean),      typicalCell(c.halves),
          typicalCell(c.halfValues), typicalCell(c.halfMean), errorCell(c.halfValues),   errorCell(c.halfMean)};
}

}  // namespace

section mixedStep(table const& t) {
  const std::vector<double> means = meansOf(t);
  deviationGatherer gatheredHalves, gatheredHalfValues, gatheredHalfMeans;
  forEachPart(t, "mixed precision, " + t.name, [&](tablePart const& part) {
    const matrix partMeans = meansIn(part, t, means);
    const matrix exact = deviationsFrom(partMeans, part.values);
    const halfMatrix values = toHalf(part.values);
    const halfMatrix meansAsHalf = toHalf(partMeans);
    gatheredHalves.add(part, minus(values, meansAsHalf), exact);
    gatheredHalfValues.add(part, minus(values, partMeans), exact);
    gatheredHalfMeans.add(part, minus(part.values, meansAsHalf), exact);
  });
  const auto halves = gatheredHalves.take(), halfValues = gatheredHalfValues.take(),
             halfMeans = gatheredHalfMeans.take();
  std::vector<columnMixtures> columns;
  for (std::size_t j = 0; j < halves.size(); ++j) columns.push_back({halves[j], halfValues[j], halfMeans[j]});

  section s;
  s.key = "mixed";
  s.title = "Minus the column mean, one side in double: " + countText(static_cast<long long>(t.rows)) + " x " +
            std::to_string(columns.size()) + " minus 1 x " + std::to_string(columns.size());
  s.rowsKey = "columns";
  s.headings = headings();
  for (auto const& c : columns) s.rows.push_back(row(c));
  s.notice = notice(columns);
  return s;
}

}  // namespace halfscope
