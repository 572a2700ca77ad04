#include "scalar/kernels/exp_single.h"

#include <gtest/gtest.h>

#include "tests/scalar/kernels/float_cases.h"
#include "tests/scalar/kernels/inverse_and_hyperbolic_steps.h"
#include "tests/support/sweep.h"

namespace zthalf::testing {
namespace {

using qsl_scalar::expSingle;

float expBySteps(float x) { return steps::exp(x).value(); }

TEST(ExpSingle, SpecialArguments) {
  expectCases(expSingle, {{0x00000000, 0x3F800000, "zero"},
                          {0x80000000, 0x3F800000, "minus zero"},
                          {0x3F800000, 0x402DF854, "one"},
                          {0x7F800000, 0x7F800000, "infinity"},
                          {0xFF800000, 0x00000000, "minus infinity"},
                          {0x42B17218, 0x7F800000, "the first overflow"},
                          {0x42B17217, 0x7F7FFF84, "the last finite result"},
                          {0xC2CE8ED0, 0x00000001, "the last result above zero"},
                          {0xC2CE8ED1, 0x00000000, "the first zero"},
                          {0x7FC00000, 0xFFC00000, "a positive NaN"},
                          {0xFFC12345, 0xFFC00000, "a negative NaN"},
                          {0x7F800001, 0xFFC00000, "a signalling NaN"}});
}

TEST(ExpSingle, EqualsItsStepsOnAStrideOfFloats) { expectSameOnFloats(quickStride, expSingle, expBySteps); }

TEST(ExpSingle, EqualsItsStepsAroundEveryBoundary) {
  expectSameAround({0x31800016, 0x3EB17217, 0x3F851592, 0x42AEAC50, 0x42B17217, 0x42CE8ED0}, expSingle, expBySteps);
}

// Each multiple of ln 2, the subnormal results included, where the way of scaling changes.
TEST(ExpSingle, EqualsItsStepsAroundEveryMultiple) {
  for (int k = -150; k <= 129; ++k) {
    expectSameAround({bitsIn(static_cast<float>((k + 0.5) * 0.6931471805599453))}, expSingle, expBySteps);
  }
}

TEST(LongExpSingle, EqualsItsStepsOnEveryFloat) { expectSameOnFloats(1, expSingle, expBySteps); }

}  // namespace
}  // namespace zthalf::testing
