#include "scalar/kernels/rem_pio2_single.h"

#include <gtest/gtest.h>

#include "tests/scalar/kernels/float_cases.h"
#include "tests/scalar/kernels/trigonometric_steps.h"
#include "tests/support/sweep.h"

namespace zthalf::testing {
namespace {

using qsl_scalar::reducedAngle;
using qsl_scalar::remPio2Single;

// The three results in one word: a change of any bit changes it.
std::uint64_t allOf(std::int32_t n, float upper, float lower) {
  return scrambled(static_cast<std::uint32_t>(n)) + (std::uint64_t{bitsIn(upper)} << 32 | bitsIn(lower));
}
// Up to pi/4 nothing is to be reduced, and the kernel is not asked.
bool isAsked(float x) { return !(std::abs(x) <= 0.7853982f); }
std::uint64_t result(float x) {
  if (!isAsked(x)) return 0;
  const reducedAngle y = remPio2Single(x);
  return allOf(y.n, y.upper, y.lower);
}
std::uint64_t reference(float x) {
  if (!isAsked(x)) return 0;
  const steps::angle y = steps::reduced(x);
  return allOf(y.n, y.y0.value(), y.y1.value());
}

TEST(RemPio2Single, ANonFiniteAngleGivesTheNegativeNaNTwice) {
  for (const std::uint32_t x : {0x7F800000u, 0xFF800000u, 0x7FC00000u, 0xFFC00000u, 0x7F800001u}) {
    const reducedAngle y = remPio2Single(std::bit_cast<float>(x));
    EXPECT_EQ(y.n, 0);
    EXPECT_EQ(hex(y.upper), "0xFFC00000");
    EXPECT_EQ(hex(y.lower), "0xFFC00000");
  }
}

TEST(RemPio2Single, TheNearestMultipleIsTaken) {
  EXPECT_EQ(remPio2Single(1.0f).n, 1);
  EXPECT_EQ(remPio2Single(-1.0f).n, -1);
  EXPECT_EQ(remPio2Single(3.0f).n, 2);
  EXPECT_EQ(remPio2Single(200.0f).n, 127);
  EXPECT_EQ(remPio2Single(-200.0f).n, -127);
  EXPECT_EQ(remPio2Single(65504.0f).n, 41701 % 8);
  EXPECT_EQ(remPio2Single(-65504.0f).n, -(41701 % 8));
}

TEST(RemPio2Single, NoAngleIsLeftBeyondAnEighthOfATurn) {
  for (std::uint64_t i = 0; i < floatsAt(quickStride); ++i) {
    const float x = floatAt(i, quickStride);
    if (!isAsked(x) || !(std::abs(x) < INFINITY)) continue;
    const reducedAngle y = remPio2Single(x);
    ASSERT_LE(std::abs(y.upper), 0.7854f) << x;
    ASSERT_LE(std::abs(y.lower), std::abs(y.upper) * 0x1p-23f) << x;
  }
}

TEST(RemPio2Single, EqualsItsStepsOnAStrideOfFloats) { expectSameOnFloats(slowStride, result, reference); }

TEST(RemPio2Single, EqualsItsStepsAroundEveryBoundary) {
  expectSameAround({0x3F490FDB, 0x3FC90FC0, 0x3FC90FDB, 0x3FC90FF0, 0x4016CBE2, 0x43490F80, 0x43800000, 0x477FE000,
                    0x4B800000, 0x7F7FF000},
                   result, reference);
}

// Every multiple that the middle way subtracts: near it the number of steps changes.
TEST(RemPio2Single, EqualsItsStepsAroundEveryMultiple) {
  for (int n = 1; n <= 200; ++n) {
    expectSameAround({bitsIn(static_cast<float>(n * 1.5707963267948966))}, result, reference);
  }
}

// One significand in all binades, and with one, two and three digits.
TEST(RemPio2Single, EqualsItsStepsInEveryBinade) {
  bitComparison compare("remPio2Single");
  for (std::uint32_t field = 127; field < 255; ++field) {
    for (const std::uint32_t fraction : {0x000000u, 0x490FDBu, 0x7F0000u, 0x7FFF00u, 0x7FFFFFu, 0x000001u, 0x123400u}) {
      const float x = std::bit_cast<float>(field << 23 | fraction);
      compare.check(result(x), reference(x), x);
    }
  }
}

// The float whose angle is the smallest, 2^-30 or so: the product needs more digits than for any other.
TEST(RemPio2Single, TheWorstCaseKeepsAllItsBits) {
  const float x = std::bit_cast<float>(0x6F79BE45u);
  const reducedAngle y = remPio2Single(x);
  EXPECT_LT(std::abs(y.upper), 0x1p-29f);
  EXPECT_EQ(result(x), reference(x));
}

TEST(LongRemPio2Single, EqualsItsStepsOnEveryFloat) { expectSameOnFloats(1, result, reference); }

}  // namespace
}  // namespace zthalf::testing
