
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

constexpr halfFunction sinh = half_scalar::sinh;
constexpr halfFunction cosh = half_scalar::cosh;
constexpr halfFunction tanh = half_scalar::tanh;
constexpr halfFunction asinh = half_scalar::asinh;
constexpr halfFunction acosh = half_scalar::acosh;
constexpr halfFunction atanh = half_scalar::atanh;

TEST(Sinh, EqualsItsStepsOnEveryPattern) { expectSameOnEveryPattern("sinh", sinh, bySteps<steps::sinh>); }
TEST(Cosh, EqualsItsStepsOnEveryPattern) { expectSameOnEveryPattern("cosh", cosh, bySteps<steps::cosh>); }
TEST(Tanh, EqualsItsStepsOnEveryPattern) { expectSameOnEveryPattern("tanh", tanh, bySteps<steps::tanh>); }
TEST(Asinh, EqualsItsStepsOnEveryPattern) { expectSameOnEveryPattern("asinh", asinh, bySteps<steps::asinh>); }
TEST(Acosh, EqualsItsStepsOnEveryPattern) { expectSameOnEveryPattern("acosh", acosh, bySteps<steps::acosh>); }
TEST(Atanh, EqualsItsStepsOnEveryPattern) { expectSameOnEveryPattern("atanh", atanh, bySteps<steps::atanh>); }

TEST(Sinh, ANaNKeepsItsSign) { expectNaNSigns("sinh", sinh, 0x7E00, 0xFE00); }
TEST(Cosh, ANaNKeepsItsSign) { expectNaNSigns("cosh", cosh, 0x7E00, 0xFE00); }
TEST(Tanh, EveryNaNGivesThePositiveNaN) { expectNaNSigns("tanh", tanh, 0x7E00, 0x7E00); }
TEST(Asinh, ANaNKeepsItsSign) { expectNaNSigns("asinh", asinh, 0x7E00, 0xFE00); }
TEST(Acosh, ANaNKeepsItsSign) { expectNaNSigns("acosh", acosh, 0x7E00, 0xFE00); }
TEST(Atanh, EveryNaNGivesTheNegativeNaN) { expectNaNSigns("atanh", atanh, 0xFE00, 0xFE00); }

TEST_P(HalfFunctionCase, HasTheStatedBits) {
  const halfCase c = GetParam();
  EXPECT_EQ(hex(c.function({c.x})), hex(half_t{c.expected})) << c.why;
}

INSTANTIATE_TEST_SUITE_P(
    Hyperbolic, HalfFunctionCase,
    ::testing::Values(
        halfCase{sinh, 0x7C00, 0x7C00, "sinh of infinity"}, halfCase{sinh, 0xFC00, 0xFC00, "sinh of minus infinity"},
        halfCase{sinh, 0x0000, 0x0000, "sinh of zero"}, halfCase{sinh, 0x8000, 0x8000, "sinh of minus zero"},
        halfCase{sinh, 0xD640, 0xFC00, "sinh of -100 overflows"},
        halfCase{cosh, 0xFC00, 0x7C00, "cosh of minus infinity"},
        halfCase{cosh, 0xD640, 0x7C00, "cosh of -100 overflows"}, halfCase{cosh, 0x7C00, 0x7C00, "cosh of infinity"},
        halfCase{cosh, 0x8000, 0x3C00, "cosh of minus zero"}, halfCase{tanh, 0x4890, 0x3C00, "tanh of 9.125"},
        halfCase{tanh, 0xC890, 0xBC00, "tanh of -9.125"}, halfCase{tanh, 0x8000, 0x8000, "tanh of minus zero"},
        halfCase{tanh, 0xFE00, 0x7E00, "tanh of a NaN"}, halfCase{tanh, 0x7C00, 0x3C00, "tanh of infinity"},
        halfCase{tanh, 0xFC00, 0xBC00, "tanh of minus infinity"},
        halfCase{asinh, 0xFC00, 0xFC00, "asinh of minus infinity"},
        halfCase{asinh, 0x7C00, 0x7C00, "asinh of infinity"}, halfCase{asinh, 0x8000, 0x8000, "asinh of minus zero"},
        halfCase{acosh, 0x3C00, 0x0000, "acosh of one"}, halfCase{acosh, 0x7C00, 0x7C00, "acosh of infinity"},
        halfCase{atanh, 0x3C00, 0x7C00, "atanh of one"}, halfCase{atanh, 0xBC00, 0xFC00, "atanh of minus one"},
        halfCase{atanh, 0x0000, 0x0000, "atanh of zero"}, halfCase{atanh, 0x8000, 0x8000, "atanh of minus zero"},
        halfCase{acosh, 0x3BFF, 0xFE00, "acosh just below one"}, halfCase{acosh, 0x0000, 0xFE00, "acosh of zero"},
        halfCase{acosh, 0x8000, 0xFE00, "acosh of minus zero"}, halfCase{acosh, 0xBC00, 0xFE00, "acosh of minus one"},
        halfCase{acosh, 0xFC00, 0xFE00, "acosh of minus infinity"},
        halfCase{acosh, 0xFE00, 0xFE00, "acosh of a NaN with its sign set"},
        halfCase{atanh, 0x3C01, 0xFE00, "atanh just above one"},
        halfCase{atanh, 0xBC01, 0xFE00, "atanh just below minus one"},
        halfCase{atanh, 0x7C00, 0xFE00, "atanh of infinity"},
        halfCase{atanh, 0xFC00, 0xFE00, "atanh of minus infinity"}));

}  // namespace
}  // namespace zthalf::testing
