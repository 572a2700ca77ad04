
#include <gtest/gtest.h>

#include "tests/scalar/kernels/inverse_and_hyperbolic_steps.h"
#include "tests/scalar/steps_half.h"
#include "tests/support/half_cases.h"
#include "zthalf/half_scalar.h"

namespace zthalf::testing {
namespace {

template <steps::step (*kernel)(steps::step)>
half_t bySteps(half_t x) {
  return steps::rounded(kernel(steps::widened(x)));
}

constexpr halfFunction asin = half_scalar::asin;
constexpr halfFunction acos = half_scalar::acos;
constexpr halfFunction atan = half_scalar::atan;

TEST(Asin, EqualsItsStepsOnEveryPattern) { expectSameOnEveryPattern("asin", asin, bySteps<steps::asin>); }
TEST(Acos, EqualsItsStepsOnEveryPattern) { expectSameOnEveryPattern("acos", acos, bySteps<steps::acos>); }
TEST(Atan, EqualsItsStepsOnEveryPattern) { expectSameOnEveryPattern("atan", atan, bySteps<steps::atan>); }

TEST(Asin, EveryNaNGivesTheNegativeNaN) { expectNaNSigns("asin", asin, 0xFE00, 0xFE00); }
TEST(Acos, EveryNaNGivesTheNegativeNaN) { expectNaNSigns("acos", acos, 0xFE00, 0xFE00); }
TEST(Atan, EveryNaNGivesTheNegativeNaN) { expectNaNSigns("atan", atan, 0xFE00, 0xFE00); }

TEST_P(HalfFunctionCase, HasTheStatedBits) {
  const halfCase c = GetParam();
  EXPECT_EQ(hex(c.function({c.x})), hex(half_t{c.expected})) << c.why;
}

INSTANTIATE_TEST_SUITE_P(
    InverseTrigonometric, HalfFunctionCase,
    ::testing::Values(
        halfCase{asin, 0x3C00, 0x3E48, "asin of one"}, halfCase{asin, 0xBC00, 0xBE48, "asin of minus one"},
        halfCase{asin, 0x0000, 0x0000, "asin of zero"}, halfCase{asin, 0x8000, 0x8000, "asin of minus zero"},
        halfCase{acos, 0xBC00, 0x4248, "acos of minus one"}, halfCase{acos, 0x3C00, 0x0000, "acos of one"},
        halfCase{acos, 0x0000, 0x3E48, "acos of zero"}, halfCase{atan, 0x7C00, 0x3E48, "atan of infinity"},
        halfCase{atan, 0xFC00, 0xBE48, "atan of minus infinity"}, halfCase{atan, 0x0000, 0x0000, "atan of zero"},
        halfCase{atan, 0x8000, 0x8000, "atan of minus zero"},
        halfCase{atan, 0x7BFF, 0x3E48, "atan of the largest half"},
        halfCase{asin, 0x3C01, 0xFE00, "asin just above one"},
        halfCase{asin, 0xBC01, 0xFE00, "asin just below minus one"},
        halfCase{asin, 0x7BFF, 0xFE00, "asin of the largest half"}, halfCase{asin, 0x7C00, 0xFE00, "asin of infinity"},
        halfCase{asin, 0xFC00, 0xFE00, "asin of minus infinity"}, halfCase{acos, 0x3C01, 0xFE00, "acos just above one"},
        halfCase{acos, 0xBC01, 0xFE00, "acos just below minus one"},
        halfCase{acos, 0x7BFF, 0xFE00, "acos of the largest half"}, halfCase{acos, 0x7C00, 0xFE00, "acos of infinity"},
        halfCase{acos, 0xFC00, 0xFE00, "acos of minus infinity"}));

}  // namespace
}  // namespace zthalf::testing
