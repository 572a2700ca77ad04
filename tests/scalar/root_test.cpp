
#include <gtest/gtest.h>

#include "tests/scalar/steps_half.h"
#include "tests/support/half_cases.h"
#include "zthalf/half_scalar.h"

namespace zthalf::testing {
namespace {

constexpr halfFunction sqrt = half_scalar::sqrt;
constexpr halfFunction rsqrt = half_scalar::rsqrt;

TEST(Sqrt, EqualsItsStepsOnEveryPattern) { expectSameOnEveryPattern("sqrt", sqrt, steps::sqrtHalf); }
TEST(Rsqrt, EqualsItsStepsOnEveryPattern) { expectSameOnEveryPattern("rsqrt", rsqrt, steps::rsqrtHalf); }

TEST(Sqrt, ANaNKeepsItsSign) { expectNaNSigns("sqrt", sqrt, 0x7E00, 0xFE00); }
TEST(Rsqrt, ANaNKeepsItsSign) { expectNaNSigns("rsqrt", rsqrt, 0x7E00, 0xFE00); }

TEST(Roots, ANegativeNumberGivesThePositiveNaN) {
  bitComparison compare("root of a negative number");
  for (std::uint32_t p = 0x8001; p <= 0xFC00; ++p) {
    const half_t x{static_cast<std::uint16_t>(p)};
    compare.check(sqrt(x), std::uint16_t{0x7E00}, x);
    compare.check(rsqrt(x), std::uint16_t{0x7E00}, x);
  }
}

TEST_P(HalfFunctionCase, HasTheStatedBits) {
  const halfCase c = GetParam();
  EXPECT_EQ(hex(c.function({c.x})), hex(half_t{c.expected})) << c.why;
}

INSTANTIATE_TEST_SUITE_P(Roots, HalfFunctionCase,
                         ::testing::Values(halfCase{sqrt, 0x8000, 0x0000, "sqrt of minus zero is plus zero"},
                                           halfCase{sqrt, 0x0000, 0x0000, "sqrt of zero"},
                                           halfCase{sqrt, 0xBC00, 0x7E00, "sqrt of minus one"},
                                           halfCase{sqrt, 0x7C00, 0x7C00, "sqrt of infinity"},
                                           halfCase{sqrt, 0xFC00, 0x7E00, "sqrt of minus infinity"},
                                           halfCase{sqrt, 0x4400, 0x4000, "sqrt of four"},
                                           halfCase{sqrt, 0x0001, 0x0C00, "sqrt of the smallest subnormal, 2^-12"},
                                           halfCase{rsqrt, 0x8000, 0x7C00, "rsqrt of minus zero is plus infinity"},
                                           halfCase{rsqrt, 0x0000, 0x7C00, "rsqrt of zero"},
                                           halfCase{rsqrt, 0x7C00, 0x0000, "rsqrt of infinity"},
                                           halfCase{rsqrt, 0xBC00, 0x7E00, "rsqrt of minus one"},
                                           halfCase{rsqrt, 0xFC00, 0x7E00, "rsqrt of minus infinity"},
                                           halfCase{rsqrt, 0x0001, 0x6C00, "rsqrt of the smallest subnormal, 4096"}));

}  // namespace
}  // namespace zthalf::testing
