// The sets of patterns are what their users take them for.
#include "tests/support/patterns.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <functional>

namespace zthalf::testing {
namespace {

std::size_t curatedBetween(std::uint32_t first, std::uint32_t last) {
  return static_cast<std::size_t>(std::count_if(curatedPatterns().begin(), curatedPatterns().end(),
                                                [=](std::uint16_t p) { return p >= first && p <= last; }));
}

TEST(EveryPattern, IsVisitedOnceInOrder) {
  std::uint32_t expected = 0;
  forEveryPattern([&](std::uint16_t p) { ASSERT_EQ(p, expected++); });
  EXPECT_EQ(expected, 0x10000u);
}

TEST(CuratedPatterns, AreDifferentAndAscending) {
  EXPECT_EQ(curatedPatterns().size(), curatedCount);
  const auto notAbove = std::adjacent_find(curatedPatterns().begin(), curatedPatterns().end(), std::greater_equal<>());
  EXPECT_EQ(notAbove, curatedPatterns().end());
}

TEST(CuratedPatterns, HoldEveryKindOfNumber) {
  for (const std::uint32_t sign : {0x0000u, 0x8000u}) {
    EXPECT_EQ(curatedBetween(sign, sign), 1u) << "zero";
    EXPECT_EQ(curatedBetween(sign | 0x7C00, sign | 0x7C00), 1u) << "infinity";
    EXPECT_GE(curatedBetween(sign | 0x0001, sign | 0x03FF), 30u) << "subnormals";
    EXPECT_GE(curatedBetween(sign | 0x7C01, sign | 0x7DFF), 10u) << "signalling NaNs";
    EXPECT_GE(curatedBetween(sign | 0x7E00, sign | 0x7FFF), 10u) << "quiet NaNs";
    for (std::uint32_t exponent = 1; exponent <= 30; ++exponent) {
      const std::uint32_t first = sign | exponent << 10;
      EXPECT_GE(curatedBetween(first, first | 0x3FF), 30u) << "exponent " << exponent;
      EXPECT_EQ(curatedBetween(first, first), 1u) << "a power of two";
      EXPECT_EQ(curatedBetween(first | 0x3FF, first | 0x3FF), 1u) << "the last before the next one";
    }
  }
}

TEST(RandomBits, AreTheSameOnEveryMachine) {
  // The value that the standard demands of this engine after 10,000 calls.
  randomBits bits(5489);
  std::uint64_t last = 0;
  for (int i = 0; i < 10'000; ++i) last = bits.next();
  EXPECT_EQ(last, 9981545732273789042u);
}

}  // namespace
}  // namespace zthalf::testing
