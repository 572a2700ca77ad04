#include "scalar/kernels/cplx_log.h"

#include "scalar/kernels/log10_single.h"
#include "scalar/kernels/log2_single.h"
#include "tests/scalar/kernels/complex_comparison.h"
#include "tests/scalar/kernels/complex_steps.h"

namespace zthalf::testing {
namespace {

using namespace qsl_scalar;

constexpr float inf = std::numeric_limits<float>::infinity();
constexpr float most = std::numeric_limits<float>::max();
const float quiet = std::bit_cast<float>(0x7FC00000u);
const float negative = std::bit_cast<float>(0xFFC00000u);

TEST(CplxLogSingle, SpecialArguments) {
  expectComplexCases(cplxLogSingle, {{1, 0, 0x00000000, 0x00000000, "one"},
                                     {0, 0, 0xFF800000, 0x00000000, "zero"},
                                     {-0.0f, -0.0f, 0xFF800000, 0x00000000, "the angle of minus zero is zero"},
                                     {-1, 0, 0x00000000, 0x40490FDB, "a negative number: pi"},
                                     {-1, -0.0f, 0x00000000, 0xC0490FDB, "with the sign of the imaginary zero"},
                                     {0, 1, 0x80000000, 0x3FC90FDB, "i: the logarithm of 1 - 0"},
                                     {most, most, 0x42B2238A, 0x3F490FDB, "the length overflows and its half does not"},
                                     {-inf, 1, 0x7F800000, 0x40490FDB, "infinite"},
                                     {inf, -inf, 0x7F800000, 0xBF490FDB, "infinite twice"},
                                     {quiet, 0, 0x7FC00000, 0x00000000, "a real NaN has an angle of zero"},
                                     {negative, 0, 0x7FC00000, 0x00000000, "and its magnitude is taken"},
                                     {1, negative, 0x7FC00000, 0xFFC00000, "another NaN"},
                                     {quiet, inf, 0x7FC00000, 0xFFC00000, "beside an infinity too"}});
}

TEST(CplxLogSingle, EqualsItsSteps) {
  expectSteps<float>("cplxLogSingle", quickComplex, cplxLogSingle, complex_steps::log<float>);
}
TEST(CplxLogDouble, EqualsItsSteps) {
  expectSteps<double>("cplxLogDouble", quickComplex, cplxLogDouble, complex_steps::log<double>);
}
TEST(CplxLog10Single, EqualsItsSteps) {
  expectSteps<float>("cplxLog10Single", quickComplex, cplxLog10Single,
                     [](auto x, auto y) { return complex_steps::log10(x, y); });
}
TEST(CplxLog2Single, EqualsItsSteps) {
  expectSteps<float>("cplxLog2Single", quickComplex, cplxLog2Single,
                     [](auto x, auto y) { return complex_steps::log2(x, y); });
}

// Around the circles of radius 0.875, 1 and 1.125, where the way changes.
TEST(CplxLogSingle, EqualsItsStepsAroundTheUnitCircle) {
  complexComparison<float> compare("cplxLogSingle");
  for (std::uint64_t i = 0; i < quickComplex; ++i) {
    const double angle = static_cast<double>(scrambled(i)) * 0x1p-61;
    const double radius = (i % 3 == 0 ? 0.875 : i % 3 == 1 ? 1.0 : 1.125) + static_cast<double>(i % 17) * 0x1p-24;
    const complexOf<float> z = {static_cast<float>(radius * std::cos(angle)),
                                static_cast<float>(radius * std::sin(angle))};
    compare.check(cplxLogSingle(z), complex_steps::log<float>(z.re, z.im), z);
  }
}

TEST(RealLogarithms, ToBaseTwoAndTenEqualTheirStepsOnAStrideOfFloats) {
  expectSameOnFloats(quickStride, log2Single, [](float x) { return complex_steps::log2(x).value(); });
  expectSameOnFloats(quickStride, log10Single, [](float x) { return complex_steps::log10(x).value(); });
}

TEST(RealLogarithms, OfPowersOfTheBase) {
  for (int k = -149; k < 128; ++k) EXPECT_EQ(log2Single(std::ldexp(1.0f, k)), static_cast<float>(k));
  EXPECT_EQ(log10Single(1000.0f), 3.0f);
  EXPECT_EQ(hex(log2Single(negative)), "0xFFC00000");
  EXPECT_EQ(hex(log2Single(quiet)), "0x7FC00000");
  EXPECT_EQ(hex(log10Single(negative)), "0xFFC00000");
  EXPECT_EQ(hex(log10Single(-0.0f)), "0xFF800000");
}

}  // namespace
}  // namespace zthalf::testing
