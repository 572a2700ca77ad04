#include "scalar/kernels/cplx_tan_single.h"

#include "tests/scalar/kernels/complex_comparison.h"
#include "tests/scalar/kernels/complex_inverse_steps.h"

namespace zthalf::testing {
namespace {

using qsl_scalar::cplxTanhSingle;
using qsl_scalar::cplxTanSingle;

constexpr float inf = std::numeric_limits<float>::infinity();
const float quiet = std::bit_cast<float>(0x7FC00000u);

TEST(CplxTanSingle, SpecialArguments) {
  expectComplexCases(cplxTanSingle, {{0, 0, 0x00000000, 0x00000000, "zero"},
                                     {-0.0f, 0, 0x80000000, 0x00000000, "minus zero is its own tangent"},
                                     {0, 1, 0x00000000, 0x3F42F7D6, "i tanh 1"},
                                     {-0.0f, 1, 0x00000000, 0x3F42F7D6, "beside minus zero the real part is +0"},
                                     {0.5f, inf, 0x00000000, 0x3F800000, "i above"},
                                     {0.5f, -inf, 0x00000000, 0xBF800000, "-i below"},
                                     {inf, 0, 0xFFC00000, 0x00000000, "no tangent of infinity"}});
  expectComplexCases(cplxTanhSingle, {{0, 0, 0x00000000, 0x00000000, "zero"},
                                      {0, 1, 0x00000000, 0x3FC75923, "i tan 1"},
                                      {quiet, 0, 0x7FC00000, 0x00000000, "the positive NaN"}});
}

TEST(CplxTanSingle, EqualsItsSteps) {
  expectSteps<float>("cplxTanSingle", quickComplex, cplxTanSingle, complex_steps::tan);
}
TEST(CplxTanhSingle, EqualsItsSteps) {
  expectSteps<float>("cplxTanhSingle", quickComplex, cplxTanhSingle, complex_steps::tanh);
}

// Where the product of the tangents is 1 in magnitude, exactly: next to pi/4 and far up.
TEST(CplxTanSingle, EqualsItsStepsWhereTheProductIsOne) {
  complexComparison<float> compare("cplxTanSingle");
  unsigned exact = 0;
  for (std::uint32_t word = 0x3F490F00; word < 0x3F491100; ++word) {
    for (const float y : {10.0f, 30.0f, -30.0f, 9.2f}) {
      const complexOf<float> z = {std::bit_cast<float>(word), y};
      compare.check(cplxTanSingle(z), complex_steps::tan(z.re, z.im), z);
      const complexOf<float> turned = {y, -z.re};
      compare.check(cplxTanhSingle(turned), complex_steps::tanh(turned.re, turned.im), turned);
      exact += complex_steps::unary(steps::tan, z.re) == definedNumber<float>(1.0f);
    }
  }
  EXPECT_GT(exact, 0u);
}

}  // namespace
}  // namespace zthalf::testing
