// pow2 of two arguments: scaling by a power of two, of halves, floats and doubles.
#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "tests/scalar/mixed_operands_at.h"
#include "tests/support/known.h"
#include "tests/support/patterns.h"
#include "tests/support/reference.h"
#include "zthalf/half_scalar.h"

namespace zthalf::testing {
namespace {

// The C library's scaling, in the type of x that has room for it.
template <class Wide>
std::uint16_t scaled(Wide x, Wide y) {
  if (std::isnan(y)) return 0x7E00;
  if (std::isnan(x)) return std::signbit(x) ? 0xFE00 : 0x7E00;
  const int n = y > Wide(1100) ? 1100 : y < Wide(-1100) ? -1100 : static_cast<int>(y);
  return reference::narrowed(std::scalbn(x, n));
}

std::uint16_t pow2(auto x, auto y) { return half_scalar::pow2(x, y).bits; }

using pair = knownPair<std::uint16_t, std::uint16_t, std::uint16_t>;
class Pow2WithExponent : public ::testing::TestWithParam<pair> {};

TEST_P(Pow2WithExponent, IsTheKnownResultInEveryForm) {
  const auto [x, y, expected, why] = GetParam();
  EXPECT_EQ(hex(pow2(half_t{x}, half_t{y})), hex(expected)) << why;
  EXPECT_EQ(hex(pow2(half_t{x}, widen<float>(y))), hex(expected)) << why;
  EXPECT_EQ(hex(pow2(half_t{x}, widen<double>(y))), hex(expected)) << why;
  EXPECT_EQ(hex(pow2(widen<float>(x), half_t{y})), hex(expected)) << why;
  EXPECT_EQ(hex(pow2(widen<double>(x), half_t{y})), hex(expected)) << why;
}

INSTANTIATE_TEST_SUITE_P(
    Known, Pow2WithExponent,
    ::testing::Values(pair{0x4200, 0x4100, 0x4A00, "3 * 2^2.5 is 12"}, pair{0x4200, 0x3B33, 0x4200, "2^0.9 is 1"},
                      pair{0x4200, 0xBB33, 0x4200, "2^-0.9 too"}, pair{0x4200, 0xC100, 0x3A00, "3 * 2^-2.5"},
                      pair{0x3C00, 0x7BFF, 0x7C00, "a large exponent overflows"},
                      pair{0x0000, 0x7BFF, 0x0000, "but not a zero"},
                      pair{0x8000, 0x7C00, 0x8000, "a zero keeps its sign, even for an infinite exponent"},
                      pair{0xFC00, 0xFC00, 0xFC00, "an infinity stays one"},
                      pair{0xBC00, 0xFC00, 0x8000, "a number vanishes with its sign"},
                      pair{0x3C00, 0xCE00, 0x0001, "2^-24"}, pair{0x3C00, 0xCE40, 0x0000, "2^-25 is a tie"},
                      pair{0x4200, 0xCE40, 0x0002, "3 * 2^-25 is one too, and rounds to even"},
                      pair{0x0001, 0x5000, 0x5C00, "2^-24 * 2^32"}, pair{0x0001, 0x5040, 0x6400, "2^-24 * 2^34"}));

INSTANTIATE_TEST_SUITE_P(NaNs, Pow2WithExponent,
                         ::testing::Values(pair{0x3C00, 0x7E00, 0x7E00, "a NaN exponent"},
                                           pair{0x3C00, 0xFE00, 0x7E00, "gives the positive NaN"},
                                           pair{0xFE00, 0xFC01, 0x7E00, "whatever x is"},
                                           pair{0x7C00, 0x7E00, 0x7E00, "an infinity too"},
                                           pair{0xFE00, 0x3C00, 0xFE00, "a NaN x keeps its sign"},
                                           pair{0x7C01, 0xFC00, 0x7E00, "and is made quiet"}));

TEST(Pow2WithExponent, OfHalvesIsTheLibrarysScaling) {
  bitComparison compare("pow2");
  forEveryCuratedPair([&](std::uint16_t x, std::uint16_t y) {
    compare.check(pow2(half_t{x}, half_t{y}), scaled(widen<float>(x), widen<float>(y)), x, y);
  });
}

template <class Wide>
void expectScaling() {
  const auto halfFirst = [](std::uint16_t x, Wide y) { return pow2(half_t{x}, y); };
  const auto wideFirst = [](Wide x, std::uint16_t y) { return pow2(x, half_t{y}); };
  expectSameOnMixedPairs<Wide>("pow2", halfFirst, wideFirst, scaled<Wide>);
}

TEST(Pow2WithExponent, WithFloatsIsTheLibrarysScaling) { expectScaling<float>(); }
TEST(Pow2WithExponent, WithDoublesIsTheLibrarysScaling) { expectScaling<double>(); }

// Every exponent that makes a difference, for numbers at the ends of each type's range.
TEST(Pow2WithExponent, HasTheWholeRangeOfItsWiderOperand) {
  bitComparison compare("pow2");
  for (int n = -1200; n <= 1200; ++n) {
    const half_t exponent{reference::narrowed(static_cast<float>(n))};
    const auto y = widen<double>(exponent.bits);
    for (const float x : {0x1p-149f, -0x1.8p-126f, 1.0f, -0x1.554p3f, 0x1.fffffep127f}) {
      compare.check(pow2(x, exponent), scaled(x, static_cast<float>(y)), x, exponent);
    }
    for (const double x : {0x1p-1074, -0x1.8p-1022, 0x1.ffep-1023, 1.0, -0x1.554p3, 0x1.fffffffffffffp1023}) {
      compare.check(pow2(x, exponent), scaled(x, y), x, exponent);
    }
  }
}

TEST(Pow2WithExponent, TakesExponentsBeyondEveryInteger) {
  EXPECT_EQ(hex(pow2(half_t{0x3C00}, 100000.0f)), "0x7C00");
  EXPECT_EQ(hex(pow2(half_t{0x0000}, 100000.0)), "0x0000");
  EXPECT_EQ(hex(pow2(half_t{0x3C00}, 1e300)), "0x7C00");
  EXPECT_EQ(hex(pow2(half_t{0xBC00}, -std::numeric_limits<double>::infinity())), "0x8000");
}

}  // namespace
}  // namespace zthalf::testing
