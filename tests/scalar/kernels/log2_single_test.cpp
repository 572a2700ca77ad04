#include "scalar/kernels/log2_single.h"

#include "tests/scalar/kernels/complex_steps.h"
#include "tests/scalar/kernels/float_cases.h"
#include "tests/support/sweep.h"

namespace zthalf::testing {
namespace {

using qsl_scalar::log2Single;

float bySteps(float x) { return complex_steps::log2(x).value(); }

TEST(Log2Single, EqualsItsStepsOnAStrideOfFloats) { expectSameOnFloats(quickStride, log2Single, bySteps); }

TEST(Log2Single, EqualsItsStepsAroundEveryBoundary) {
  expectSameAround({0x00800000, 0x3F000000, 0x3F800000, 0x3FC00000, 0x40000000, 0x7F800000}, log2Single, bySteps);
}

TEST(Log2Single, SpecialArguments) {
  expectCases(log2Single, {
                              {0x00000000, 0xFF800000, "zero"},
                              {0x80000000, 0xFF800000, "minus zero"},
                              {0xBF800000, 0xFFC00000, "a negative number"},
                              {0xFF800000, 0xFFC00000, "minus infinity"},
                              {0x7F800000, 0x7F800000, "infinity"},
                              {0x7FC00001, 0x7FC00001, "a positive NaN comes back as it is"},
                              {0xFFC00001, 0xFFC00001, "a negative NaN too"},
                              {0x3F800000, 0x00000000, "one"},
                              {0x00000001, 0xC3150000, "the smallest subnormal: -149"},
                          });
}

TEST(Log2Single, IsExactForEveryPowerOfTwo) {
  for (int k = -149; k < 128; ++k) EXPECT_EQ(log2Single(std::ldexp(1.0f, k)), static_cast<float>(k));
}

}  // namespace
}  // namespace zthalf::testing
