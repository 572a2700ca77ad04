#include "scalar/kernels/asinh_acosh_single.h"

#include <gtest/gtest.h>

#include "tests/scalar/kernels/float_cases.h"
#include "tests/scalar/kernels/inverse_and_hyperbolic_steps.h"
#include "tests/support/sweep.h"

namespace zthalf::testing {
namespace {

using qsl_scalar::acoshSingle;
using qsl_scalar::asinhSingle;

float asinhBySteps(float x) { return steps::asinh(x).value(); }
float acoshBySteps(float x) { return steps::acosh(x).value(); }

TEST(AsinhSingle, SpecialArguments) {
  expectCases(asinhSingle, {{0x00000000, 0x00000000, "zero"},
                            {0x80000000, 0x80000000, "minus zero keeps its sign"},
                            {0x00000001, 0x00000001, "the smallest subnormal is its own result"},
                            {0x7F800000, 0x7F800000, "infinity"},
                            {0xFF800000, 0xFF800000, "minus infinity"},
                            {0x7FC12345, 0x7FC12345, "a NaN comes back"},
                            {0xFFC12345, 0xFFC12345, "a negative one keeps its sign"},
                            {0xFF812345, 0xFFC12345, "a signalling one is made quiet"},
                            {0x37FFFFFF, 0x37FFFFFF, "below 2^-15"}});
}

TEST(AsinhSingle, EqualsItsStepsOnAStrideOfFloats) { expectSameOnFloats(quickStride, asinhSingle, asinhBySteps); }

TEST(AsinhSingle, EqualsItsStepsAroundEveryBoundary) {
  expectSameAround({0x38000000, 0x40000000, 0x47000000}, asinhSingle, asinhBySteps);
}

TEST(AcoshSingle, SpecialArguments) {
  expectCases(acoshSingle, {{0x3F800000, 0x00000000, "one gives plus zero"},
                            {0x3F7FFFFF, 0xFFC00000, "below one"},
                            {0x00000000, 0xFFC00000, "zero"},
                            {0x80000000, 0xFFC00000, "minus zero"},
                            {0xBF800000, 0xFFC00000, "minus one"},
                            {0x7F800000, 0x7F800000, "infinity"},
                            {0xFF800000, 0xFFC00000, "minus infinity"},
                            {0x7FC12345, 0x7FC12345, "a positive NaN comes back as it is"},
                            {0xFFC12345, 0xFFC00000, "a negative NaN becomes the negative one"}});
}

TEST(AcoshSingle, EqualsItsStepsOnAStrideOfFloats) { expectSameOnFloats(quickStride, acoshSingle, acoshBySteps); }

TEST(AcoshSingle, EqualsItsStepsAroundEveryBoundary) {
  expectSameAround({0x3F800000, 0x40000000, 0x4D800000}, acoshSingle, acoshBySteps);
}

TEST(LongAsinhSingle, EqualsItsStepsOnEveryFloat) { expectSameOnFloats(1, asinhSingle, asinhBySteps); }

TEST(LongAcoshSingle, EqualsItsStepsOnEveryFloat) { expectSameOnFloats(1, acoshSingle, acoshBySteps); }

}  // namespace
}  // namespace zthalf::testing
