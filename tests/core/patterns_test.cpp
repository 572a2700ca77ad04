#include "core/patterns.h"

#include <gtest/gtest.h>

#include <cmath>

#include "tests/support/expect_bits.h"
#include "tests/support/patterns.h"
#include "tests/support/reference.h"

namespace zthalf {
namespace {

using testing::bitComparison;

TEST(Pattern, ConstantsAreTheNumbersTheyAreNamedAfter) {
  EXPECT_EQ(reference::widenedToDouble(pattern::one), 1.0);
  EXPECT_EQ(reference::widenedToDouble(pattern::largestFinite), 65504.0);
  EXPECT_EQ(reference::widenedToDouble(pattern::smallestSubnormal), 0x1p-24);
  EXPECT_EQ(reference::widenedToDouble(pattern::infinity), HUGE_VAL);
  EXPECT_EQ(pattern::zero, 0x0000);
  EXPECT_EQ(pattern::quietNaN, 0x7E00);
  EXPECT_EQ(pattern::quietNaN, pattern::infinity | pattern::quietBit);
}

TEST(Pattern, FieldsMakeUpThePattern) {
  EXPECT_EQ(pattern::signBit ^ pattern::exponentBits ^ pattern::fractionBits, 0xFFFF);
  EXPECT_EQ(pattern::magnitudeBits, pattern::exponentBits | pattern::fractionBits);
  bitComparison whole("fields put together");
  bitComparison magnitude("magnitude");
  testing::forEveryPattern([&](std::uint16_t h) {
    const unsigned together =
        pattern::signOf(h) + (pattern::exponentOf(h) << 10) + static_cast<unsigned>(h & pattern::fractionBits);
    whole.check(static_cast<std::uint16_t>(together), h, h);
    magnitude.check(pattern::magnitudeOf(h), static_cast<std::uint16_t>(h < 0x8000 ? h : h - 0x8000), h);
  });
}

TEST(Pattern, ClassIsThatOfTheNumber) {
  bitComparison compare("class");
  std::uint32_t count[4] = {};
  testing::forEveryPattern([&](std::uint16_t h) {
    const double value = reference::widenedToDouble(h);
    compare.check(pattern::isZero(h), value == 0, h);
    compare.check(pattern::isNaN(h), std::isnan(value), h);
    compare.check(pattern::isInfinite(h), std::isinf(value), h);
    compare.check(pattern::isFinite(h), std::isfinite(value), h);
    ++count[pattern::isNaN(h) ? 0 : pattern::isInfinite(h) ? 1 : pattern::isZero(h) ? 2 : 3];
  });
  EXPECT_EQ(count[0], 2u * 1023) << "NaNs";
  EXPECT_EQ(count[1], 2u) << "infinities";
  EXPECT_EQ(count[2], 2u) << "zeros";
  EXPECT_EQ(count[3], 2u * (31 * 1024 - 1)) << "other numbers";
}

TEST(Pattern, OrderKeyFollowsTheNumbers) {
  // From minus infinity upwards the keys go up by one, with one step of nothing between the two zeros.
  EXPECT_EQ(pattern::orderKey(0xFC00), -0x7C00);
  int key = -0x7C00;
  double value = -HUGE_VAL;
  bitComparison compare("order key");
  for (std::uint32_t h = 0xFC00; h >= 0x8000; --h, ++key) {
    const auto h16 = static_cast<std::uint16_t>(h);
    compare.check(pattern::orderKey(h16), static_cast<std::int16_t>(key), h16);
    EXPECT_GE(reference::widenedToDouble(h16), value);
    value = reference::widenedToDouble(h16);
  }
  key = 0;
  for (std::uint32_t h = 0; h <= 0x7C00; ++h, ++key) {
    const auto h16 = static_cast<std::uint16_t>(h);
    compare.check(pattern::orderKey(h16), static_cast<std::int16_t>(key), h16);
    EXPECT_GE(reference::widenedToDouble(h16), value);
    value = reference::widenedToDouble(h16);
  }
}

}  // namespace
}  // namespace zthalf
