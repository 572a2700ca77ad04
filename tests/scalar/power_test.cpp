// power of halves, and of halves with floats and doubles.
#include <gtest/gtest.h>

#include <limits>

#include "tests/scalar/kernels/pow_steps_double.h"
#include "tests/scalar/kernels/steps_single.h"
#include "tests/scalar/mixed_operands_at.h"
#include "tests/support/known.h"
#include "tests/support/patterns.h"
#include "tests/support/reference.h"
#include "zthalf/half_scalar.h"

namespace zthalf::testing {
namespace {

std::uint16_t ofFloats(float x, float y) { return reference::narrowed(steps::pow(x, y).value()); }
std::uint16_t ofDoubles(double x, double y) { return reference::narrowed(steps::doubles::pow(x, y).value()); }

std::uint16_t power(auto x, auto y) { return half_scalar::power(x, y).bits; }

using pair = knownPair<std::uint16_t, std::uint16_t, std::uint16_t>;
class Power : public ::testing::TestWithParam<pair> {};

TEST_P(Power, IsTheKnownResultInEveryForm) {
  const auto [x, y, expected, why] = GetParam();
  EXPECT_EQ(hex(power(half_t{x}, half_t{y})), hex(expected)) << why;
  EXPECT_EQ(hex(power(half_t{x}, widen<float>(y))), hex(expected)) << why;
  EXPECT_EQ(hex(power(half_t{x}, widen<double>(y))), hex(expected)) << why;
  EXPECT_EQ(hex(power(widen<float>(x), half_t{y})), hex(expected)) << why;
  EXPECT_EQ(hex(power(widen<double>(x), half_t{y})), hex(expected)) << why;
}

INSTANTIATE_TEST_SUITE_P(Numbers, Power,
                         ::testing::Values(pair{0x4000, 0x4900, 0x6400, "2 to the power 10"},
                                           pair{0xC000, 0x4200, 0xC800, "-2 cubed"},
                                           pair{0xC800, 0x3555, 0xFE00, "-8 to a third"},
                                           pair{0x4400, 0x3800, 0x4000, "the root of 4"},
                                           pair{0x4400, 0xBC00, 0x3400, "the reciprocal of 4"},
                                           pair{0xC400, 0x3800, 0x7E00, "the root of -4 is the positive NaN"},
                                           pair{0x4900, 0x4500, 0x7C00, "10 to the power 5 overflows"},
                                           pair{0xC900, 0x4500, 0xFC00, "with the sign of an odd power"},
                                           pair{0x4900, 0xC900, 0x0000, "10 to the power -10 vanishes"},
                                           pair{0x4000, 0xCE00, 0x0001, "2 to the power -24"},
                                           pair{0x4200, 0x8000, 0x3C00, "to minus zero"}));

INSTANTIATE_TEST_SUITE_P(
    SpecialValues, Power,
    ::testing::Values(pair{0x7E00, 0x0000, 0xFE00, "a NaN to the power 0 is a NaN"},
                      pair{0x3C00, 0x7E00, 0xFE00, "one to the power NaN is a NaN"},
                      pair{0x7E00, 0x4200, 0xFE00, "a positive NaN becomes negative"},
                      pair{0x7E00, 0x3C00, 0x7E00, "but not to the power 1"},
                      pair{0x7C01, 0x4000, 0x7E00, "nor squared"}, pair{0xFE00, 0xBC00, 0xFE00, "nor inverted"},
                      pair{0x7D00, 0x3800, 0x7E00, "nor its root"},
                      pair{0xFC00, 0x3400, 0xFE00, "minus infinity to the power 1/4 is a NaN"},
                      pair{0xFC00, 0xB400, 0x0000, "to the power -1/4 a zero"},
                      pair{0xFC00, 0x3800, 0x7E00, "its root: the NaN of an invalid operation"},
                      pair{0xFC00, 0x4200, 0xFC00, "cubed"}, pair{0x8000, 0x3400, 0x0000, "minus zero to 1/4"},
                      pair{0x8000, 0xB400, 0x7C00, "to -1/4"}, pair{0x8000, 0xC200, 0xFC00, "to -3"},
                      pair{0xBC00, 0x7C00, 0x3C00, "minus one to infinity is one"},
                      pair{0x3BFF, 0x7C00, 0x0000, "below one to infinity"},
                      pair{0xBBFF, 0xFC00, 0x7C00, "below one to minus infinity"},
                      pair{0xBC00, 0x3555, 0xFE00, "minus one to a third"}));

// Results that depend on a single step of the kernel.
TEST(PowerOfHalves, NextToATieTheKernelsLastBitsDecide) {
  EXPECT_EQ(hex(power(half_t{0x0455}, half_t{0xADB6})), "0x40B8");
  EXPECT_EQ(hex(power(half_t{0x5AC2}, half_t{0xA8B9})), "0x3A90");
  EXPECT_EQ(hex(power(half_t{0x2CDB}, half_t{0xC1B7})), "0x6631");
}

TEST(PowerOfHalves, FollowsItsStepsOnCuratedPairs) {
  bitComparison compare("power");
  std::uint32_t number = 0;
  forEveryCuratedPair([&](std::uint16_t x, std::uint16_t y) {
    if (++number % 7 != 0) return;  // a reference step costs a store and a load
    compare.check(power(half_t{x}, half_t{y}), ofFloats(widen<float>(x), widen<float>(y)), x, y);
  });
}

template <class Wide>
void expectSteps(std::uint16_t (*expected)(Wide, Wide)) {
  const auto halfFirst = [](std::uint16_t x, Wide y) { return power(half_t{x}, y); };
  const auto wideFirst = [](Wide x, std::uint16_t y) { return power(x, half_t{y}); };
  expectSameOnMixedPairs<Wide>("power", halfFirst, wideFirst, expected);
}

TEST(PowerWithFloats, FollowsItsSteps) { expectSteps<float>(ofFloats); }
TEST(PowerWithDoubles, FollowsItsSteps) { expectSteps<double>(ofDoubles); }

TEST(PowerWithDoubles, AHugeOddPowerLosesTheSignOfItsBase) {
  EXPECT_EQ(hex(power(half_t{0xC12D}, 1997014287773861.0)), "0x7C00");
  EXPECT_EQ(hex(power(half_t{0xAA12}, 3118178115219773.0)), "0x0000");
  EXPECT_EQ(hex(power(half_t{0xC12D}, 2147483647.0)), "0xFC00") << "up to 2^31 it is kept";
}

}  // namespace
}  // namespace zthalf::testing
