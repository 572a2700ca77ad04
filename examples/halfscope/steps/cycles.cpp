// Step 4: the strongest cycle down the rows of each column. What a column has beside its straight trend is multiplied
// by a complex number that turns as often as the cycle does, and averaged: the longer the average, the stronger the
// cycle. All of it in half, the sums in single, beside the same in double.
#include <algorithm>
#include <cmath>

#include "half_matrix.h"
#include "steps/steps.h"
#include "steps/trends.h"
#include "words.h"

namespace halfscope {

namespace {

// From one cycle in all rows to so many. Half a cycle in each row is not a cycle any more, and as the work is rows
// times columns times cycles, there are fewer of them for very large tables.
std::size_t cyclesToTry(table const& t) {
  constexpr std::size_t usual = 64, fewest = 8, enoughWork = std::size_t{1} << 25;
  const std::size_t affordable = std::max(fewest, enoughWork / (t.rows * t.columns.size()));
  return std::min({(t.rows - 1) / 2, usual, affordable});
}

// For each column (down) and number of cycles (across, beginning with 1) the length of the average, which is half the
// amplitude.
struct spectra {
  halfMatrix halves;
  matrix exact;
};

// exp(2 pi i t / n) for t from 0 to n - 1.
struct turns {
  matrix real, imaginary;

