#include "scalar/kernels/atanh_single.h"

#include <gtest/gtest.h>

#include "tests/scalar/kernels/float_cases.h"
#include "tests/scalar/kernels/inverse_and_hyperbolic_steps.h"
#include "tests/support/sweep.h"

namespace zthalf::testing {
namespace {

using qsl_scalar::atanhSingle;

float atanhBySteps(float x) { return steps::atanh(x).value(); }

TEST(AtanhSingle, SpecialArguments) {
  expectCases(atanhSingle, {{0x00000000, 0x00000000, "zero"},
                            {0x80000000, 0x80000000, "minus zero keeps its sign"},
                            {0x00000001, 0x00000001, "the smallest subnormal is its own result"},
                            {0x3F800001, 0xFFC00000, "beyond one"},
                            {0xBF800001, 0xFFC00000, "below minus one"},
                            {0x7F800000, 0xFFC00000, "infinity"},
                            {0xFF800000, 0xFFC00000, "minus infinity"},
                            {0x7FC00000, 0xFFC00000, "a positive NaN"},
                            {0xFFC12345, 0xFFC00000, "a negative NaN"},
                            {0x7F800001, 0xFFC00000, "a signalling NaN"},
                            {0x3F800000, 0x7F800000, "one"},
                            {0xBF800000, 0xFF800000, "minus one"}});
}

TEST(AtanhSingle, EqualsItsStepsOnAStrideOfFloats) { expectSameOnFloats(quickStride, atanhSingle, atanhBySteps); }

TEST(AtanhSingle, EqualsItsStepsAroundEveryBoundary) {
  expectSameAround({0x31800016, 0x3F000000, 0x3F800000}, atanhSingle, atanhBySteps);
}

TEST(LongAtanhSingle, EqualsItsStepsOnEveryFloat) { expectSameOnFloats(1, atanhSingle, atanhBySteps); }

}  // namespace
}  // namespace zthalf::testing
