#include "scalar/kernels/tanh_single.h"

#include <gtest/gtest.h>

#include "tests/scalar/kernels/float_cases.h"
#include "tests/scalar/kernels/inverse_and_hyperbolic_steps.h"
#include "tests/support/sweep.h"

namespace zthalf::testing {
namespace {

using qsl_scalar::tanhSingle;

float tanhBySteps(float x) { return steps::tanh(x).value(); }

TEST(TanhSingle, SpecialArguments) {
  expectCases(tanhSingle, {{0x00000000, 0x00000000, "zero"},
                           {0x80000000, 0x80000000, "minus zero keeps its sign"},
                           {0x00000001, 0x00000001, "the smallest subnormal is its own result"},
                           {0x7F800000, 0x3F800000, "infinity"},
                           {0xFF800000, 0xBF800000, "minus infinity"},
                           {0x41120000, 0x3F800000, "9.125, the first that is one by decision"},
                           {0xC1120000, 0xBF800000, "its mirror image"},
                           {0x7FC12345, 0x7FC00000, "a NaN becomes the positive NaN"},
                           {0xFFC12345, 0x7FC00000, "a negative one too"},
                           {0xFF800001, 0x7FC00000, "a signalling one too"}});
}

TEST(TanhSingle, EqualsItsStepsOnAStrideOfFloats) { expectSameOnFloats(quickStride, tanhSingle, tanhBySteps); }

TEST(TanhSingle, EqualsItsStepsAroundEveryBoundary) {
  expectSameAround({0x24000000, 0x3E000000, 0x3F800000, 0x41120000}, tanhSingle, tanhBySteps);
}

TEST(LongTanhSingle, EqualsItsStepsOnEveryFloat) { expectSameOnFloats(1, tanhSingle, tanhBySteps); }

}  // namespace
}  // namespace zthalf::testing
