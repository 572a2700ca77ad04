#include "scalar/kernels/tan_single.h"

#include <gtest/gtest.h>

#include "tests/scalar/kernels/float_cases.h"
#include "tests/scalar/kernels/trigonometric_steps.h"
#include "tests/support/sweep.h"

namespace zthalf::testing {
namespace {

using qsl_scalar::tanSingle;

float tanBySteps(float x) { return steps::tan(x).value(); }

TEST(TanSingle, SpecialArguments) {
  expectCases(tanSingle, {{0x00000000, 0x00000000, "zero"},
                          {0x80000000, 0x80000000, "minus zero keeps its sign"},
                          {0x00000001, 0x00000001, "the smallest subnormal is its own result"},
                          {0x7F800000, 0xFFC00000, "infinity gives the negative NaN"},
                          {0xFF800000, 0xFFC00000, "minus infinity too"},
                          {0x7FC00000, 0xFFC00000, "a positive NaN becomes the negative one"},
                          {0xFFC12345, 0xFFC00000, "a negative NaN loses its payload"},
                          {0x7F800001, 0xFFC00000, "a signalling NaN"},
                          {0x3FC90FDB, 0xCBAE8A4A, "pi/2 rounded lies above pi/2: -22877332"},
                          {0x3F490FDB, 0x3F800000, "pi/4"}});
}

TEST(TanSingle, EqualsItsStepsOnAStrideOfFloats) { expectSameOnFloats(slowStride, tanSingle, tanBySteps); }

TEST(TanSingle, EqualsItsStepsAroundEveryBoundary) {
  expectSameAround({0x32000000, 0x3E99999A, 0x3F2CA579, 0x3F480000, 0x3F490FDB, 0x3FC90FC0, 0x3FC90FDB, 0x3FC90FF0,
                    0x4016CBE2, 0x40490FDB, 0x41490FDB, 0x43490F80, 0x477FE000, 0x31800016},
                   tanSingle, tanBySteps);
}

TEST(LongTanSingle, EqualsItsStepsOnEveryFloat) { expectSameOnFloats(1, tanSingle, tanBySteps); }

}  // namespace
}  // namespace zthalf::testing
