#include "scalar/kernels/atan2_single.h"

#include <gtest/gtest.h>

#include <limits>

#include "tests/scalar/kernels/pair_comparison.h"
#include "tests/scalar/kernels/two_argument_steps.h"

namespace zthalf::testing {
namespace {

float atan2Single(float y, float x) { return qsl_scalar::atan2Single(y, x); }
float bySteps(float y, float x) { return steps::atan2(y, x).value(); }
float word(std::uint32_t bits) { return std::bit_cast<float>(bits); }
constexpr float inf = std::numeric_limits<float>::infinity();

TEST(Atan2Single, Zeros) {
  expectPairs(atan2Single, {{0.0f, 0.0f, 0x00000000, "two zeros"},
                            {-0.0f, 0.0f, 0x00000000, "plus zero whatever their signs"},
                            {0.0f, -0.0f, 0x00000000, "not pi"},
                            {-0.0f, -0.0f, 0x00000000, "nor minus pi"},
                            {0.0f, 2.0f, 0x00000000, "a zero on the right"},
                            {-0.0f, 2.0f, 0x80000000, "keeps its sign"},
                            {0.0f, -2.0f, 0x40490FDB, "on the left it is pi"},
                            {-0.0f, -2.0f, 0xC0490FDB, "with its sign"},
                            {3.0f, 0.0f, 0x3FC90FDB, "straight up"},
                            {3.0f, -0.0f, 0x3FC90FDB, "from either side"},
                            {-3.0f, -0.0f, 0xBFC90FDB, "straight down"}});
}

TEST(Atan2Single, InfinitiesAndNaNs) {
  expectPairs(atan2Single, {{inf, inf, 0x3F490FDB, "pi/4"},
                            {-inf, inf, 0xBF490FDB, "-pi/4"},
                            {inf, -inf, 0x4016CBE4, "3pi/4"},
                            {-inf, -inf, 0xC016CBE4, "-3pi/4"},
                            {2.0f, inf, 0x00000000, "along the right"},
                            {-2.0f, inf, 0x80000000, "from below"},
                            {2.0f, -inf, 0x40490FDB, "along the left"},
                            {-0.0f, -inf, 0xC0490FDB, "a zero too"},
                            {inf, -2.0f, 0x3FC90FDB, "an infinite ordinate"},
                            {-inf, 0.0f, 0xBFC90FDB, "beside a zero"},
                            {word(0x7FC00000), 1.0f, 0xFFC00000, "a NaN beside one"},
                            {0.0f, word(0x7F800001), 0xFFC00000, "a NaN beside a zero"},
                            {inf, word(0x7FC00000), 0xFFC00000, "a NaN beside an infinity"}});
}

TEST(Atan2Single, EqualsItsStepsOnCornerPairs) { expectSameOnCornerPairs<float>("atan2Single", atan2Single, bySteps); }

TEST(Atan2Single, EqualsItsStepsOnNumberedPairs) {
  expectSameOnNumberedPairs(quickPairs, pairAt<float>, atan2Single, bySteps);
}

// The quotient is not looked at beyond 2^61 in the steps, nor below 2^-60 in the left half plane.
TEST(Atan2Single, EqualsItsStepsAroundTheLimitsOfTheQuotient) {
  const auto at = [](std::uint64_t i) {
    const std::uint64_t random = scrambled(i);
    const auto x = static_cast<std::uint32_t>(random) & 0x7FFFFFFFu;
    const std::uint32_t limit = i % 2 == 0 ? 0x1E800000u : 0x1E000000u;
    const std::uint32_t distance = limit - 0x8000u + (random >> 32 & 0xFFFFu);
    const std::uint32_t y = (i % 4 < 2 ? x + distance : x - distance) & 0x7FFFFFFFu;
    return operandPair<float>{word(y | (random >> 63 & 1) << 31), word(x | (random >> 62 & 1) << 31)};
  };
  expectSameOnNumberedPairs(quickPairs, at, atan2Single, bySteps);
}

TEST(LongAtan2Single, EqualsItsStepsOnNumberedPairs) {
  expectSameOnNumberedPairs(longPairs, pairAt<float>, atan2Single, bySteps);
}

}  // namespace
}  // namespace zthalf::testing
