#include "scalar/logarithm.h"

#include <gtest/gtest.h>

#include "tests/scalar/steps_half.h"
#include "tests/support/half_cases.h"
#include "zthalf/half_scalar.h"

namespace zthalf::testing {
namespace {

constexpr halfFunction log = half_scalar::log;
constexpr halfFunction log1p = half_scalar::log1p;
constexpr halfFunction log2 = half_scalar::log2;
constexpr halfFunction log10 = half_scalar::log10;

TEST(Log, EqualsItsStepsOnEveryPattern) { expectSameOnEveryPattern("log", log, steps::logHalf); }
TEST(Log1p, EqualsItsStepsOnEveryPattern) { expectSameOnEveryPattern("log1p", log1p, steps::log1pHalf); }
TEST(Log2, EqualsItsStepsOnEveryPattern) { expectSameOnEveryPattern("log2", log2, steps::log2Half); }
TEST(Log10, EqualsItsStepsOnEveryPattern) { expectSameOnEveryPattern("log10", log10, steps::log10Half); }

TEST(Log, ANaNKeepsItsSign) { expectNaNSigns("log", log, 0x7E00, 0xFE00); }
TEST(Log1p, ANaNKeepsItsSign) { expectNaNSigns("log1p", log1p, 0x7E00, 0xFE00); }
TEST(Log2, ANaNKeepsItsSign) { expectNaNSigns("log2", log2, 0x7E00, 0xFE00); }
TEST(Log10, ANaNKeepsItsSign) { expectNaNSigns("log10", log10, 0x7E00, 0xFE00); }

TEST(Logarithms, ANegativeNumberGivesTheNegativeNaN) {
  bitComparison compare("logarithm of a negative number");
  for (std::uint32_t p = 0x8001; p <= 0xFC00; ++p) {
    const half_t x{static_cast<std::uint16_t>(p)};
    for (const halfFunction f : {log, log2, log10}) compare.check(f(x), std::uint16_t{0xFE00}, x);
    if (p > 0xBC00) compare.check(log1p(x), std::uint16_t{0xFE00}, x);
  }
}

TEST(Log2, IsExactForPowersOfTwo) {
  for (int n = -24; n <= 15; ++n) {
    const half_t x{narrow(std::ldexp(1.0f, n))};
    EXPECT_EQ(hex(log2(x)), hex(half_t{narrow(static_cast<float>(n))})) << n;
  }
}

TEST(SplitOf, EqualsItsStepsOnEveryPattern) {
  bitComparison fraction("fraction"), exponent("exponent");
  for (std::uint32_t p = 0; p <= 0xFFFF; ++p) {
    const half_t x{static_cast<std::uint16_t>(p)};
    const auto expected = steps::splitHalf(x);
    fraction.check(splitOf(x.bits).fraction, expected.fraction, x);
    exponent.check(splitOf(x.bits).exponent, expected.exponent, x);
  }
}

// fraction * 2^exponent is x again, exactly.
TEST(SplitOf, PutTogetherAgainGivesTheNumber) {
  for (std::uint32_t p = 0; p <= 0xFFFF; ++p) {
    const auto x = static_cast<std::uint16_t>(p);
    if (!pattern::isFinite(x)) continue;
    const fractionAndExponent parts = splitOf(x);
    const auto e = static_cast<int>(widen<float>(parts.exponent));
    ASSERT_EQ(std::ldexp(widen<float>(parts.fraction), e), widen<float>(x)) << hex(x);
    if (!pattern::isZero(x)) {
      ASSERT_GE(pattern::magnitudeOf(parts.fraction), 0x3800) << hex(x);
      ASSERT_LT(pattern::magnitudeOf(parts.fraction), 0x3C00) << hex(x);
    }
  }
}

struct SplitCase {
  std::uint16_t x;
  std::uint16_t fraction;
  std::uint16_t exponent;
  char const* why;
};

void PrintTo(SplitCase const& c, std::ostream* out) { *out << c.why; }

class SplitOfCase : public ::testing::TestWithParam<SplitCase> {};

TEST_P(SplitOfCase, HasTheStatedBits) {
  const SplitCase c = GetParam();
  EXPECT_EQ(hex(splitOf(c.x).fraction), hex(c.fraction)) << c.why;
  EXPECT_EQ(hex(splitOf(c.x).exponent), hex(c.exponent)) << c.why;
}

INSTANTIATE_TEST_SUITE_P(Splits, SplitOfCase,
                         ::testing::Values(SplitCase{0x3C00, 0x3800, 0x3C00, "one"},
                                           SplitCase{0x0001, 0x3800, 0xCDC0, "the smallest subnormal: -23"},
                                           SplitCase{0x7C00, 0x7C00, 0x0000, "infinity"},
                                           SplitCase{0xFC00, 0xFC00, 0x0000, "minus infinity"},
                                           SplitCase{0x0000, 0x0000, 0x0000, "zero"},
                                           SplitCase{0x8000, 0x8000, 0x0000, "minus zero"},
                                           SplitCase{0xFC01, 0xFE00, 0x0000, "a NaN is made quiet, its sign kept"},
                                           SplitCase{0x3800, 0x3800, 0x0000, "a half has an exponent of plus zero"},
                                           SplitCase{0xC200, 0xBA00, 0x4000, "minus three"},
                                           SplitCase{0x7BFF, 0x3BFF, 0x4C00, "65504"}));

TEST_P(HalfFunctionCase, HasTheStatedBits) {
  const halfCase c = GetParam();
  EXPECT_EQ(hex(c.function({c.x})), hex(half_t{c.expected})) << c.why;
}

INSTANTIATE_TEST_SUITE_P(
    Logarithms, HalfFunctionCase,
    ::testing::Values(
        halfCase{log, 0x0000, 0xFC00, "log of zero"}, halfCase{log, 0x8000, 0xFC00, "log of minus zero"},
        halfCase{log, 0x7C00, 0x7C00, "log of infinity"}, halfCase{log, 0x3C00, 0x0000, "log of one"},
        halfCase{log, 0xBC00, 0xFE00, "log of minus one, unlike the root"},
        halfCase{log, 0xFC00, 0xFE00, "log of minus infinity"}, halfCase{log1p, 0xBC00, 0xFC00, "log1p of minus one"},
        halfCase{log1p, 0xBC01, 0xFE00, "log1p below minus one"},
        halfCase{log1p, 0x8000, 0x8000, "log1p of minus zero"},
        halfCase{log1p, 0x0001, 0x0001, "log1p of the smallest subnormal"},
        halfCase{log1p, 0x7C00, 0x7C00, "log1p of infinity"},
        halfCase{log1p, 0xFC00, 0xFE00, "log1p of minus infinity"}, halfCase{log2, 0x3C00, 0x0000, "log2 of one"},
        halfCase{log2, 0x4000, 0x3C00, "log2 of two"},
        halfCase{log2, 0x0001, 0xCE00, "log2 of the smallest subnormal is -24"},
        halfCase{log2, 0x0000, 0xFC00, "log2 of zero"}, halfCase{log2, 0x8000, 0xFC00, "log2 of minus zero"},
        halfCase{log2, 0x7C00, 0x7C00, "log2 of infinity"}, halfCase{log2, 0xFC00, 0xFE00, "log2 of minus infinity"},
        halfCase{log10, 0x3C00, 0x0000, "log10 of one"}, halfCase{log10, 0x4900, 0x3C00, "log10 of ten"},
        halfCase{log10, 0x0000, 0xFC00, "log10 of zero"}, halfCase{log10, 0x8000, 0xFC00, "log10 of minus zero"},
        halfCase{log10, 0x7C00, 0x7C00, "log10 of infinity"},
        halfCase{log10, 0xFC00, 0xFE00, "log10 of minus infinity"}));

}  // namespace
}  // namespace zthalf::testing
