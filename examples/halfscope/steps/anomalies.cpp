// Step 2: the deviations from each column's mean, all columns in one addition by implicit expansion, and how good they
// are beside the same thing in double.
#include "steps/anomalies.h"

#include "half_matrix.h"
#include "words.h"

namespace halfscope {

namespace {

std::string notice(std::vector<columnAnomalies> const& columns) {
  std::vector<std::string> losing;
  long long lost = 0;
  long long kept = 0;
  long long nearest = 0;
  columnAnomalies const* worst = nullptr;  // by its typical error
  for (auto const& c : columns) {
    if (c.lost > 0) losing.push_back(c.name);
    lost += c.lost;
    kept += c.kept();
    nearest += c.nearest;
    if (c.any() && (worst == nullptr || c.typicalUlps > worst->typicalUlps)) worst = &c;
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
    addSentence(text, lost > 0 && kept == 1 ? "The other one is the nearest half to the true one."
                      : lost > 0            ? "All others are the nearest halves to the true ones."
                                            : "Every deviation is the nearest half to the true one.");
  else
    addSentence(text, shareText(nearest, kept) + "% of the " + (lost > 0 ? "others" : "deviations") +
                          " are the nearest halves to the true ones.");
  return text;
}

std::vector<heading> headings() {
  return {{"column", "column", "", 0},
          {"mean", "mean", "in double", 6},
          {"offset", "offset", "as half", 3},
          {"minimum", "min", "result", 2},
          {"maximum", "max", "result", 2},
          {"nearest_count", "nearest", "%", 1},
          {"lost_count", "lost", "inf, NaN", 2, true},
          {"largest_error", "max err", "in value", 3},
          {"typical_error_ulp", "typical err", "ulp", 1},
          {"largest_error_ulp", "max err", "ulp", 5}};
}

std::vector<cell> row(columnAnomalies const& c) {
  const bool any = c.any();
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

std::vector<columnAnomalies> anomaliesOf(table const& t) {
  const std::vector<double> means = meansOf(t);
  std::vector<double> offsets;  // as halves
  deviationGatherer gathered;
  forEachPart(t, "deviations of " + t.name + " in half", [&](tablePart const& part) {
    const matrix partMeans = meansIn(part, t, means);
    matrix partOffsets = partMeans;
    for (double& offset : partOffsets.cells) offset = -offset;
    const halfMatrix offsetsAsHalf = toHalf(partOffsets);
    const halfMatrix anomalies = plusRow(toHalf(part.values), offsetsAsHalf);
    gathered.add(part, anomalies, deviationsFrom(partMeans, part.values));
    if (!part.hasLastRow) return;
    for (const double offset : fromHalf(offsetsAsHalf).cells) offsets.push_back(offset);
  });
  std::vector<columnAnomalies> columns;
  for (columnDeviations& c : gathered.take()) {
    const std::size_t j = columns.size();
    columns.push_back({std::move(c), means[j], offsets[j]});
  }
  return columns;
}

section anomalySection(table const& t, std::vector<columnAnomalies> const& columns) {
  const std::string shape = countText(static_cast<long long>(t.rows)) + " x " + std::to_string(columns.size());
  section s;
  s.key = "anomalies";
  s.title = "Minus the column mean, in half: " + shape + " plus 1 x " + std::to_string(columns.size());
  s.rowsKey = "columns";
  s.headings = headings();
  for (auto const& c : columns) s.rows.push_back(row(c));
  s.notice = notice(columns);
  return s;
}

}  // namespace halfscope
