#include "scalar/kernels/atan_single.h"

#include <gtest/gtest.h>

#include "tests/scalar/kernels/float_cases.h"
#include "tests/scalar/kernels/inverse_and_hyperbolic_steps.h"
#include "tests/support/sweep.h"

namespace zthalf::testing {
namespace {

using qsl_scalar::atanSingle;

float atanBySteps(float x) { return steps::atan(x).value(); }

TEST(AtanSingle, SpecialArguments) {
  expectCases(atanSingle, {{0x00000000, 0x00000000, "zero"},
                           {0x80000000, 0x80000000, "minus zero keeps its sign"},
                           {0x00000001, 0x00000001, "the smallest subnormal is its own result"},
                           {0x7F800000, 0x3FC90FDB, "infinity"},
                           {0xFF800000, 0xBFC90FDB, "minus infinity"},
                           {0x60800000, 0x3FC90FDB, "2^66, the first that is half pi by decision"},
                           {0x7FC00000, 0xFFC00000, "a positive NaN"},
                           {0xFFC12345, 0xFFC00000, "a negative NaN"},
                           {0x7F800001, 0xFFC00000, "a signalling NaN"},
                           {0x3F800000, 0x3F490FDB, "one"},
                           {0xBF800000, 0xBF490FDB, "minus one"}});
}

TEST(AtanSingle, EqualsItsStepsOnAStrideOfFloats) { expectSameOnFloats(quickStride, atanSingle, atanBySteps); }

TEST(AtanSingle, EqualsItsStepsAroundEveryBoundary) {
  expectSameAround({0x31000000, 0x3EE00000, 0x3F300000, 0x3F980000, 0x401C0000, 0x60800000}, atanSingle, atanBySteps);
}

TEST(LongAtanSingle, EqualsItsStepsOnEveryFloat) { expectSameOnFloats(1, atanSingle, atanBySteps); }

}  // namespace
}  // namespace zthalf::testing
