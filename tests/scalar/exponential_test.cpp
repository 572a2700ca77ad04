#include "scalar/exponential.h"

#include <gtest/gtest.h>

#include "tests/scalar/steps_half.h"
#include "tests/support/half_cases.h"
#include "zthalf/half_scalar.h"

namespace zthalf::testing {
namespace {

constexpr halfFunction exp = half_scalar::exp;
constexpr halfFunction expm1 = half_scalar::expm1;
constexpr halfFunction pow2 = half_scalar::pow2;
constexpr halfFunction pow10 = half_scalar::pow10;

TEST(Exp, EqualsItsStepsOnEveryPattern) { expectSameOnEveryPattern("exp", exp, steps::expHalf); }
TEST(Expm1, EqualsItsStepsOnEveryPattern) { expectSameOnEveryPattern("expm1", expm1, steps::expm1Half); }
TEST(Pow2, EqualsItsStepsOnEveryPattern) { expectSameOnEveryPattern("pow2", pow2, steps::pow2Half); }
TEST(Pow10, EqualsItsStepsOnEveryPattern) { expectSameOnEveryPattern("pow10", pow10, steps::pow10Half); }

TEST(Exp, ANaNKeepsItsSign) { expectNaNSigns("exp", exp, 0x7E00, 0xFE00); }
TEST(Expm1, ANaNKeepsItsSign) { expectNaNSigns("expm1", expm1, 0x7E00, 0xFE00); }
TEST(Pow2, EveryNaNGivesTheNegativeNaN) { expectNaNSigns("pow2", pow2, 0xFE00, 0xFE00); }
TEST(Pow10, EveryNaNGivesTheNegativeNaN) { expectNaNSigns("pow10", pow10, 0xFE00, 0xFE00); }

// Powers of two are exact down to the smallest subnormal.
TEST(Pow2, IsExactForIntegers) {
  for (int n = -24; n <= 15; ++n) {
    const half_t x{narrow(static_cast<float>(n))};
    EXPECT_EQ(hex(pow2(x)), hex(half_t{narrow(std::ldexp(1.0f, n))})) << n;
  }
}

TEST_P(HalfFunctionCase, HasTheStatedBits) {
  const halfCase c = GetParam();
  EXPECT_EQ(hex(c.function({c.x})), hex(half_t{c.expected})) << c.why;
}

INSTANTIATE_TEST_SUITE_P(
    Exponentials, HalfFunctionCase,
    ::testing::Values(
        halfCase{exp, 0x4A00, 0x7C00, "exp of 12 overflows in the rounding"},
        halfCase{exp, 0x4A01, 0x7C00, "exp above 12"},
        halfCase{exp, 0x498B, 0x7BF7, "exp of 11.0859, the last one below the overflow"},
        halfCase{exp, 0x498C, 0x7C00, "exp of 11.0938, the first one that overflows"},
        halfCase{exp, 0xCC80, 0x0000, "exp of -18 rounds to zero"}, halfCase{exp, 0xCC81, 0x0000, "exp below -18"},
        halfCase{exp, 0x7C00, 0x7C00, "exp of infinity"}, halfCase{exp, 0xFC00, 0x0000, "exp of minus infinity"},
        halfCase{exp, 0xFE00, 0xFE00, "exp of a negative NaN"},
        halfCase{exp, 0x0000, 0x3C00, "exp of zero, from 0.99981725"},
        halfCase{exp, 0x8000, 0x3C00, "exp of minus zero"}, halfCase{expm1, 0x0000, 0x0000, "expm1 of zero"},
        halfCase{expm1, 0x8000, 0x8000, "expm1 of minus zero"},
        halfCase{expm1, 0x0001, 0x0001, "expm1 of the smallest subnormal"},
        halfCase{expm1, 0x7C00, 0x7C00, "expm1 of infinity"},
        halfCase{expm1, 0xFC00, 0xBC00, "expm1 of minus infinity"}, halfCase{pow10, 0x0000, 0x3C00, "pow10 of zero"},
        halfCase{pow2, 0x0000, 0x3C00, "pow2 of zero"}, halfCase{pow10, 0x8000, 0x3C00, "pow10 of minus zero"},
        halfCase{pow10, 0x7C00, 0x7C00, "pow10 of infinity"}, halfCase{pow2, 0x7C00, 0x7C00, "pow2 of infinity"},
        halfCase{pow10, 0xFC00, 0x0000, "pow10 of minus infinity"},
        halfCase{pow2, 0xFC00, 0x0000, "pow2 of minus infinity"}, halfCase{pow10, 0x7E00, 0xFE00, "pow10 of a NaN"},
        halfCase{pow2, 0x7E00, 0xFE00, "pow2 of a NaN"},
        halfCase{pow10, 0xBF0A, 0x2474, "pow10 of -1.7598, next to a tie: 0x2473 is nearer by a hair"},
        halfCase{pow10, 0x4000, 0x5640, "pow10 of two is a square"},
        halfCase{pow10, 0xBC00, 0x2E66, "pow10 of minus one is a reciprocal"},
        halfCase{pow2, 0xCE00, 0x0001, "pow2 of -24"},
        halfCase{pow2, 0xCE40, 0x0000, "pow2 of -25 is a tie and goes to even"}));

}  // namespace
}  // namespace zthalf::testing
