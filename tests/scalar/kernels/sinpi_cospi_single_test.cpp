#include "scalar/kernels/sinpi_cospi_single.h"

#include <gtest/gtest.h>

#include "tests/scalar/kernels/float_cases.h"
#include "tests/scalar/kernels/trigonometric_steps.h"
#include "tests/support/sweep.h"

namespace zthalf::testing {
namespace {

using qsl_scalar::cospiSingle;
using qsl_scalar::sinpiSingle;

float sinpiBySteps(float x) { return steps::sinpi(x).value(); }
float cospiBySteps(float x) { return steps::cospi(x).value(); }

TEST(SinpiSingle, SpecialArguments) {
  expectCases(sinpiSingle, {{0x7F800000, 0xFFC00000, "infinity gives the negative NaN"},
                            {0xFF800000, 0xFFC00000, "minus infinity too"},
                            {0x7FC00000, 0xFFC00000, "a positive NaN becomes the negative one"},
                            {0xFFC12345, 0xFFC00000, "a negative NaN loses its payload"},
                            {0x7F800001, 0xFFC00000, "a signalling NaN"},
                            {0x00000000, 0x00000000, "zero"},
                            {0x80000000, 0x80000000, "minus zero keeps its sign"},
                            {0x3F800000, 0x00000000, "one gives plus zero"},
                            {0xBF800000, 0x80000000, "minus one gives minus zero"},
                            {0x40000000, 0x00000000, "two"},
                            {0xC0000000, 0x80000000, "minus two"},
                            {0x40400000, 0x00000000, "three is one after the reduction"},
                            {0x3F000000, 0x3F800000, "a half"},
                            {0x3FC00000, 0xBF800000, "three halves"},
                            {0x3E800000, 0x3F3504F3, "a quarter"},
                            {0xBF400000, 0xBF3504F3, "minus three quarters"},
                            {0x42C80000, 0x00000000, "100, through the remainder"},
                            {0xC2CA0000, 0x80000000, "-101, through the remainder"},
                            {0x4B800001, 0x00000000, "an even integer above 2^24"},
                            {0x7F7FFFFF, 0x00000000, "the largest float is an even integer"},
                            {0x3DAAAAAB, 0x3E8483EE, "the float next to 1/12 counts as 1/12"},
                            {0x3EAAAAAB, 0x3F5DB3D7, "the one next to 1/3 as 1/3"}});
}

TEST(SinpiSingle, EqualsItsStepsOnAStrideOfFloats) { expectSameOnFloats(slowStride, sinpiSingle, sinpiBySteps); }

TEST(SinpiSingle, EqualsItsStepsAroundEveryBoundary) {
  expectSameAround({0x3DAAAAAB, 0x3E2AAAAB, 0x3E800000, 0x3EAAAAAB, 0x3ED55555, 0x3F000000, 0x3F155555, 0x3F2AAAAB,
                    0x3F400000, 0x3F555555, 0x3F6AAAAB, 0x3F800000, 0x3FC00000, 0x40000000, 0x40200000, 0x4B800000},
                   sinpiSingle, sinpiBySteps);
}

TEST(CospiSingle, SpecialArguments) {
  expectCases(cospiSingle, {{0x7F800000, 0xFFC00000, "infinity gives the negative NaN"},
                            {0xFF800000, 0xFFC00000, "minus infinity too"},
                            {0x7FC00000, 0xFFC00000, "a positive NaN becomes the negative one"},
                            {0xFFC12345, 0xFFC00000, "a negative NaN loses its payload"},
                            {0x7F800001, 0xFFC00000, "a signalling NaN"},
                            {0x00000000, 0x3F800000, "zero"},
                            {0x80000000, 0x3F800000, "minus zero"},
                            {0x3F000000, 0x00000000, "a half gives plus zero"},
                            {0xBF000000, 0x00000000, "minus a half too"},
                            {0x3FC00000, 0x00000000, "three halves too"},
                            {0x3F800000, 0xBF800000, "one"},
                            {0xBF800000, 0xBF800000, "minus one"},
                            {0x40000000, 0x3F800000, "two"},
                            {0x40400000, 0xBF800000, "three"},
                            {0x42C80000, 0x3F800000, "100"},
                            {0x3EAAAAAB, 0x3F000000, "the float next to 1/3 counts as 1/3"},
                            {0x3F2AAAAB, 0xBF000000, "the one next to 2/3 as 2/3"},
                            {0x7F7FFFFF, 0x3F800000, "the largest float is an even integer"}});
}

TEST(CospiSingle, EqualsItsStepsOnAStrideOfFloats) { expectSameOnFloats(slowStride, cospiSingle, cospiBySteps); }

TEST(CospiSingle, EqualsItsStepsAroundEveryBoundary) {
  expectSameAround({0x3DAAAAAB, 0x3E2AAAAB, 0x3E800000, 0x3EAAAAAB, 0x3ED55555, 0x3F000000, 0x3F155555, 0x3F2AAAAB,
                    0x3F400000, 0x3F555555, 0x3F6AAAAB, 0x3F800000, 0x3FC00000, 0x40000000, 0x40200000, 0x4B800000},
                   cospiSingle, cospiBySteps);
}

// All multiples k/12 that come to the reduced interval, and the signs of their neighbours' results.
TEST(SinpiCospiSingle, EqualTheirStepsAtEveryTwelfth) {
  for (int k = -60; k <= 60; ++k) {
    expectSameAround({bitsIn(static_cast<float>(k) / 12.0f)}, sinpiSingle, sinpiBySteps);
    expectSameAround({bitsIn(static_cast<float>(k) / 12.0f)}, cospiSingle, cospiBySteps);
  }
}

TEST(LongSinpiSingle, EqualsItsStepsOnEveryFloat) { expectSameOnFloats(1, sinpiSingle, sinpiBySteps); }

TEST(LongCospiSingle, EqualsItsStepsOnEveryFloat) { expectSameOnFloats(1, cospiSingle, cospiBySteps); }

}  // namespace
}  // namespace zthalf::testing
