// How far the real functions are from the truth, over every half, and how many results are not the
// correctly rounded ones. The counts are results too: they only change with a kernel.
#include <gtest/gtest.h>

#include <algorithm>

#include "core/float_conversion.h"
#include "core/patterns.h"
#include "tests/support/half_cases.h"
#include "tests/support/multiple_precision.h"
#include "zthalf/half_scalar.h"

namespace zthalf::testing {
namespace {

struct Accuracy {
  char const* name;
  halfFunction function;
  preciseFunction exact;
  double worst;         // units in the last place of half
  unsigned notNearest;  // results that are not the correctly rounded ones
};

void PrintTo(Accuracy const& a, std::ostream* out) { *out << a.name; }

class HalfAccuracy : public ::testing::TestWithParam<Accuracy> {};

TEST_P(HalfAccuracy, IsAsStated) {
  const Accuracy a = GetParam();
  double worst = 0;
  unsigned notNearest = 0;
  for (std::uint32_t p = 0; p <= 0xFFFF; ++p) {
    const half_t x{static_cast<std::uint16_t>(p)};
    if (!pattern::isFinite(x.bits)) continue;
    precise truth = exactly(a.exact, widen<double>(x.bits));
    if (!truth.isFinite()) continue;
    const double result = widen<double>(a.function(x).bits);
    worst = std::max(worst, truth.distanceTo(result, halfFormat));
    notNearest += result != truth.roundedTo(halfFormat);
  }
  EXPECT_LE(worst, a.worst);
  EXPECT_GT(worst, 0.49) << "a distance that small means that nothing was measured";
  EXPECT_EQ(notNearest, a.notNearest);
}

INSTANTIATE_TEST_SUITE_P(Functions, HalfAccuracy,
                         ::testing::Values(Accuracy{"exp", half_scalar::exp, mpfr_exp, 0.873, 9056},
                                           Accuracy{"expm1", half_scalar::expm1, mpfr_expm1, 0.5001, 1},
                                           Accuracy{"pow2", half_scalar::pow2, mpfr_exp2, 0.5001, 1},
                                           Accuracy{"pow10", half_scalar::pow10, mpfr_exp10, 0.5001, 1},
                                           Accuracy{"log", half_scalar::log, mpfr_log, 0.5001, 1},
                                           Accuracy{"log1p", half_scalar::log1p, mpfr_log1p, 0.5001, 2},
                                           Accuracy{"log2", half_scalar::log2, mpfr_log2, 0.5001, 0},
                                           Accuracy{"log10", half_scalar::log10, mpfr_log10, 0.5001, 5},
                                           Accuracy{"sqrt", half_scalar::sqrt, mpfr_sqrt, 0.5001, 0},
                                           Accuracy{"rsqrt", half_scalar::rsqrt, mpfr_rec_sqrt, 0.5001, 0},
                                           Accuracy{"sin", half_scalar::sin, mpfr_sin, 0.5001, 4},
                                           Accuracy{"cos", half_scalar::cos, mpfr_cos, 0.5001, 2},
                                           Accuracy{"tan", half_scalar::tan, mpfr_tan, 0.5001, 6},
                                           Accuracy{"sinpi", half_scalar::sinpi, mpfr_sinpi, 0.5001, 0},
                                           Accuracy{"cospi", half_scalar::cospi, mpfr_cospi, 0.5001, 0},
                                           Accuracy{"asin", half_scalar::asin, mpfr_asin, 0.5001, 0},
                                           Accuracy{"acos", half_scalar::acos, mpfr_acos, 0.5001, 3},
                                           Accuracy{"atan", half_scalar::atan, mpfr_atan, 0.5001, 6},
                                           Accuracy{"sinh", half_scalar::sinh, mpfr_sinh, 0.5001, 2},
                                           Accuracy{"cosh", half_scalar::cosh, mpfr_cosh, 0.5001, 2},
                                           Accuracy{"tanh", half_scalar::tanh, mpfr_tanh, 0.5001, 0},
                                           Accuracy{"asinh", half_scalar::asinh, mpfr_asinh, 0.5001, 8},
                                           Accuracy{"acosh", half_scalar::acosh, mpfr_acosh, 0.5001, 1},
                                           Accuracy{"atanh", half_scalar::atanh, mpfr_atanh, 0.5001, 0}),
                         [](auto const& info) { return info.param.name; });

}  // namespace
}  // namespace zthalf::testing
