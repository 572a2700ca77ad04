#include "scalar/kernels/cplx_sqrt.h"

#include <thread>

#include "tests/scalar/kernels/complex_comparison.h"
#include "tests/scalar/kernels/complex_steps.h"

namespace zthalf::testing {
namespace {

using qsl_scalar::cplxSqrtDouble;
using qsl_scalar::cplxSqrtSingle;
using qsl_scalar::detail::internalOnly::RealPartOfComplexSqrtExtreme;

constexpr float inf = std::numeric_limits<float>::infinity();
const float quiet = std::bit_cast<float>(0x7FC00000u);
const float negative = std::bit_cast<float>(0xFFC00005u);

TEST(CplxSqrtSingle, SpecialArguments) {
  expectComplexCases(cplxSqrtSingle,
                     {{3, 4, 0x40000000, 0x3F800000, "(3, 4) is (2 + i) squared"},
                      {-4, 0, 0x00000000, 0x40000000, "a negative number"},
                      {-4, -0.0f, 0x00000000, 0x40000000, "the sign of a zero imaginary part is not seen"},
                      {-0.0f, 0, 0x00000000, 0x00000000, "minus zero counts as zero"},
                      {0, 2, 0x3F800000, 0x3F800000, "on the imaginary axis both parts are equal"},
                      {0, -2, 0x3F800000, 0xBF800000, "below it the imaginary part is negative"},
                      {-0.0f, -2, 0x3F800000, 0xBF800000, "beside minus zero too"},
                      {inf, 1, 0x7F800000, 0x00000000, "plus infinity"},
                      {-inf, -1, 0x00000000, 0xFF800000, "minus infinity: y over a negative root"},
                      {1, inf, 0x7F800000, 0x7F800000, "an infinite imaginary part"},
                      {-1, -inf, 0x7F800000, 0xFF800000, "on the left: two negative factors"},
                      {quiet, 0, 0x7FC00000, 0x00000000, "a real NaN keeps its sign"},
                      {negative, 0, 0xFFC00005, 0x00000000, "and its payload"},
                      {quiet, inf, 0xFFC00000, 0xFFC00000, "another NaN is the negative one, twice"},
                      {1, quiet, 0xFFC00000, 0xFFC00000, "in the imaginary part too"}});
}

TEST(CplxSqrtSingle, EqualsItsSteps) {
  expectSteps<float>("cplxSqrtSingle", quickComplex, cplxSqrtSingle, complex_steps::sqrt<float>);
}
TEST(CplxSqrtDouble, EqualsItsSteps) {
  expectSteps<double>("cplxSqrtDouble", quickComplex, cplxSqrtDouble, complex_steps::sqrt<double>);
}

// Every branch, those that the root itself never reaches included: NaN parts.
template <class Wide>
void expectExtremeSteps() {
  bitComparison compare("RealPartOfComplexSqrtExtreme");
  forComplexNumbers<Wide>(quickComplex, [&](complexOf<Wide> z) {
    const Wide expected =
        complex_steps::extremeRoot<Wide>(definedNumber<Wide>(z.re), definedNumber<Wide>(z.im)).value();
    compare.check(RealPartOfComplexSqrtExtreme(z.re, z.im), expected, z.re, z.im);
  });
}
TEST(RealPartOfComplexSqrtExtreme, EqualsItsSteps) {
  expectExtremeSteps<float>();
  expectExtremeSteps<double>();
}

TEST(RealPartOfComplexSqrtExtreme, HoldsWhereTheLengthOverflowsOrVanishes) {
  EXPECT_EQ(RealPartOfComplexSqrtExtreme(0x1p127f, 0.0f), std::sqrt(0x1p127f));
  EXPECT_EQ(RealPartOfComplexSqrtExtreme(0x1.8p127f, 0x1p127f),
            std::sqrt(float(0.5 * (0x1.8p127 + std::hypot(0x1.8p127, 0x1p127)))));
  EXPECT_EQ(RealPartOfComplexSqrtExtreme(0x1p-149f, 0.0f), std::sqrt(0x1p-149f));
  EXPECT_EQ(RealPartOfComplexSqrtExtreme(0x1p1023, 0.0), std::sqrt(0x1p1023));
  EXPECT_EQ(RealPartOfComplexSqrtExtreme(0x1p-1074, 0.0), std::sqrt(0x1p-1074));
}

// The static limit is set once, whoever comes first.
TEST(RealPartOfComplexSqrtExtreme, FirstCallsMayMeet) {
  std::vector<std::thread> threads;
  std::atomic<int> right{0};
  for (int i = 0; i < 4; ++i) {
    threads.emplace_back([&] { right += RealPartOfComplexSqrtExtreme(0x1p126f, 0.0f) == 0x1p63f; });
  }
  for (std::thread& t : threads) t.join();
  EXPECT_EQ(right, 4);
}

}  // namespace
}  // namespace zthalf::testing
