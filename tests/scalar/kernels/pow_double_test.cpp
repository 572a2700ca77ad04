#include "scalar/kernels/pow_double.h"

#include <gtest/gtest.h>

#include <limits>

#include "tests/scalar/kernels/pair_comparison.h"
#include "tests/scalar/kernels/pow_steps_double.h"

namespace zthalf::testing {
namespace {

using qsl_scalar::powDouble;

double bySteps(double x, double y) { return steps::doubles::pow(x, y).value(); }
double word(std::uint64_t bits) { return std::bit_cast<double>(bits); }
constexpr double inf = std::numeric_limits<double>::infinity();
const double nan = word(0x7FF8000000000000);
const double negativeNaN = word(0xFFF8000000000001);

TEST(PowDouble, TheFivePowersThatAreNotComputed) {
  expectPairs(powDouble, {{3.0, 2.0, 0x4022000000000000, "a square"},
                          {-inf, 2.0, 0x7FF0000000000000, "the square of minus infinity"},
                          {negativeNaN, 2.0, 0xFFF8000000000001, "the square of a NaN keeps its sign"},
                          {word(0xFFF0000000000001), 1.0, 0xFFF0000000000001, "a NaN to the power one, as it is"},
                          {nan, 0.0, 0xFFF8000000000000, "a NaN to the power zero is the negative NaN"},
                          {nan, -0.0, 0xFFF8000000000000, "to the power minus zero too"},
                          {-inf, 0.0, 0x3FF0000000000000, "everything else to the power zero is one"},
                          {-0.0, -1.0, 0xFFF0000000000000, "the reciprocal of minus zero"},
                          {negativeNaN, -1.0, 0xFFF8000000000001, "the reciprocal of a NaN"},
                          {-0.0, 0.5, 0x0000000000000000, "the root of minus zero is plus zero"},
                          {-8.0, 0.5, 0x7FF8000000000000, "the root of a negative: the positive default NaN"},
                          {-inf, 0.5, 0x7FF8000000000000, "of minus infinity too"},
                          {negativeNaN, 0.5, 0xFFF8000000000001, "the root of a NaN keeps its sign"}});
}

TEST(PowDouble, InfinitiesZerosAndOnes) {
  expectPairs(powDouble, {{1.0, nan, 0xFFF8000000000000, "one to the power NaN is a NaN"},
                          {nan, 3.0, 0xFFF8000000000000, "a NaN base"},
                          {-1.0, inf, 0x3FF0000000000000, "minus one to the power infinity"},
                          {2.0, -inf, 0x0000000000000000, "a larger base to the power minus infinity"},
                          {-0.5, inf, 0x0000000000000000, "a smaller base to the power infinity"},
                          {0.0, -inf, 0x7FF0000000000000, "zero to the power minus infinity"},
                          {-inf, 3.0, 0xFFF0000000000000, "minus infinity to an odd power"},
                          {-inf, -3.0, 0x8000000000000000, "to a negative odd power"},
                          {-inf, 4.0, 0x7FF0000000000000, "to an even power"},
                          {-inf, 0.25, 0xFFF8000000000000, "to a positive power that is not an integer"},
                          {-inf, -0.25, 0x0000000000000000, "to a negative one"},
                          {-0.0, 3.0, 0x8000000000000000, "minus zero to an odd power"},
                          {-0.0, 0.25, 0x0000000000000000, "to a power that is not an integer"},
                          {-0.0, -3.0, 0xFFF0000000000000, "to a negative odd power"},
                          {-1.0, 9007199254740991.0, 0xBFF0000000000000, "the largest odd power"},
                          {-1.0, 9007199254740992.0, 0x3FF0000000000000, "from there on every power is even"},
                          {-1.0, 0.25, 0xFFF8000000000000, "minus one to a power that is not an integer"}});
}

TEST(PowDouble, Numbers) {
  expectPairs(powDouble, {{-8.0, 1.0 / 3.0, 0xFFF8000000000000, "a negative base needs an integer power"},
                          {2.0, 10.0, 0x4090000000000000, "a power of two is exact"},
                          {-2.0, 3.0, 0xC020000000000000, "minus eight"},
                          {2.0, 1024.0, 0x7FF0000000000000, "overflow"},
                          {-2.0, 1025.0, 0xFFF0000000000000, "negative overflow"},
                          {2.0, -1074.0, 0x0000000000000001, "the smallest subnormal"},
                          {2.0, -1076.0, 0x0000000000000000, "underflow"},
                          {-2.0, -1077.0, 0x8000000000000000, "negative underflow"},
                          {2.0, -1060.0, 0x0000000000004000, "a subnormal result is scaled in the end"}});
}

// Between 2^31 and 2^64 a power may be odd, and still the ends of the range lose the sign of the base.
TEST(PowDouble, HugePowers) {
  expectPairs(powDouble, {{-3.0, 2147483649.0, 0x7FF0000000000000, "beyond 2^31 the sign of the base is lost"},
                          {-3.0, -2147483649.0, 0x0000000000000000, "in a zero too"},
                          {-3.0, 2147483647.0, 0xFFF0000000000000, "up to there it is kept"},
                          {-0.5, 2147483649.0, 0x0000000000000000, "a smaller base"},
                          {-0.5, -2147483649.0, 0x7FF0000000000000, "to a negative power"},
                          {2.0, 0x1p65, 0x7FF0000000000000, "beyond 2^64"},
                          {0x1.fffffffffffffp-1, 0x1p65, 0x0000000000000000, "even next to one"},
                          {0x1.fffffffffffffp-1, -0x1p65, 0x7FF0000000000000, "and to a negative power"}});
}

TEST(PowDouble, EqualsItsStepsOnCornerPairs) { expectSameOnCornerPairs<double>("powDouble", powDouble, bySteps); }

TEST(PowDouble, EqualsItsStepsOnNumberedPairs) {
  expectSameOnNumberedPairs(quickPairs, powerPairAt, powDouble, bySteps);
}

// The result crosses the limits of the range in the smallest steps that the operands allow.
TEST(PowDouble, EqualsItsStepsAroundTheLimits) {
  bitComparison compare("powDouble");
  for (const double limit : {1024.0, -1022.0, -1074.0, -1075.0}) {
    for (const double x : {2.0, 10.0, 1.5, 0.75, 1.0001, 123456.0, 0x1p-1060}) {
      const double middle = limit / std::log2(x);
      for (std::uint64_t distance = 0; distance <= 200; ++distance) {
        for (const std::uint64_t bits : {bitsIn(middle) + distance, bitsIn(middle) - distance}) {
          compare.check(powDouble(x, word(bits)), bySteps(x, word(bits)), x, word(bits));
        }
      }
    }
  }
}

// Bases about the limits of the expansion for huge powers, and at the borders of the two tables' halves.
TEST(PowDouble, EqualsItsStepsAroundTheBordersOfTheBases) {
  bitComparison compare("powDouble");
  for (const std::uint64_t border : {0x3FEFFFFF00000000, 0x3FEFFFFFFFFFFFFF, 0x3FF0000000000000, 0x3FF00000FFFFFFFF,
                                     0x3FF3988E00000000, 0x3FFBB67A00000000, 0x0010000000000000}) {
    for (std::uint64_t bits = border - 40; bits <= border + 40; ++bits) {
      for (const double y : {0x1p31, 0x1.0000000000001p31, -0x1p33, 0x1.5p40, -0x1.7p52, 0x1p64, 1.0e-3, 3.3, -77.7}) {
        compare.check(powDouble(word(bits), y), bySteps(word(bits), y), word(bits), y);
        compare.check(powDouble(-word(bits), y), bySteps(-word(bits), y), -word(bits), y);
      }
    }
  }
}

TEST(LongPowDouble, EqualsItsStepsOnNumberedPairs) {
  expectSameOnNumberedPairs(longPairs, powerPairAt, powDouble, bySteps);
}

}  // namespace
}  // namespace zthalf::testing
