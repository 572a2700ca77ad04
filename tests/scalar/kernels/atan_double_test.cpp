#include "scalar/kernels/atan_double.h"

#include <gtest/gtest.h>

#include <initializer_list>

#include "tests/scalar/kernels/pair_comparison.h"
#include "tests/scalar/kernels/steps_double.h"

namespace zthalf::testing {
namespace {

using qsl_scalar::atanDouble;

double bySteps(double x) { return steps::doubles::atan(x).value(); }

struct doubleCase {
  std::uint64_t x;
  std::uint64_t expected;
  char const* why;
};

TEST(AtanDouble, SpecialArguments) {
  for (doubleCase const& c : {
           doubleCase{0x0000000000000000, 0x0000000000000000, "zero"},
           doubleCase{0x8000000000000000, 0x8000000000000000, "minus zero keeps its sign"},
           doubleCase{0x0000000000000001, 0x0000000000000001, "the smallest subnormal is its own result"},
           doubleCase{0x3E1FFFFFFFFFFFFF, 0x3E1FFFFFFFFFFFFF, "just below 2^-29 too"},
           doubleCase{0x7FF0000000000000, 0x3FF921FB54442D18, "infinity"},
           doubleCase{0xFFF0000000000000, 0xBFF921FB54442D18, "minus infinity"},
           doubleCase{0x4410000000000000, 0x3FF921FB54442D18, "2^66, the first that is half pi by decision"},
           doubleCase{0x7FF8000000000000, 0xFFF8000000000000, "a positive NaN"},
           doubleCase{0xFFF8123456789ABC, 0xFFF8000000000000, "a negative NaN"},
           doubleCase{0x7FF0000000000001, 0xFFF8000000000000, "a signalling NaN"},
           doubleCase{0x3FF0000000000000, 0x3FE921FB54442D18, "one"},
           doubleCase{0xBFF0000000000000, 0xBFE921FB54442D18, "minus one"},
       }) {
    EXPECT_EQ(hex(atanDouble(std::bit_cast<double>(c.x))), hex(c.expected)) << c.why;
  }
}

TEST(AtanDouble, EqualsItsStepsAroundEveryBoundary) {
  bitComparison compare("atanDouble");
  for (const std::uint64_t boundary : {0x3E20000000000000, 0x3FDC000000000000, 0x3FE6000000000000, 0x3FF3000000000000,
                                       0x4003800000000000, 0x4410000000000000}) {
    for (std::uint64_t word = boundary - 300; word != boundary + 300; ++word) {
      const double x = std::bit_cast<double>(word);
      compare.check(atanDouble(x), bySteps(x), x);
      compare.check(atanDouble(-x), bySteps(-x), -x);
    }
  }
}

// The operands of the pairs, one at a time.
TEST(AtanDouble, EqualsItsStepsOnNumberedOperands) {
  const auto kernel = [](double x, double y) { return bitsIn(atanDouble(x)) ^ scrambled(bitsIn(atanDouble(y))); };
  const auto expected = [](double x, double y) { return bitsIn(bySteps(x)) ^ scrambled(bitsIn(bySteps(y))); };
  expectSameOnNumberedPairs(quickPairs, pairAt<double>, kernel, expected);
}

}  // namespace
}  // namespace zthalf::testing
