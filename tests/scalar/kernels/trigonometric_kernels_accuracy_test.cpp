// How far the trigonometric and hyperbolic kernels are from the truth at full width, on numbered random operands.
#include <gtest/gtest.h>

#include <algorithm>
#include <ostream>

#include "scalar/kernels/asin_acos_single.h"
#include "scalar/kernels/asinh_acosh_single.h"
#include "scalar/kernels/atan_single.h"
#include "scalar/kernels/atanh_single.h"
#include "scalar/kernels/exp_single.h"
#include "scalar/kernels/pi_constants.h"
#include "scalar/kernels/sin_cos_single.h"
#include "scalar/kernels/sinh_cosh_single.h"
#include "scalar/kernels/sinpi_cospi_single.h"
#include "scalar/kernels/tan_single.h"
#include "scalar/kernels/tanh_single.h"
#include "tests/support/multiple_precision.h"
#include "tests/support/sweep.h"

namespace zthalf::testing {
namespace {

using namespace qsl_scalar;

struct Accuracy {
  char const* name;
  float (*kernel)(float);
  preciseFunction exact;
  float low, high;  // where most of the work is done
  double worst;     // units in the last place
};

void PrintTo(Accuracy const& a, std::ostream* out) { *out << a.name; }

class KernelAccuracy : public ::testing::TestWithParam<Accuracy> {};

TEST_P(KernelAccuracy, IsAsStated) {
  const Accuracy a = GetParam();
  double worst = 0;
  float where = 0;
  for (std::uint64_t i = 0; i < 40000; ++i) {
    const auto word = static_cast<std::uint32_t>(scrambled(i) >> 32);
    const float inside = a.low + (a.high - a.low) * (static_cast<float>(word) * 0x1p-32f);
    const float x = i % 4 == 0 ? std::bit_cast<float>(word) : inside;
    if (!std::isfinite(x)) continue;
    precise truth = exactly(a.exact, x);
    if (!truth.isFinite()) continue;
    const double distance = truth.distanceTo(a.kernel(x), singleFormat);
    if (distance > worst) where = x;
    worst = std::max(worst, distance);
  }
  EXPECT_LE(worst, a.worst) << "at " << where;
  EXPECT_GE(worst, 0.6) << "a distance that small means that nothing was measured";
}

INSTANTIATE_TEST_SUITE_P(Kernels, KernelAccuracy,
                         ::testing::Values(Accuracy{"sin", sinSingle, mpfr_sin, -250.0f, 250.0f, 1.0},
                                           Accuracy{"cos", cosSingle, mpfr_cos, -250.0f, 250.0f, 1.0},
                                           Accuracy{"tan", tanSingle, mpfr_tan, -250.0f, 250.0f, 1.0},
                                           Accuracy{"sinpi", sinpiSingle, mpfr_sinpi, -3.0f, 3.0f, 1.5},
                                           Accuracy{"cospi", cospiSingle, mpfr_cospi, -3.0f, 3.0f, 1.5},
                                           Accuracy{"asin", asinSingle, mpfr_asin, -1.0f, 1.0f, 0.9},
                                           Accuracy{"acos", acosSingle, mpfr_acos, -1.0f, 1.0f, 0.9},
                                           Accuracy{"atan", atanSingle, mpfr_atan, -5.0f, 5.0f, 0.9},
                                           Accuracy{"exp", expSingle, mpfr_exp, -105.0f, 90.0f, 1.0},
                                           Accuracy{"sinh", sinhSingle, mpfr_sinh, -23.0f, 23.0f, 1.9},
                                           Accuracy{"cosh", coshSingle, mpfr_cosh, -23.0f, 23.0f, 1.5},
                                           Accuracy{"sinhNearOverflow", sinhSingle, mpfr_sinh, 88.0f, 90.0f, 2.6},
                                           Accuracy{"coshNearOverflow", coshSingle, mpfr_cosh, -90.0f, -88.0f, 2.6},
                                           Accuracy{"tanh", tanhSingle, mpfr_tanh, -3.0f, 3.0f, 2.2},
                                           Accuracy{"asinh", asinhSingle, mpfr_asinh, -4.0f, 4.0f, 1.8},
                                           Accuracy{"acosh", acoshSingle, mpfr_acosh, 1.0f, 4.0f, 2.1},
                                           Accuracy{"atanh", atanhSingle, mpfr_atanh, -1.0f, 1.0f, 1.8}),
                         [](auto const& info) { return info.param.name; });

// Where the reduction leaves off too early, right beside multiples of pi/2.
TEST(KernelAccuracy, BesideMultiplesOfHalfPi) {
  struct Function {
    float (*kernel)(float);
    preciseFunction exact;
    double worst;
  };
  for (Function const& f :
       {Function{sinSingle, mpfr_sin, 1.3}, Function{cosSingle, mpfr_cos, 1.3}, Function{tanSingle, mpfr_tan, 2.1}}) {
    double worst = 0;
    for (int n = 1; n <= 128; ++n) {
      const std::uint32_t word = bitsIn(static_cast<float>(n * 1.5707963267948966));
      for (std::uint32_t w = word - 400; w <= word + 400; ++w) {
        const float x = std::bit_cast<float>(w);
        worst = std::max(worst, exactly(f.exact, x).distanceTo(f.kernel(x), singleFormat));
      }
    }
    EXPECT_LE(worst, f.worst);
    EXPECT_GE(worst, f.worst - 0.15);
  }
}

// The floats that are taken for multiples of 1/12.
TEST(KernelAccuracy, BesideTwelfths) {
  double worst = 0;
  for (int k = -24; k <= 24; ++k) {
    const float x = static_cast<float>(k) / 12.0f;
    for (const float y : {std::nextafter(x, -9.0f), x, std::nextafter(x, 9.0f)}) {
      worst = std::max(worst, exactly(mpfr_sinpi, y).distanceTo(sinpiSingle(y), singleFormat));
      if (k % 6 != 0) worst = std::max(worst, exactly(mpfr_cospi, y).distanceTo(cospiSingle(y), singleFormat));
    }
  }
  EXPECT_LE(worst, 4.1);
  EXPECT_GE(worst, 4.0);
}

TEST(PiConstants, AreTheRoundedMultiplesAndTheirRests) {
  struct Parts {
    int divisor;
    float upper;
    float lower;
  };
  for (Parts const& p :
       {Parts{1, piUpper, piLower}, Parts{2, halfPiUpper, -halfPiExcess}, Parts{4, quarterPiUpper, quarterPiLower}}) {
    precise multiple;
    mpfr_const_pi(multiple.get(), MPFR_RNDN);
    mpfr_div_ui(multiple.get(), multiple.get(), static_cast<unsigned long>(p.divisor), MPFR_RNDN);
    EXPECT_EQ(p.upper, static_cast<float>(multiple.roundedTo(singleFormat)));
    mpfr_sub_d(multiple.get(), multiple.get(), p.upper, MPFR_RNDN);
    EXPECT_EQ(p.lower, static_cast<float>(multiple.roundedTo(singleFormat)));
  }
}

}  // namespace
}  // namespace zthalf::testing
