// The number of elements of start : step : stop.
#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <random>

#include "tests/support/expect_bits.h"
#include "zthalf/host.h"

namespace zthalf {
namespace {

constexpr double infinite = std::numeric_limits<double>::infinity();
const double nan = std::numeric_limits<double>::quiet_NaN();

// The rules written out, every operation on its own.
class Reference {
 public:
  static double count(double startGiven, double stepGiven, double stopGiven) {
    volatile double start = startGiven, step = stepGiven, stop = stopGiven;
    if (step == 1.0 && whole(start)) {
      if (stop < start) return 0;
      volatile double top = std::floor(stop);
      volatile double difference = top - start;
      return fixed(difference + 1.0, stop);
    }
    if (start != start || step != step || stop != stop) {
      volatile double sum = start + step;
      sum = std::isnan(start) || std::isnan(step) ? firstNaN(start, step) : (std::isnan(sum) ? nan : double(sum));
      return std::isnan(sum) || std::isnan(stop) ? firstNaN(sum, stop) : sum + stop;
    }
    if (step == 0.0) return 0;
    if (std::signbit(step) ? start < stop : stop < start) return 0;
    if (whole(start) && whole(step) && whole(stop)) {
      volatile double quotient = start / step;
      quotient = std::floor(quotient);
      volatile double back = quotient * step;
      volatile double rest = start - back;
      volatile double way = stop - rest;
      volatile double steps = std::floor(way / step);
      volatile double result = steps - quotient;
      return result + 1.0;
    }
    volatile double tolerance = std::scalbn(std::fmax(std::fabs(start), std::fabs(stop)), -10);
    const bool lostStart = start != 0.0 && std::fabs(start) <= std::numeric_limits<double>::denorm_min();
    const bool lostStep = std::fabs(step) <= std::numeric_limits<double>::denorm_min();
    const bool lostStop = stop != 0.0 && std::fabs(stop) <= std::numeric_limits<double>::denorm_min();
    const bool down = step < 0.0;
    if (!lostStart && !lostStep && !lostStop) {
      volatile double a = start / 2, d = step / 2, b = stop / 2;
      volatile double way = b - a;
      volatile double n = nearest(way / d);
      volatile double along = d * n;
      volatile double there = a + along;
      volatile double beyond = there - b;
      return fixed((down ? -beyond : +beyond) > tolerance ? n : n + 1.0, 0);
    }
    volatile double way = stop - start;
    volatile double n = nearest(way / step);
    volatile double along = n * step;
    volatile double there = along + start;
    volatile double beyond = there - stop;
    volatile double twice = tolerance + tolerance;
    return fixed((down ? -beyond : +beyond) > twice ? n : n + 1.0, 0);
  }

