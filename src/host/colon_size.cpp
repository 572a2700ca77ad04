// The number of elements of start, start + step, ... up to stop.
#include <algorithm>
#include <cmath>

#include "core/nan_policy.h"
#include "zthalf/host.h"

namespace half {

namespace {

// Up to here a double holds every whole number.
constexpr double largestWhole = 9007199254740992.0;  // 2^53

bool isWhole(double x) { return std::fabs(x) <= largestWhole && x == std::floor(x); }

double plus(double a, double b) { return zthalf::settled(a + b, a, b); }

// All three are whole numbers. Counting from the multiple of step below start keeps the quotient exact: stop - start
// may be more than a double holds.
double countOfWhole(double start, double step, double stop) {
  const double q = std::floor(start / step);
  return std::floor((stop - (start - q * step)) / step) - q + 1.0;
}

// n steps lead near stop, n + 1 elements then; or beyond it by more than the tolerance, and the last does not count.
double countUpTo(double n, double beyond, double tolerance) { return beyond > tolerance ? n : n + 1.0; }

double countOfOthers(double start, double step, double stop) {
  const double tolerance = std::max(std::fabs(start), std::fabs(stop)) * 0x1p-10;  // the spacing of halves at 1
  const double sign = step > 0 ? 1.0 : -1.0;

  // By halves of everything, since stop - start may overflow; unless a half of it is lost at the other end.
  const double halfStart = start * 0.5;
  const double halfStep = step * 0.5;
  const double halfStop = stop * 0.5;
  if (!(start != 0 && halfStart == 0) && halfStep != 0 && (stop == 0 || halfStop != 0)) {
    const double n = std::round((halfStop - halfStart) / halfStep);
    return countUpTo(n, sign * (halfStart + halfStep * n - halfStop), tolerance);
  }
  const double n = std::round((stop - start) / step);
  return countUpTo(n, sign * (n * step + start - stop), 2.0 * tolerance);
}

}  // namespace

double vqColonop_size(double start, double step, double stop) {
  if (step == 1 && isWhole(start)) return stop < start ? 0.0 : zthalf::settled(std::floor(stop) - start + 1.0, stop);
  if (std::isnan(start) || std::isnan(step) || std::isnan(stop)) return plus(plus(start, step), stop);
  if (step == 0 || (step < 0 && start < stop) || (step > 0 && stop < start)) return 0.0;
  if (isWhole(start) && isWhole(step) && isWhole(stop)) return countOfWhole(start, step, stop);
  // From here on a NaN can only come from infinities, an invalid operation's.
  const double count = countOfOthers(start, step, stop);
  return std::isnan(count) ? zthalf::defaultNaN<double> : count;
}

}  // namespace half
