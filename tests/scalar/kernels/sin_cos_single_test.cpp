#include "scalar/kernels/sin_cos_single.h"

#include <gtest/gtest.h>

#include "tests/scalar/kernels/float_cases.h"
#include "tests/scalar/kernels/trigonometric_steps.h"
#include "tests/support/sweep.h"

namespace zthalf::testing {
namespace {

using qsl_scalar::cosSingle;
using qsl_scalar::sinSingle;

float sinBySteps(float x) { return steps::sin(x).value(); }
float cosBySteps(float x) { return steps::cos(x).value(); }

TEST(SinSingle, SpecialArguments) {
  expectCases(sinSingle, {{0x00000000, 0x00000000, "zero"},
                          {0x80000000, 0x80000000, "minus zero keeps its sign"},
                          {0x00000001, 0x00000001, "the smallest subnormal is its own result"},
                          {0x7F800000, 0xFFC00000, "infinity gives the negative NaN"},
                          {0xFF800000, 0xFFC00000, "minus infinity too"},
                          {0x7FC00000, 0xFFC00000, "a positive NaN becomes the negative one"},
                          {0xFFC12345, 0xFFC00000, "a negative NaN loses its payload"},
                          {0x7F800001, 0xFFC00000, "a signalling NaN"},
                          {0x3F490FDB, 0x3F3504F3, "pi/4, the end of the direct series"},
                          {0x3FC90FDB, 0x3F800000, "pi/2"},
                          {0x40490FDB, 0xB3BBBD2E, "pi rounded: what the rounding left over"}});
}

TEST(SinSingle, EqualsItsStepsOnAStrideOfFloats) { expectSameOnFloats(slowStride, sinSingle, sinBySteps); }

TEST(SinSingle, EqualsItsStepsAroundEveryBoundary) {
  expectSameAround({0x32000000, 0x3E99999A, 0x3F2CA579, 0x3F480000, 0x3F490FDB, 0x3FC90FC0, 0x3FC90FDB, 0x3FC90FF0,
                    0x4016CBE2, 0x40490FDB, 0x41490FDB, 0x43490F80, 0x477FE000},
                   sinSingle, sinBySteps);
}

TEST(CosSingle, SpecialArguments) {
  expectCases(cosSingle, {{0x00000000, 0x3F800000, "zero"},
                          {0x80000000, 0x3F800000, "minus zero"},
                          {0x31FFFFFF, 0x3F800000, "below 2^-27 the result is one"},
                          {0x3FC90FDB, 0xB33BBD2E, "pi/2 rounded: what the rounding left over"},
                          {0x40490FDB, 0xBF800000, "pi"},
                          {0x7F800000, 0xFFC00000, "infinity gives the negative NaN"},
                          {0xFF800000, 0xFFC00000, "minus infinity too"},
                          {0x7FC00000, 0xFFC00000, "a positive NaN becomes the negative one"},
                          {0xFFC12345, 0xFFC00000, "a negative NaN loses its payload"},
                          {0x7F800001, 0xFFC00000, "a signalling NaN"}});
}

TEST(CosSingle, EqualsItsStepsOnAStrideOfFloats) { expectSameOnFloats(slowStride, cosSingle, cosBySteps); }

TEST(CosSingle, EqualsItsStepsAroundEveryBoundary) {
  expectSameAround({0x32000000, 0x3E99999A, 0x3F2CA579, 0x3F480000, 0x3F490FDB, 0x3FC90FC0, 0x3FC90FDB, 0x3FC90FF0,
                    0x4016CBE2, 0x40490FDB, 0x41490FDB, 0x43490F80, 0x477FE000},
                   cosSingle, cosBySteps);
}

TEST(SinCosSingle, LargeArgumentsAreReducedInFull) {
  EXPECT_EQ(hex(sinSingle(65504.0f)), hex(static_cast<float>(std::sin(65504.0))));
  EXPECT_EQ(hex(cosSingle(65504.0f)), hex(static_cast<float>(std::cos(65504.0))));
  EXPECT_EQ(hex(sinSingle(0x1p100f)), hex(static_cast<float>(std::sin(0x1p100))));
}

TEST(LongSinSingle, EqualsItsStepsOnEveryFloat) { expectSameOnFloats(1, sinSingle, sinBySteps); }

TEST(LongCosSingle, EqualsItsStepsOnEveryFloat) { expectSameOnFloats(1, cosSingle, cosBySteps); }

}  // namespace
}  // namespace zthalf::testing
