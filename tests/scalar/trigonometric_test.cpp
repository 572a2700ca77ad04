
#include <gtest/gtest.h>

#include "tests/scalar/kernels/trigonometric_steps.h"
#include "tests/scalar/steps_half.h"
#include "tests/support/half_cases.h"
#include "zthalf/half_scalar.h"

namespace zthalf::testing {
namespace {

template <steps::step (*kernel)(steps::step)>
half_t bySteps(half_t x) {
  return steps::rounded(kernel(steps::widened(x)));
}

constexpr halfFunction sin = half_scalar::sin;
constexpr halfFunction cos = half_scalar::cos;
constexpr halfFunction tan = half_scalar::tan;
constexpr halfFunction sinpi = half_scalar::sinpi;
constexpr halfFunction cospi = half_scalar::cospi;

TEST(Sin, EqualsItsStepsOnEveryPattern) { expectSameOnEveryPattern("sin", sin, bySteps<steps::sin>); }
TEST(Cos, EqualsItsStepsOnEveryPattern) { expectSameOnEveryPattern("cos", cos, bySteps<steps::cos>); }
TEST(Tan, EqualsItsStepsOnEveryPattern) { expectSameOnEveryPattern("tan", tan, bySteps<steps::tan>); }
TEST(Sinpi, EqualsItsStepsOnEveryPattern) { expectSameOnEveryPattern("sinpi", sinpi, bySteps<steps::sinpi>); }
TEST(Cospi, EqualsItsStepsOnEveryPattern) { expectSameOnEveryPattern("cospi", cospi, bySteps<steps::cospi>); }

TEST(Sin, EveryNaNGivesTheNegativeNaN) { expectNaNSigns("sin", sin, 0xFE00, 0xFE00); }
TEST(Cos, EveryNaNGivesTheNegativeNaN) { expectNaNSigns("cos", cos, 0xFE00, 0xFE00); }
TEST(Tan, EveryNaNGivesTheNegativeNaN) { expectNaNSigns("tan", tan, 0xFE00, 0xFE00); }
TEST(Sinpi, EveryNaNGivesTheNegativeNaN) { expectNaNSigns("sinpi", sinpi, 0xFE00, 0xFE00); }
TEST(Cospi, EveryNaNGivesTheNegativeNaN) { expectNaNSigns("cospi", cospi, 0xFE00, 0xFE00); }

TEST_P(HalfFunctionCase, HasTheStatedBits) {
  const halfCase c = GetParam();
  EXPECT_EQ(hex(c.function({c.x})), hex(half_t{c.expected})) << c.why;
}

INSTANTIATE_TEST_SUITE_P(
    Trigonometric, HalfFunctionCase,
    ::testing::Values(
        halfCase{sin, 0x7BFF, 0x3BCE, "sin of 65504, by the digits of 2/pi"},
        halfCase{cos, 0x7BFF, 0xB30F, "cos of 65504, by the digits of 2/pi"},
        halfCase{sin, 0x5A48, 0xABEC, "sin of 201, by repeated subtraction"},
        halfCase{sin, 0x5A49, 0x2C09, "sin of 201.125, by the digits"}, halfCase{sin, 0x0000, 0x0000, "sin of zero"},
        halfCase{sin, 0x8000, 0x8000, "sin of minus zero"},
        halfCase{sin, 0x0001, 0x0001, "sin of the smallest subnormal"}, halfCase{cos, 0x0000, 0x3C00, "cos of zero"},
        halfCase{cos, 0x8000, 0x3C00, "cos of minus zero"}, halfCase{sinpi, 0x3C00, 0x0000, "sinpi of one"},
        halfCase{sinpi, 0xBC00, 0x8000, "sinpi of minus one"},
        halfCase{sinpi, 0x3800, 0x3C00, "sinpi of a half, a stated result"},
        halfCase{sinpi, 0x5640, 0x0000, "sinpi of 100, through the remainder"},
        halfCase{sinpi, 0xD640, 0x8000, "sinpi of -100"},
        halfCase{sinpi, 0x2D55, 0x3424, "sinpi of 0.08331, not quite 1/12: the series"},
        halfCase{sinpi, 0x3555, 0x3AED, "sinpi of 0.33325, not quite 1/3: the series"},
        halfCase{sinpi, 0x3400, 0x39A8, "sinpi of a quarter"},
        halfCase{sinpi, 0x7BFF, 0x0000, "sinpi of the largest half"},
        halfCase{cospi, 0x3800, 0x0000, "cospi of a half"}, halfCase{cospi, 0xB800, 0x0000, "cospi of minus a half"},
        halfCase{cospi, 0x3C00, 0xBC00, "cospi of one"}, halfCase{cospi, 0x7BFF, 0x3C00, "cospi of the largest half"},
        halfCase{tan, 0x0000, 0x0000, "tan of zero"}, halfCase{tan, 0x8000, 0x8000, "tan of minus zero"},
        halfCase{tan, 0x3E48, 0x6809, "tan of 1.5703, about pi/2, is large and finite: 2066"},
        halfCase{tan, 0xBE48, 0xE809, "its mirror image"}, halfCase{sin, 0x7C00, 0xFE00, "sin of infinity"},
        halfCase{sin, 0xFC00, 0xFE00, "sin of minus infinity"}, halfCase{cos, 0x7C00, 0xFE00, "cos of infinity"},
        halfCase{cos, 0xFC00, 0xFE00, "cos of minus infinity"}, halfCase{tan, 0x7C00, 0xFE00, "tan of infinity"},
        halfCase{tan, 0xFC00, 0xFE00, "tan of minus infinity"}, halfCase{sinpi, 0x7C00, 0xFE00, "sinpi of infinity"},
        halfCase{sinpi, 0xFC00, 0xFE00, "sinpi of minus infinity"},
        halfCase{cospi, 0x7C00, 0xFE00, "cospi of infinity"},
        halfCase{cospi, 0xFC00, 0xFE00, "cospi of minus infinity"}));

}  // namespace
}  // namespace zthalf::testing