 private:
  static bool whole(double x) { return std::fabs(x) <= 0x1p53 && std::trunc(x) == x; }
  // Ties away from zero.
  static double nearest(double x) {
    double integer;
    const double fraction = std::modf(x, &integer);
    return std::fabs(fraction) >= 0.5 ? integer + std::copysign(1.0, x) : integer;
  }
  static bool quiet(double x) { return (std::bit_cast<std::uint64_t>(x) >> 51 & 1) != 0; }
  static double quieted(double x) {
    return std::bit_cast<double>(std::bit_cast<std::uint64_t>(x) | std::uint64_t{1} << 51);
  }
  static double firstNaN(double a, double b) {
    if (std::isnan(a) && std::isnan(b)) return quieted(quiet(a) && !quiet(b) ? b : a);
    return quieted(std::isnan(a) ? a : b);
  }
  static double fixed(double x, double operand) {
    return !std::isnan(x) ? x : std::isnan(operand) ? quieted(operand) : nan;
  }
};

struct Known {
  double start, step, stop, expected;
};

TEST(ColonopSize, OfKnownSequences) {
  for (auto const& [start, step, stop, expected] : {Known{1, 1, 0.5, 0},
                                                    {1, 1, 3.9, 3},
                                                    {0, 0, 5, 0},
                                                    {0, 0.1, 1, 11},
                                                    {0, 0.1, 0.9995, 11},
                                                    {1, 1, 1, 1},
                                                    {1, 1, 10, 10},
                                                    {-3, 1, 3, 7},
                                                    {0.5, 1, 3, 3},
                                                    {10, -1, 1, 10},
                                                    {10, -3, 1, 4},
                                                    {1, 2, 10, 5},
                                                    {1, -1, 2, 0},
                                                    {2, 1, 1, 0},
                                                    {0, 0, 0, 0},
                                                    {5, 5, 5, 1},
                                                    {0.1, 0.1, 0.5, 5},
                                                    {1, 1, infinite, infinite},
                                                    {0, infinite, 1, 1},
                                                    {0, 0.5, infinite, infinite},
                                                    {infinite, 1, 1, 0},
                                                    // The end may be missed by 2^-9 of the larger end, that included.
                                                    {0, 513 / 1024., 0.5, 2},
                                                    {0, 513 / 1024., 0.5 - 0x1p-30, 1},
                                                    {0, -513 / 1024., -0.5, 2},
                                                    {0, -513 / 1024., -0.5 + 0x1p-30, 1},
                                                    {-0.5, 513 / 1024., 0, 2},
                                                    // Whole numbers have none.
                                                    {0, 1000, 1999, 2},
                                                    {0, 1000, 2000, 3},
                                                    {-9007199254740992., 2, 9007199254740992., 9007199254740993.},
                                                    // A difference that is too large for a double.
                                                    {-1.5e308, 1e308, 1.5e308, 4},
                                                    {1.5e308, -1e308, -1.5e308, 4},
                                                    // Steps and ends whose halves vanish.
                                                    {0, 5e-324, 2e-323, 5},
                                                    {5e-324, 5e-324, 2e-323, 4},
                                                    {0, 1e-323, 5e-324, 1}}) {
    EXPECT_EQ(half::vqColonop_size(start, step, stop), expected) << start << " : " << step << " : " << stop;
  }
}

TEST(ColonopSize, OfANaNIsThatNaN) {
  EXPECT_TRUE(std::isnan(half::vqColonop_size(1, nan, 2)));
  testing::bitComparison compare("colon");
  const double negative = -nan, signalling = std::bit_cast<double>(0x7FF0000000000001u);
  const double all[] = {nan, negative, signalling, 0.0, 1.0, 0.5, infinite, -infinite};
  for (const double a : all)
    for (const double b : all)
      for (const double c : all) compare.check(half::vqColonop_size(a, b, c), Reference::count(a, b, c), a, b, c);
}

TEST(ColonopSize, IsThatOfTheRulesForEveryPairOfSpecialValues) {
  testing::bitComparison compare("colon");
  std::vector<double> all{0.0,    0.1,    0.25,     0.5,        1,      2,     3,       7.5,      1000,
                          1023.9, 65504,  0x1p53,   0x1p53 + 2, 0x1p54, 1e308, 1.7e308, infinite, nan,
                          5e-324, 1e-323, 1.5e-323, 2.2e-308,   1e-300, 4e-4,  1e17};
  const std::size_t count = all.size();
  for (std::size_t i = 0; i < count; ++i) all.push_back(-all[i]);
  for (const double a : all)
    for (const double b : all)
      for (const double c : all) compare.check(half::vqColonop_size(a, b, c), Reference::count(a, b, c), a, b, c);
}

TEST(ColonopSize, IsThatOfTheRulesForAMillionTriples) {
  testing::bitComparison compare("colon");
  std::mt19937_64 draw(20261122);
  const auto below = [&](unsigned long n) { return static_cast<double>(draw() % n); };
  for (int i = 0; i < 1200000; ++i) {
    double start, step, stop;
    switch (i % 6) {
      case 0:  // whole numbers
        start = below(2001) - 1000, step = below(41) - 20, stop = below(2001) - 1000;
        break;
      case 1:  // tenths
        start = (below(201) - 100) * 0.1, step = (below(41) - 20) * 0.1,
        stop = start + step * below(100) + (below(21) - 10) * 1e-4;
        break;
      case 2: {  // an end that is missed by about the tolerance
        start = below(4096) / 64, step = (1 + below(99)) / 17;
        const double reached = start + step * below(50);
        stop = reached * (1 - 0x1p-9 + (below(201) - 100) * 0x1p-18);
        break;
      }
      case 3:  // near the largest
        start = (below(4001) - 2000) * 8.9e304, step = (below(4001) - 2000) * 1e303,
        stop = (below(4001) - 2000) * 8.9e304;
        break;
      case 4:  // multiples of the smallest
        start = (below(21) - 10) * 5e-324, step = (below(21) - 10) * 5e-324, stop = (below(201) - 100) * 5e-324;
        break;
      default:  // any bits
        start = std::bit_cast<double>(draw()), step = std::bit_cast<double>(draw()),
        stop = std::bit_cast<double>(draw());
    }
    compare.check(half::vqColonop_size(start, step, stop), Reference::count(start, step, stop), start, step, stop);
  }
}

// Not by the rules: by counting.
TEST(ColonopSize, OfWholeNumbersIsWhatCountingGives) {
  for (int start = -12; start <= 12; ++start)
    for (int step = -5; step <= 5; ++step)
      for (int stop = -12; stop <= 12; ++stop) {
        int count = 0;
        if (step != 0)
          for (int x = start; step > 0 ? x <= stop : x >= stop; x += step) ++count;
        EXPECT_EQ(half::vqColonop_size(start, step, stop), count) << start << " : " << step << " : " << stop;
      }
}

TEST(ColonopSize, OfExactSequencesIsWhatCountingGives) {
  for (int numerator = 1; numerator <= 40; ++numerator)
    for (int n = 0; n < 60; ++n)
      for (const double start : {0.0, 0.5, -3.25, 8.0}) {
        const double step = numerator / 64.0;
        if (start == 0 && step == 1) continue;
        // Half a step more is not reached, where the tolerance is below it.
        const double stop = start + step * n, larger = std::max(std::fabs(start), std::fabs(stop));
        EXPECT_EQ(half::vqColonop_size(start, step, stop), n + 1);
        EXPECT_EQ(half::vqColonop_size(stop, -step, start), n + 1);
        if (step * 0.4 > larger * 0x1p-8) {
          EXPECT_EQ(half::vqColonop_size(start, step, stop + step * 0.4), n + 1);
        }
      }
}

}  // namespace
}  // namespace zthalf
