#include "scalar/kernels/log10_single.h"

#include "tests/scalar/kernels/complex_steps.h"
#include "tests/scalar/kernels/float_cases.h"
#include "tests/support/sweep.h"

namespace zthalf::testing {
namespace {

using qsl_scalar::log10Single;

float bySteps(float x) { return complex_steps::log10(x).value(); }

TEST(Log10Single, EqualsItsStepsOnAStrideOfFloats) { expectSameOnFloats(quickStride, log10Single, bySteps); }

TEST(Log10Single, EqualsItsStepsAroundEveryBoundary) {
  expectSameAround({0x00800000, 0x3F000000, 0x3F800000, 0x3FC00000, 0x40000000, 0x7F800000}, log10Single, bySteps);
}

TEST(Log10Single, SpecialArguments) {
  expectCases(log10Single, {
                               {0x00000000, 0xFF800000, "zero"},
                               {0x80000000, 0xFF800000, "minus zero"},
                               {0xBF800000, 0xFFC00000, "a negative number"},
                               {0xFF800000, 0xFFC00000, "minus infinity"},
                               {0x7F800000, 0x7F800000, "infinity"},
                               {0x7FC00001, 0x7FC00001, "a positive NaN comes back as it is"},
                               {0xFFC00001, 0xFFC00000, "a negative NaN loses its payload"},
                               {0x3F800000, 0x00000000, "one"},
                               {0x447A0000, 0x40400000, "a thousand"},
                           });
}

}  // namespace
}  // namespace zthalf::testing
