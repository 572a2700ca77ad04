// The last step: how fast the calls of the other steps are, on the table repeated to a million elements, beside a plain
// copy of as many bytes.
#include <algorithm>
#include <chrono>
#include <cmath>
#include <cstring>

#include "half_matrix.h"
#include "steps/steps.h"
#include "words.h"

namespace halfscope {

namespace {

constexpr std::size_t wantedElements = std::size_t{1} << 20;

// The table's rows again and again; a table that is larger already keeps as many rows as are wanted.
matrix repeated(table const& t) {
  const std::size_t rows = std::max<std::size_t>(1, wantedElements / t.columns.size());
  matrix out(rows, t.columns.size());
  for (std::size_t j = 0; j < out.columns; ++j) {
    for (std::size_t i = 0; i < rows; ++i) out.column(j)[i] = t.columns[j].values[i % t.rows];
  }
  return out;
}

// The shortest of several runs, in seconds: what other programs take of the machine can only make a run longer.
template <class Work>
double bestTime(Work work) {
  using clock = std::chrono::steady_clock;
  constexpr int fewestRuns = 10;
  constexpr std::chrono::milliseconds enough{80};
  const auto begin = clock::now();
  double best = 0;
  for (int run = 0; run < fewestRuns || clock::now() - begin < enough; ++run) {
    const auto start = clock::now();
    work();
    const double seconds = std::chrono::duration<double>(clock::now() - start).count();
    best = run == 0 ? seconds : std::min(best, seconds);
  }
  return std::max(best, 1e-9);
}

// A copy that reads and writes so many bytes in all. The call goes through a volatile pointer because a compiler may
// drop a copy that nobody looks at.
double copyTime(std::vector<unsigned char> const& from, std::vector<unsigned char>& to, std::size_t bytesMoved) {
  void* (*volatile copy)(void*, void const*, std::size_t) = std::memcpy;
  return bestTime([&] { copy(to.data(), from.data(), bytesMoved / 2); });
}

struct timing {
  std::string operation;
  std::size_t bytesPerElement;  // read and written
  double seconds;
  double copySeconds;  // for as many bytes
};

// The pace as a share of the copy's pace.
double closeness(timing const& t) { return t.copySeconds / t.seconds; }

std::vector<cell> row(timing const& t, std::size_t elements) {
  const double count = static_cast<double>(elements);
  const double gigabytes = count * static_cast<double>(t.bytesPerElement) * 1e-9;
  return {textCell(t.operation),
          countCell(static_cast<long long>(t.bytesPerElement)),
          countCell(std::llround(count * 1e-6 / t.seconds)),
          decimalCell(gigabytes / t.seconds, 1),
          decimalCell(gigabytes / t.copySeconds, 1),
          decimalCell(100.0 * closeness(t), 0)};
}

std::string notice(std::vector<timing> const& timings, std::size_t elements) {
  const auto [furthest, closest] = std::minmax_element(
      timings.begin(), timings.end(), [](timing const& a, timing const& b) { return closeness(a) < closeness(b); });
  const auto percent = [](timing const& t) { return decimalText(100.0 * closeness(t), 0) + '%'; };
  const double pace = static_cast<double>(elements) * 1e-6 / furthest->seconds;
  return "Best of several runs, on one thread but for the means, over " + countText(static_cast<long long>(elements)) +
         " elements. " + closest->operation + " comes closest to a plain copy of the same bytes with " +
         percent(*closest) + " of its pace; furthest is " + furthest->operation + " with " + percent(*furthest) +
         ", which is " + countText(std::llround(pace)) + " million elements a second.";
}

}  // namespace

section speedStep(table const& t) {
  const matrix values = repeated(t);
  halfMatrix halves(values.rows, values.columns), sums(values.rows, values.columns);
  matrix back(values.rows, values.columns);
  halfMatrix offsets(1, values.columns), means(1, values.columns);
  matrix offsetsInDouble(1, values.columns);
  complexHalfMatrix phases(values.rows, 1), products(values.rows, values.columns);
  const std::size_t elements = values.cells.size();
  constexpr std::size_t wide = sizeof(double), narrow = sizeof(half_t), complexNarrow = 2 * narrow;
  const std::vector<unsigned char> from(elements * (wide + narrow) / 2);
  std::vector<unsigned char> to(from.size());

  for (std::size_t j = 0; j < values.columns; ++j) {
    offsets.cells[j] = -half_t{half_scalar::impl::convertDoubleToHalf(values.column(j)[0])};
    offsetsInDouble.cells[j] = values.column(j)[0];
  }
  for (auto& phase : phases.cells) phase = {half_t{0x3A00}, half_t{0x3A00}};  // any numbers without a zero part

  std::vector<timing> timings;
  const auto measure = [&](std::string const& operation, std::size_t bytes, auto work) {
    progress::show("measuring speed", timings.size(), 7);
    timings.push_back({operation, bytes, bestTime(work), copyTime(from, to, elements * bytes)});
  };
  measure("convertToHalf from double", wide + narrow, [&] { toHalf(values, halves); });
  measure("plus a row to every row", narrow + narrow, [&] { plusRow(halves, offsets, sums); });
  measure("minus a row of doubles", narrow + narrow, [&] { minus(halves, offsetsInDouble, sums); });
  measure("times a complex column", narrow + complexNarrow, [&] { timesColumn(halves, phases, products); });
  measure("mean of columns, half sums", narrow, [&] { columnMeans(halves, sumsIn::half, means); });
  measure("mean of columns, single sums", narrow, [&] { columnMeans(halves, sumsIn::single, means); });
  measure("convertFromHalf to double", narrow + wide, [&] { fromHalf(sums, back); });

  section s;
  s.key = "speed";
  s.title = "Speed: " + shortened(t.name, 32) + (values.rows < t.rows ? " cut to " : " repeated to ") +
            countText(static_cast<long long>(values.rows)) + " x " + std::to_string(values.columns);
  s.rowsKey = "operations";
  s.headings = {{"operation", "operation", "", 0},
                {"bytes_per_element", "moves", "B/element", 3},
                {"million_elements_per_second", "elements", "million/s", 1},
                {"gigabytes_per_second", "bytes", "GB/s", 2},
                {"copy_gigabytes_per_second", "memcpy", "GB/s", 4},
                {"percent_of_copy", "of memcpy", "%", 1}};
  s.settings = {{"file", textCell(t.name)},
                {"rows", countCell(static_cast<long long>(values.rows))},
                {"columns", countCell(static_cast<long long>(values.columns))},
                {"elements", countCell(static_cast<long long>(elements))}};
  for (timing const& timed : timings) s.rows.push_back(row(timed, elements));
  s.notice = notice(timings, elements);
  return s;
}

}  // namespace halfscope
