#include "scalar/kernels/scalbn_single.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "tests/scalar/kernels/steps_single.h"
#include "tests/support/expect_bits.h"
#include "tests/support/sweep.h"

namespace zthalf::testing {
namespace {

using qsl_scalar::scalbnSingle;

constexpr std::int32_t interestingCounts[] = {0,
                                              1,
                                              -1,
                                              23,
                                              24,
                                              25,
                                              -22,
                                              -23,
                                              -24,
                                              -25,
                                              -26,
                                              -125,
                                              -126,
                                              -127,
                                              -149,
                                              -150,
                                              -151,
                                              127,
                                              128,
                                              254,
                                              255,
                                              276,
                                              277,
                                              278,
                                              -276,
                                              -277,
                                              -278,
                                              -300,
                                              50000,
                                              -50000,
                                              -50001,
                                              std::numeric_limits<std::int32_t>::max(),
                                              std::numeric_limits<std::int32_t>::min()};

TEST(ScalbnSingle, EqualsItsStepsForInterestingOperands) {
  bitComparison compare("scalbnSingle");
  for (std::uint32_t field = 0; field <= 255; ++field) {
    for (const std::uint32_t fraction : {0u, 1u, 2u, 0x2AAAAAu, 0x400000u, 0x555555u, 0x7FFFFEu, 0x7FFFFFu}) {
      for (const std::uint32_t sign : {0u, 0x80000000u}) {
        const float v = std::bit_cast<float>(sign | field << 23 | fraction);
        for (const std::int32_t n : interestingCounts) {
          compare.check(scalbnSingle(v, n), steps::scalbn(v, n).value(), v, n);
        }
        for (std::int32_t n = -300; n <= 300; n += 7) {
          compare.check(scalbnSingle(v, n), steps::scalbn(v, n).value(), v, n);
        }
      }
    }
  }
}

// The platform's function is exact too; NaNs alone may come back changed.
TEST(ScalbnSingle, EqualsThePlatformsOnNumbers) {
  bitComparison compare("scalbnSingle");
  for (std::uint64_t i = 0; i < 1000000; ++i) {
    const std::uint64_t random = scrambled(i);
    const float v = std::bit_cast<float>(static_cast<std::uint32_t>(random));
    const auto n = static_cast<std::int32_t>((random >> 32) % 620) - 310;
    if (v == v) compare.check(scalbnSingle(v, n), std::scalbn(v, n), v, n);
  }
}

TEST(ScalbnSingle, KeepsNaNsAsTheyAre) {
  for (const std::uint32_t nan : {0x7FC00000u, 0xFFC00000u, 0x7F800001u, 0xFFABCDEFu}) {
    EXPECT_EQ(hex(scalbnSingle(std::bit_cast<float>(nan), -3)), hex(std::bit_cast<float>(nan)));
  }
}

TEST(ScalbnSingle, RoundsOnceOnTheWayIntoTheSubnormals) {
  EXPECT_EQ(bitsIn(scalbnSingle(std::bit_cast<float>(0x00800001u), -1)), 0x00400000u);  // a tie goes to even
  EXPECT_EQ(bitsIn(scalbnSingle(std::bit_cast<float>(0x00800003u), -1)), 0x00400002u);
  EXPECT_EQ(bitsIn(scalbnSingle(1.0f, -150)), 0x00000000u);
  EXPECT_EQ(bitsIn(scalbnSingle(1.5f, -150)), 0x00000001u);
  EXPECT_EQ(bitsIn(scalbnSingle(-1.0f, -1000)), 0x80000000u);
}

}  // namespace
}  // namespace zthalf::testing
