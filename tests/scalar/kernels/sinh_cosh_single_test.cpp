#include "scalar/kernels/sinh_cosh_single.h"

#include <gtest/gtest.h>

#include "tests/scalar/kernels/float_cases.h"
#include "tests/scalar/kernels/inverse_and_hyperbolic_steps.h"
#include "tests/support/sweep.h"

namespace zthalf::testing {
namespace {

using qsl_scalar::coshSingle;
using qsl_scalar::sinhSingle;

float sinhBySteps(float x) { return steps::sinh(x).value(); }
float coshBySteps(float x) { return steps::cosh(x).value(); }

TEST(SinhSingle, SpecialArguments) {
  expectCases(sinhSingle, {{0x00000000, 0x00000000, "zero"},
                           {0x80000000, 0x80000000, "minus zero keeps its sign"},
                           {0x00000001, 0x00000001, "the smallest subnormal is its own result"},
                           {0x7F800000, 0x7F800000, "infinity"},
                           {0xFF800000, 0xFF800000, "minus infinity"},
                           {0x7FC12345, 0x7FC12345, "a NaN comes back as it is"},
                           {0xFFC12345, 0xFFC12345, "a negative one too"},
                           {0x7F800001, 0x7F800001, "a signalling one unquieted"},
                           {0x42B2D4FD, 0x7F800000, "the first overflow"},
                           {0xC2B2D4FD, 0xFF800000, "its mirror image"}});
}

TEST(SinhSingle, EqualsItsStepsOnAStrideOfFloats) { expectSameOnFloats(quickStride, sinhSingle, sinhBySteps); }

TEST(SinhSingle, EqualsItsStepsAroundEveryBoundary) {
  expectSameAround({0x31800016, 0x3F800000, 0x41B00000, 0x42B17217, 0x42B2D4FC}, sinhSingle, sinhBySteps);
}

TEST(CoshSingle, SpecialArguments) {
  expectCases(coshSingle, {{0x00000000, 0x3F800000, "zero"},
                           {0x80000000, 0x3F800000, "minus zero"},
                           {0x7F800000, 0x7F800000, "infinity"},
                           {0xFF800000, 0x7F800000, "minus infinity"},
                           {0x7FC12345, 0x7FC12345, "a NaN comes back"},
                           {0xFFC12345, 0xFFC12345, "a negative one keeps its sign"},
                           {0xFF812345, 0xFFC12345, "a signalling one is made quiet"},
                           {0x42B2D4FD, 0x7F800000, "the first overflow"},
                           {0xC2B2D4FD, 0x7F800000, "its mirror image"}});
}

TEST(CoshSingle, EqualsItsStepsOnAStrideOfFloats) { expectSameOnFloats(quickStride, coshSingle, coshBySteps); }

TEST(CoshSingle, EqualsItsStepsAroundEveryBoundary) {
  expectSameAround({0x0DA24260, 0x3EB17217, 0x41B00000, 0x42B17217, 0x42B2D4FC}, coshSingle, coshBySteps);
}

TEST(SinhCoshSingle, TheLastArgumentsBeforeOverflowAreFinite) {
  EXPECT_LT(sinhSingle(std::bit_cast<float>(0x42B2D4FCu)), INFINITY);
  EXPECT_LT(coshSingle(std::bit_cast<float>(0xC2B2D4FCu)), INFINITY);
}

TEST(LongSinhSingle, EqualsItsStepsOnEveryFloat) { expectSameOnFloats(1, sinhSingle, sinhBySteps); }

TEST(LongCoshSingle, EqualsItsStepsOnEveryFloat) { expectSameOnFloats(1, coshSingle, coshBySteps); }

}  // namespace
}  // namespace zthalf::testing
