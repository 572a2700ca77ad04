#include "scalar/kernels/cplx_atanh_single.h"

#include "tests/scalar/kernels/complex_comparison.h"
#include "tests/scalar/kernels/complex_inverse_steps.h"

namespace zthalf::testing {
namespace {

using qsl_scalar::cplxAtanhSingle;

constexpr float inf = std::numeric_limits<float>::infinity();
const float quiet = std::bit_cast<float>(0x7FC00000u);

TEST(CplxAtanhSingle, SpecialArguments) {
  expectComplexCases(cplxAtanhSingle, {{0, 0, 0x00000000, 0x00000000, "zero"},
                                       {1, 0, 0x7F800000, 0x00000000, "one"},
                                       {-1, -0.0f, 0xFF800000, 0x00000000, "minus one"},
                                       {2, 0, 0x3F0C9F54, 0x3FC90FDB, "beyond one, above"},
                                       {2, -0.0f, 0x3F0C9F54, 0x3FC90FDB, "the sign of the imaginary zero is not seen"},
                                       {-2, 0, 0xBF0C9F54, 0xBFC90FDB, "but that of the real part is"},
                                       {inf, 0, 0x00000000, 0x3FC90FDB, "infinite"},
                                       {-inf, 1, 0x80000000, 0x3FC90FDB, "on the left"},
                                       {1, -inf, 0x00000000, 0xBFC90FDB, "far down"},
                                       {0, inf, 0x00000000, 0x3FC90FDB, "on the imaginary axis"},
                                       {-inf, -inf, 0x80000000, 0xBFC90FDB, "infinite twice"},
                                       {0x1p70f, 0, 0x1C800000, 0x3FC90FDB, "a huge real number"},
                                       {quiet, 0, 0xFFC00000, 0x00000000, "a real NaN"},
                                       {0, quiet, 0xFFC00000, 0xFFC00000, "another one"},
                                       {quiet, inf, 0xFFC00000, 0xFFC00000, "beside an infinity too"}});
}

TEST(CplxAtanhSingle, EqualsItsSteps) {
  expectSteps<float>("cplxAtanhSingle", quickComplex, cplxAtanhSingle, complex_steps::atanh);
}

// The real part of 1 has a way of its own.
TEST(CplxAtanhSingle, EqualsItsStepsAboveOneAndAtTheLimitOfSize) {
  complexComparison<float> compare("cplxAtanhSingle");
  for (std::uint64_t i = 0; i < 20000; ++i) {
    const float y = std::bit_cast<float>(static_cast<std::uint32_t>(scrambled(i)));
    for (const float x : {1.0f, -1.0f, 0x1.fffffep61f, 0x1p62f, 0x1p61f}) {
      const complexOf<float> z = {x, y}, turned = {y, x};
      compare.check(cplxAtanhSingle(z), complex_steps::atanh(z.re, z.im), z);
      compare.check(cplxAtanhSingle(turned), complex_steps::atanh(turned.re, turned.im), turned);
    }
  }
}

}  // namespace
}  // namespace zthalf::testing
