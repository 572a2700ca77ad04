#include "summary.h"

#include <algorithm>
#include <cmath>

#include "words.h"

namespace halfscope {

namespace {

// So many columns and findings together leave room for all else on a screen of 24 lines.
constexpr std::size_t columnsAndFindings = 7;

std::string briefName(std::string const& name) { return shortened(name, 16); }

bool isLosing(columnRounding const& c) { return c.lost() > 0 || c.merged() > 0; }

// How much of a column is gone: a value that became infinite or zero is worse than any that still has a neighbour's
// value, and that is worse than any rounding.
double severity(columnRounding const& c) {
  if (c.lost() > 0) return 2 + share(c.lost(), c.values);
  if (c.merged() > 0) return 1 + share(c.merged(), c.distinctValues);
  return c.largestUlps;  // half a unit at most
}

std::vector<std::size_t> worstFirst(std::vector<columnRounding> const& columns) {
  std::vector<std::size_t> order;
  for (std::size_t j = 0; j < columns.size(); ++j) order.push_back(j);
  std::stable_sort(order.begin(), order.end(),
                   [&](std::size_t a, std::size_t b) { return severity(columns[a]) > severity(columns[b]); });
  return order;
}

std::string lossOf(columnRounding const& c) {
  if (c.lost() == 0) return countText(c.distinctValues) + " different values become " + countText(c.distinctHalves);
  const bool over = c.overflowed >= c.vanished;
  const long long count = over ? c.overflowed : c.vanished;
  return someOf(count, c.values) + (count == 1 ? " becomes " : " become ") + (over ? "infinite" : "zero");
}

std::string verdictOf(summary const& s, std::vector<columnRounding> const& columns, columnRounding const& worst) {
  const auto whole = static_cast<long long>(columns.size());
  std::string text;
  if (s.losing == 0)
    text = whole == 1 ? "No values are lost." : "No column loses values.";
  else if (whole == 1)
    text = nameInText(worst.name) + " loses values: " + lossOf(worst) + '.';
  else
    text = countText(s.losing) + " of " + countText(whole) + (s.losing == 1 ? " columns loses" : " columns lose") +
           " values, worst: " + nameInText(worst.name) + ", where " + lossOf(worst) + '.';
  const auto rounded = namesOf(columns, [](auto const& c) { return !isLosing(c) && !c.isExact(); });
  const auto exact = namesOf(columns, [](auto const& c) { return c.isExact(); });
  if (!rounded.empty())
    addSentence(text, nameList(rounded) + (rounded.size() == 1 ? " is" : " are") + " rounded only.");
  if (!exact.empty()) addSentence(text, nameList(exact) + (exact.size() == 1 ? " is" : " are") + " exact.");
  return text;
}

std::vector<cell> worstRow(columnRounding const& c, columnStatistics const& mean) {
  cell halfSums = valueCell(mean.halfSums.mean);
  halfSums.remarkable = mean.meanFits() && !(std::isfinite(mean.halfSums.mean) && mean.halfSums.ulps <= 1);
  return {textCell(c.name),
          countCell(c.lost(), c.lost() > 0),
          countCell(c.distinctValues),
          countCell(c.distinctHalves, c.merged() > 0),
          c.finite > 0 ? valueCell(c.largestError) : noCell(),
          mean.isMeanKnown ? valueCell(mean.mean) : noCell(),
          halfSums,
          valueCell(mean.singleSums.mean)};
}

section worstColumns(columnFindings const& found, std::vector<std::size_t> const& order, std::size_t most) {
  section s;
  s.headings = {{"", "column", "", 0},           {"", "lost to", "inf or 0", 1, true}, {"", "different", "in file", 4},
                {"", "different", "as half", 3}, {"", "max err", "of a value", 6},     {"", "mean", "in file", 2},
                {"", "mean", "half sums", 1},    {"", "mean", "single sums", 5}};
  const std::size_t shown = std::min(most, order.size());
  for (std::size_t i = 0; i < shown; ++i)
    s.rows.push_back(worstRow(found.rounding[order[i]], found.statistics[order[i]]));
  const auto isLost = [](auto const& row) { return row[1].text != "0"; };
  if (std::none_of(s.rows.begin(), s.rows.end(), isLost)) {
    s.headings.erase(s.headings.begin() + 1);
    for (auto& row : s.rows) row.erase(row.begin() + 1);
  }
  if (const std::size_t more = order.size() - shown; more > 0)
    s.notice = "and " + std::to_string(more) + (more == 1 ? " more column" : " more columns");
  return s;
}

template <class Rank>
columnRounding const& worstBy(std::vector<columnRounding> const& columns, Rank rank) {
  return *std::max_element(columns.begin(), columns.end(),
                           [&](auto const& a, auto const& b) { return rank(a) < rank(b); });
}

std::string rangeText(std::vector<columnRounding> const& columns) {
  auto const& over = worstBy(columns, [](auto const& c) { return share(c.overflowed, c.values); });
  auto const& under = worstBy(columns, [](auto const& c) { return share(c.vanished, c.values); });
  long long beyond = 0;
  for (auto const& c : columns) beyond += c.beyond;
  std::string text;
  if (over.overflowed > 0)
    text +=
        briefName(over.name) + " reaches " + valueText(-over.smallest > over.largest ? over.smallest : over.largest);
  if (under.vanished > 0)
    text += (text.empty() ? "" : ", ") + someOf(under.vanished, under.values) + " of " + briefName(under.name) +
            (under.vanished == 1 ? " becomes zero" : " become zero");
  if (!text.empty()) text = "Half goes from 5.96e-08 to 65504: " + text + '.';
  if (beyond > 0)
    addSentence(text, countText(beyond) + (beyond == 1 ? " number is" : " numbers are") + " beyond double.");
  return text;
}

// Told for the column where most values fall together, else for the one that is rounded most.
std::string digitsText(std::vector<columnRounding> const& columns) {
  constexpr double worthTelling = 0.001;
  const auto rank = [](columnRounding const& c) {
    if (c.largestUlps < worthTelling) return 0.0;
    return c.largestUlps + share(c.merged(), c.distinctValues) * 10 + (c.lost() == 0 ? 100 : 0);
  };
  auto const& worst = worstBy(columns, rank);
  if (rank(worst) == 0) return "";
  return briefName(worst.name) + " is off by up to " + valueText(worst.largestError) + ", among halves that are " +
         valueText(worst.spacing) + " apart.";
}

std::string differencesText(std::vector<columnAnomalies> const& columns) {
  columnAnomalies const* worst = nullptr;
  long long values = 0, kept = 0, nearest = 0;
  for (auto const& c : columns) {
    values += c.values;
    kept += c.kept();
    nearest += c.nearest;
    if (c.any() && (worst == nullptr || c.typicalUlps > worst->typicalUlps)) worst = &c;
  }
  if (worst == nullptr) return "";
  if (worst->typicalUlps > 0.5)
    return briefName(worst->name) + " minus its mean, in half, is off by up to " + valueText(worst->largestError) +
           ". Subtract first, then round.";
  return "Value minus mean, in half, is the nearest half for " +
         (nearest == kept ? std::string("all") : shareText(nearest, kept) + '%') +
         (kept < values ? " of the finite differences." : " of the values.");
}

// Mixed precision in a few numbers: the same halves, summed in three types.
std::string accumulatorsText(std::vector<columnStatistics> const& columns) {
  const auto rank = [](columnStatistics const& c) {
    if (!c.meanFits() || !std::isfinite(c.singleSums.mean)) return -1.0;
    return std::isfinite(c.halfSums.mean) ? c.halfSums.ulps : HUGE_VAL;
  };
  auto const& worst = *std::max_element(columns.begin(), columns.end(),
                                        [&](auto const& a, auto const& b) { return rank(a) < rank(b); });
  if (rank(worst) < 0) return "";
  const auto result = [](sumResult const& r) {
    if (!std::isfinite(r.mean)) return valueText(r.mean);
    return valueText(r.mean) + (r.ulps == 0 ? " (exact)" : " (" + ulpText(r.ulps) + " ulp off)");
  };
  return "The mean of " + briefName(worst.name) + " is " + valueText(worst.mean) + ". With sums in half it becomes " +
         result(worst.halfSums) + ", in single " + result(worst.singleSums) + '.';
}

}  // namespace

summary summaryOf(columnFindings const& found) {
  summary s;
  for (auto const& c : found.rounding) {
    s.losing += isLosing(c);
    s.exact += !isLosing(c) && c.isExact();
    s.rounded += !isLosing(c) && !c.isExact();
  }
  const auto order = worstFirst(found.rounding);
  auto const& worst = found.rounding[order[0]];
  if (s.losing > 0) s.worst = worst.name;
  s.verdict = verdictOf(s, found.rounding, worst);
  for (finding const& f : {finding{"range", rangeText(found.rounding)}, finding{"digits", digitsText(found.rounding)},
                           finding{"differences", differencesText(found.anomalies)},
                           finding{"accumulators", accumulatorsText(found.statistics)}}) {
    if (!f.text.empty()) s.findings.push_back(f);
  }
  s.columns = worstColumns(found, order, columnsAndFindings - s.findings.size());
  return s;
}

}  // namespace halfscope