  explicit turns(std::size_t n) : real(n, 1), imaginary(n, 1) {
    for (std::size_t t = 0; t < n; ++t) {
      const double angle = 6.283185307179586 * static_cast<double>(t) / static_cast<double>(n);
      real.cells[t] = std::cos(angle);
      imaginary.cells[t] = std::sin(angle);
    }
  }
};

// One number of cycles in double.
double halfAmplitude(double const* deviation, std::size_t rows, turns const& turn, std::size_t cycles) {
  double real = 0, imaginary = 0, count = 0;
  for (std::size_t i = 0, t = 0; i < rows; ++i, t = (t + cycles) % rows) {
    if (std::isnan(deviation[i])) continue;
    real += deviation[i] * turn.real.cells[t];
    imaginary += deviation[i] * turn.imaginary.cells[t];
    ++count;
  }
  return std::hypot(real / count, imaginary / count);
}

spectra spectraOf(halfMatrix const& deviations, matrix const& exact, std::size_t most) {
  const std::size_t rows = exact.rows, columns = exact.columns;
  const turns turn(rows);
  const complexHalfMatrix turnAsHalf = toComplex(toHalf(turn.real), toHalf(turn.imaginary));
  complexHalfMatrix phases(rows, 1), products(rows, columns), averages(columns, most);
  matrix exactAmplitudes(columns, most);
  for (std::size_t cycles = 1; cycles <= most; ++cycles) {
    for (std::size_t i = 0, t = 0; i < rows; ++i, t = (t + cycles) % rows) phases.cells[i] = turnAsHalf.cells[t];
    timesColumn(deviations, phases, products);
    const complexHalfMatrix means = columnMeans(products, sumsIn::single);
    std::copy(means.cells.begin(), means.cells.end(), averages.column(cycles - 1));
    for (std::size_t j = 0; j < columns; ++j)
      exactAmplitudes.column(cycles - 1)[j] = halfAmplitude(exact.column(j), rows, turn, cycles);
  }
  return {magnitudes(averages), exactAmplitudes};
}

struct columnCycles {
  std::string name;
  double trend = 0;
  bool any = false;        // a cycle in double
  std::size_t cycles = 0;  // the strongest of the column
  double rowsPerCycle = 0;
  double amplitude = 0;    // to either side
  double share = 0;        // of what the column varies about its trend, from 0 to 1
  bool anyInHalf = false;  // and as half
  std::size_t halfCycles = 0;
  double halfAmplitude = 0;  // of the cycle that is strongest in double
  double ulps = 0;
};

columnCycles examine(std::size_t j, detrended const& d, spectra const& s, matrix const& back, matrix const& ulps) {
  columnCycles c;
  const std::size_t most = s.exact.columns;
  const auto strongest = [&](matrix const& amplitudes) {
    std::size_t best = 0;
    for (std::size_t k = 1; k < most; ++k) {
      if (amplitudes.column(k)[j] > amplitudes.column(best)[j]) best = k;
    }
    return best;
  };
  if (most == 0 || !d.varies[j]) return c;
  const std::size_t best = strongest(s.exact);
  c.any = true;
  c.cycles = best + 1;
  c.rowsPerCycle = static_cast<double>(d.deviations.rows) / static_cast<double>(c.cycles);
  c.amplitude = std::ldexp(2 * s.exact.column(best)[j], d.exponents[j]);
  c.share = 2 * s.exact.column(best)[j] * s.exact.column(best)[j] / d.meanSquares[j];
  for (std::size_t k = 0; k < most; ++k) {
    if (!std::isfinite(back.column(k)[j])) return c;
  }
  const std::size_t halfBest = strongest(back);
  c.anyInHalf = back.column(halfBest)[j] > 0;
  c.halfCycles = halfBest + 1;
  c.halfAmplitude = 2 * back.column(best)[j];
  c.ulps = ulps.column(best)[j];
  return c;
}

// The column whose cycle is the largest part of what it does, among those that half can follow if there are any.
columnCycles const* clearest(std::vector<columnCycles> const& columns) {
  columnCycles const* best = nullptr;
  const auto rank = [](columnCycles const& c) { return c.share + (c.anyInHalf ? 1000 : 0); };
  for (auto const& c : columns) {
    if (c.any && (best == nullptr || rank(c) > rank(*best))) best = &c;
  }
  return best;
}

std::string agreement(std::vector<columnCycles> const& columns) {
  std::vector<std::string> lost, others;
  long long found = 0, same = 0;
  double worst = 0;
  for (auto const& c : columns) {
    if (!c.any) continue;
    ++found;
    if (!c.anyInHalf) {
      lost.push_back(c.name);
      continue;
    }
    if (c.halfCycles != c.cycles) {
      others.push_back(c.name);
      continue;
    }
    ++same;
    worst = std::max(worst, c.ulps);
  }
  std::string text;
  const std::string where = same < found
                                ? " the same cycle in " + countText(same) + " of " + countText(found) + " columns"
                            : found == 1 ? " it too"
                                         : " the same cycle in all " + countText(found) + " columns that have one";
  if (same > 0)
    addSentence(text, "Half finds" + where + ", with " +
                          (worst == 0 ? std::string(same == 1 ? "an exact amplitude." : "exact amplitudes.")
                                      : (same == 1 ? "an amplitude" : "amplitudes") + std::string(" off by ") +
                                            ulpText(worst) + " ulp" + (same == 1 ? "." : " at most.")));
  if (!others.empty()) addSentence(text, "Half takes another one for the strongest in " + nameList(others) + ".");
  if (!lost.empty()) addSentence(text, "Of " + nameList(lost) + " half keeps too little to tell.");
  return text;
}

std::string notice(std::vector<columnCycles> const& columns, std::size_t most) {
  columnCycles const* best = clearest(columns);
  if (best == nullptr) return "No column of finite values differs from a straight line in enough rows for a cycle.";
  std::string text = "What is left beside a straight line, seen as waves of 1 to " + std::to_string(most) +
                     " cycles: " + nameInText(best->name) + " goes up and down most clearly, once in " +
                     decimalText(best->rowsPerCycle, 1) + " rows, by " + valueText(best->amplitude) +
                     " to either side.";
  addSentence(text, agreement(columns));
  return text;
}

std::vector<heading> headings() {
  return {{"column", "column", "", 0},
          {"trend", "trend", "per row", 4},
          {"cycles", "cycles", "in double", 1},
          {"cycles_half", "cycles", "as half", 1},
          {"rows_per_cycle", "one cycle", "rows", 2},
          {"share", "share", "%", 3},
          {"amplitude", "amplitude", "in double", 2},
          {"amplitude_half", "amplitude", "as half", 2},
          {"error_ulp", "err", "ulp", 2}};
}

std::vector<cell> row(columnCycles const& c) {
  const cell trendCell = std::isfinite(c.trend) ? valueCell(c.trend) : noCell();
  if (!c.any) {
    std::vector<cell> cells(headings().size(), noCell());
    cells[0] = textCell(c.name);
    cells[1] = trendCell;
    return cells;
  }
  return {textCell(c.name),
          trendCell,
          countCell(static_cast<long long>(c.cycles)),
          c.anyInHalf ? countCell(static_cast<long long>(c.halfCycles), c.halfCycles != c.cycles) : noCell(),
          decimalCell(c.rowsPerCycle, 1),
          decimalCell(100 * c.share, 1),
          valueCell(c.amplitude),
          c.anyInHalf ? valueCell(c.halfAmplitude) : noCell(),
          c.anyInHalf ? ulpCell(c.ulps, c.ulps > 1) : noCell()};
}

}  // namespace

section cyclesStep(table const& t) {
  const std::size_t most = cyclesToTry(t);
  std::vector<columnCycles> columns;
  forWholeColumns(t, "cycles in " + t.name, [&](tablePart const& part) {
    const detrended d = withoutTrends(part.values);
    const spectra s = spectraOf(minus(toHalf(part.values), d.lines), d.deviations, most);
    const matrix back = fromHalf(s.halves);
    matrix exact = s.exact;
    for (std::size_t k = 0; k < exact.columns; ++k) {
      for (std::size_t j = 0; j < exact.rows; ++j) exact.column(k)[j] = std::ldexp(exact.column(k)[j], d.exponents[j]);
    }
    const matrix ulps = ulpDistance(s.halves, exact);
    for (std::size_t j = 0; j < part.values.columns; ++j) {
      columns.push_back(examine(j, d, s, back, ulps));
      columns.back().name = part.columns[j].name;
      columns.back().trend = d.trends[j];
    }
  });

  const std::string rows = countText(static_cast<long long>(t.rows));
  section out;
  out.key = "cycles";
  out.title = "The strongest cycle down the rows, by complex halves: " + rows + " x " + std::to_string(columns.size()) +
              " times " + rows + " x 1";
  out.rowsKey = "columns";
  out.headings = headings();
  for (auto const& c : columns) out.rows.push_back(row(c));
  out.notice = notice(columns, most);
  return out;
}

}  // namespace halfscope
