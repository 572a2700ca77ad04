#include "scalar/kernels/cplx_exp.h"

#include "scalar/kernels/cplx_expm1_single.h"
#include "tests/scalar/kernels/complex_comparison.h"
#include "tests/scalar/kernels/complex_steps.h"

namespace zthalf::testing {
namespace {

using namespace qsl_scalar;

constexpr float inf = std::numeric_limits<float>::infinity();
const float quiet = std::bit_cast<float>(0x7FC00000u);

TEST(CplxExpSingle, SpecialArguments) {
  expectComplexCases(cplxExpSingle, {{0, 0, 0x3F800000, 0x00000000, "one"},
                                     {1, -0.0f, 0x402DF854, 0x00000000, "the imaginary zero becomes positive"},
                                     {quiet, 0, 0xFFC00000, 0x00000000, "a real NaN is the negative one"},
                                     {-inf, 1, 0x00000000, 0x00000000, "vanishes"},
                                     {-inf, inf, 0x00000000, 0x00000000, "whatever the angle"},
                                     {-inf, quiet, 0xFFC00000, 0xFFC00000, "but for a NaN"},
                                     {inf, 1, 0x7F800000, 0x7F800000, "infinite"},
                                     {inf, 3, 0xFF800000, 0x7F800000, "with the signs of cosine and sine"},
                                     {1, inf, 0xFFC00000, 0xFFC00000, "no angle"},
                                     {inf, inf, 0xFFC00000, 0xFFC00000, "no angle either"}});
}

// exp(90) overflows, and exp(90) cos(1.5707963) does not.
TEST(CplxExpSingle, IsAppliedInTwoHalvesNearTheOverflow) {
  const complexOf<float> z = cplxExpSingle({90.0f, std::bit_cast<float>(0x3FC90FDBu)});
  EXPECT_NEAR(z.re, std::exp(90.0) * std::cos(double(std::bit_cast<float>(0x3FC90FDBu))), 1e26);
  EXPECT_EQ(z.im, inf);
}

TEST(CplxExpSingle, EqualsItsSteps) {
  expectSteps<float>("cplxExpSingle", quickComplex, cplxExpSingle, complex_steps::exp<float>);
}
TEST(CplxExpDouble, EqualsItsSteps) {
  expectSteps<double>("cplxExpDouble", quickComplex, cplxExpDouble, complex_steps::exp<double>);
}

TEST(CplxExpm1Single, EqualsItsSteps) {
  expectSteps<float>("cplxExpm1Single", quickComplex, cplxExpm1Single, complex_steps::expm1);
}

// Small arguments, of every ratio of their parts: all ways of the quotient.
TEST(CplxExpm1Single, EqualsItsStepsNearZero) {
  complexComparison<float> compare("cplxExpm1Single");
  for (std::uint64_t i = 0; i < quickComplex; ++i) {
    const std::uint64_t random = scrambled(i);
    const auto part = [](std::uint64_t bits, std::uint64_t places) {
      return std::ldexp(static_cast<float>(static_cast<std::int32_t>(bits)), -31 - static_cast<int>(places));
    };
    const complexOf<float> z = {part(random, i % 30), part(random >> 32, i / 30 % 40)};
    compare.check(cplxExpm1Single(z), complex_steps::expm1(z.re, z.im), z);
    const complexOf<float> onDiagonal = {z.re, i % 2 == 0 ? z.re : -z.re};
    compare.check(cplxExpm1Single(onDiagonal), complex_steps::expm1(onDiagonal.re, onDiagonal.im), onDiagonal);
  }
}

TEST(CplxExpm1Single, KeepsTinyArguments) {
  expectComplexCases(cplxExpm1Single, {{0, 0, 0x00000000, 0x00000000, "zero"},
                                       {-0.0f, -0.0f, 0x80000000, 0x00000000, "minus zero keeps its real sign"},
                                       {0x1p-40f, 0x1p-40f, 0x2B800000, 0x2B800000, "2^-40 twice"},
                                       {-0x1p-40f, 0x1p-45f, 0xAB800000, 0x29000000, "2^-40 and 2^-45"}});
}

}  // namespace
}  // namespace zthalf::testing
