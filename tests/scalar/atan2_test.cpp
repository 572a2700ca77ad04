// atan2 of halves, and of halves with floats and doubles.
#include <gtest/gtest.h>

#include "tests/scalar/kernels/steps_double.h"
#include "tests/scalar/kernels/two_argument_steps.h"
#include "tests/scalar/mixed_operands_at.h"
#include "tests/support/known.h"
#include "tests/support/patterns.h"
#include "tests/support/reference.h"
#include "zthalf/half_scalar.h"

namespace zthalf::testing {
namespace {

std::uint16_t ofFloats(float y, float x) { return reference::narrowed(steps::atan2(y, x).value()); }
std::uint16_t ofDoubles(double y, double x) { return reference::narrowed(steps::doubles::atan2(y, x).value()); }

std::uint16_t atan2(auto y, auto x) { return half_scalar::atan2(y, x).bits; }

using pair = knownPair<std::uint16_t, std::uint16_t, std::uint16_t>;  // the ordinate first
class Atan2 : public ::testing::TestWithParam<pair> {};

TEST_P(Atan2, IsTheKnownResultInEveryForm) {
  const auto [y, x, expected, why] = GetParam();
  EXPECT_EQ(hex(atan2(half_t{y}, half_t{x})), hex(expected)) << why;
  EXPECT_EQ(hex(atan2(half_t{y}, widen<float>(x))), hex(expected)) << why;
  EXPECT_EQ(hex(atan2(half_t{y}, widen<double>(x))), hex(expected)) << why;
  EXPECT_EQ(hex(atan2(widen<float>(y), half_t{x})), hex(expected)) << why;
  EXPECT_EQ(hex(atan2(widen<double>(y), half_t{x})), hex(expected)) << why;
}

INSTANTIATE_TEST_SUITE_P(
    Zeros, Atan2,
    ::testing::Values(pair{0x0000, 0xBC00, 0x4248, "zero over -1 is pi"},
                      pair{0x8000, 0xBC00, 0xC248, "minus zero over -1 is -pi"},
                      pair{0x0000, 0x0000, 0x0000, "two zeros"}, pair{0x8000, 0x0000, 0x0000, "of any signs"},
                      pair{0x0000, 0x8000, 0x0000, "not pi"}, pair{0x8000, 0x8000, 0x0000, "nor minus pi"},
                      pair{0x8000, 0x3C00, 0x8000, "minus zero over one"}, pair{0x4200, 0x8000, 0x3E48, "straight up"},
                      pair{0x8001, 0x0000, 0xBE48, "straight down"}));

INSTANTIATE_TEST_SUITE_P(InfinitiesAndNaNs, Atan2,
                         ::testing::Values(pair{0x7C00, 0x7C00, 0x3A48, "pi/4"}, pair{0xFC00, 0x7C00, 0xBA48, "-pi/4"},
                                           pair{0x7C00, 0xFC00, 0x40B6, "3pi/4"},
                                           pair{0xFC00, 0xFC00, 0xC0B6, "-3pi/4"},
                                           pair{0xC000, 0x7C00, 0x8000, "along the right, from below"},
                                           pair{0x4000, 0xFC00, 0x4248, "along the left"},
                                           pair{0x7C00, 0xC000, 0x3E48, "infinitely high"},
                                           pair{0x7E00, 0x3C00, 0xFE00, "a NaN beside one"},
                                           pair{0x0000, 0x7C01, 0xFE00, "a signalling one beside a zero"},
                                           pair{0xFC00, 0xFE00, 0xFE00, "beside an infinity"}));

TEST(Atan2OfHalves, FollowsItsStepsOnCuratedPairs) {
  bitComparison compare("atan2");
  std::uint32_t number = 0;
  forEveryCuratedPair([&](std::uint16_t y, std::uint16_t x) {
    if (++number % 7 != 0) return;  // a reference step costs a store and a load
    compare.check(atan2(half_t{y}, half_t{x}), ofFloats(widen<float>(y), widen<float>(x)), y, x);
  });
}

template <class Wide>
void expectSteps(std::uint16_t (*expected)(Wide, Wide)) {
  const auto halfFirst = [](std::uint16_t y, Wide x) { return atan2(half_t{y}, x); };
  const auto wideFirst = [](Wide y, std::uint16_t x) { return atan2(y, half_t{x}); };
  expectSameOnMixedPairs<Wide>("atan2", halfFirst, wideFirst, expected);
}

TEST(Atan2WithFloats, FollowsItsSteps) { expectSteps<float>(ofFloats); }
TEST(Atan2WithDoubles, FollowsItsSteps) { expectSteps<double>(ofDoubles); }

}  // namespace
}  // namespace zthalf::testing
