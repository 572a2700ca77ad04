#include "scalar/kernels/asin_acos_single.h"

#include <gtest/gtest.h>

#include "tests/scalar/kernels/float_cases.h"
#include "tests/scalar/kernels/inverse_and_hyperbolic_steps.h"
#include "tests/support/sweep.h"

namespace zthalf::testing {
namespace {

using qsl_scalar::acosSingle;
using qsl_scalar::asinSingle;

float asinBySteps(float x) { return steps::asin(x).value(); }
float acosBySteps(float x) { return steps::acos(x).value(); }

TEST(AsinSingle, SpecialArguments) {
  expectCases(asinSingle, {{0x3F800001, 0xFFC00000, "beyond one"},
                           {0xBF800001, 0xFFC00000, "below minus one"},
                           {0x7F800000, 0xFFC00000, "infinity"},
                           {0xFF800000, 0xFFC00000, "minus infinity"},
                           {0x7FC00000, 0xFFC00000, "a positive NaN"},
                           {0xFFC12345, 0xFFC00000, "a negative NaN"},
                           {0x7F800001, 0xFFC00000, "a signalling NaN"},
                           {0x00000000, 0x00000000, "zero"},
                           {0x80000000, 0x80000000, "minus zero keeps its sign"},
                           {0x00000001, 0x00000001, "the smallest subnormal is its own result"},
                           {0x3F800000, 0x3FC90FDB, "one"},
                           {0xBF800000, 0xBFC90FDB, "minus one"},
                           {0x31FFFFFF, 0x31FFFFFF, "below 2^-27"}});
}

TEST(AsinSingle, EqualsItsStepsOnAStrideOfFloats) { expectSameOnFloats(quickStride, asinSingle, asinBySteps); }

TEST(AsinSingle, EqualsItsStepsAroundEveryBoundary) {
  expectSameAround({0x32000000, 0x3F000000, 0x3F79999A, 0x3F800000}, asinSingle, asinBySteps);
}

TEST(AcosSingle, SpecialArguments) {
  expectCases(acosSingle, {{0x3F800001, 0xFFC00000, "beyond one"},
                           {0xBF800001, 0xFFC00000, "below minus one"},
                           {0x7F800000, 0xFFC00000, "infinity"},
                           {0xFF800000, 0xFFC00000, "minus infinity"},
                           {0x7FC00000, 0xFFC00000, "a positive NaN"},
                           {0xFFC12345, 0xFFC00000, "a negative NaN"},
                           {0x7F800001, 0xFFC00000, "a signalling NaN"},
                           {0x3F800000, 0x00000000, "one gives plus zero"},
                           {0xBF800000, 0x40490FDB, "minus one"},
                           {0x00000000, 0x3FC90FDB, "zero"},
                           {0x80000000, 0x3FC90FDB, "minus zero"},
                           {0x22FFFFFF, 0x3FC90FDB, "below 2^-57"}});
}

TEST(AcosSingle, EqualsItsStepsOnAStrideOfFloats) { expectSameOnFloats(quickStride, acosSingle, acosBySteps); }

TEST(AcosSingle, EqualsItsStepsAroundEveryBoundary) {
  expectSameAround({0x23000000, 0x3F000000, 0x3F800000}, acosSingle, acosBySteps);
}

TEST(LongAsinSingle, EqualsItsStepsOnEveryFloat) { expectSameOnFloats(1, asinSingle, asinBySteps); }

TEST(LongAcosSingle, EqualsItsStepsOnEveryFloat) { expectSameOnFloats(1, acosSingle, acosBySteps); }

}  // namespace
}  // namespace zthalf::testing
