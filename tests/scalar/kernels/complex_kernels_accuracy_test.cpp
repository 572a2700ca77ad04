// How far the complex kernels are from the truth at full width, on numbered random operands, by MPC: the worst distance
// of each part in its own units in the last place, and of the whole value in units of 2^-24 of its length.
#include <gtest/gtest.h>
#include <mpc.h>

#include <algorithm>
#include <ostream>

#include "scalar/kernels/cplx_asin_acos_single.h"
#include "scalar/kernels/cplx_atanh_single.h"
#include "scalar/kernels/cplx_exp.h"
#include "scalar/kernels/cplx_expm1_single.h"
#include "scalar/kernels/cplx_log.h"
#include "scalar/kernels/cplx_pow.h"
#include "scalar/kernels/cplx_sqrt.h"
#include "scalar/kernels/cplx_tan_single.h"
#include "tests/support/multiple_precision.h"
#include "tests/support/sweep.h"

namespace zthalf::testing {
namespace {

constexpr mpfr_prec_t places = 160;

class preciseComplex {
 public:
  preciseComplex() { mpc_init2(value_, places); }
  template <class Wide>
  explicit preciseComplex(complexOf<Wide> z) : preciseComplex() {
    mpc_set_d_d(value_, z.re, z.im, MPC_RNDNN);
  }
  preciseComplex(preciseComplex const&) = delete;
  preciseComplex& operator=(preciseComplex const&) = delete;
  ~preciseComplex() { mpc_clear(value_); }
  mpc_ptr get() { return value_; }

 private:
  mpc_t value_;
};

// What is wanted of a format: the places of its significand, and the exponent of its smallest normal number.
template <class Wide>
struct formatLimits {
  static constexpr long digits = std::numeric_limits<Wide>::digits;
  static constexpr long lowest = std::numeric_limits<Wide>::min_exponent - 1;
};

// The distance of a result from the truth in units of the last place that a number of the truth's size has.
double distance(mpfr_srcptr truth, double result, long exponent, long digits) {
  mpfr_t difference;
  mpfr_init2(difference, places);
  mpfr_sub_d(difference, truth, result, MPFR_RNDN);
  mpfr_mul_2si(difference, difference, digits - exponent, MPFR_RNDN);
  const double units = std::abs(mpfr_get_d(difference, MPFR_RNDN));
  mpfr_clear(difference);
  return units;
}

struct accuracy {
  double re = 0, im = 0, whole = 0;
  friend std::ostream& operator<<(std::ostream& out, accuracy const& a) {
    return out << "re " << a.re << ", im " << a.im << ", whole " << a.whole;
  }
};

template <class Wide>
void judge(accuracy& worst, mpc_ptr truth, complexOf<Wide> result) {
  using limits = formatLimits<Wide>;
  if (!std::isfinite(result.re) || !std::isfinite(result.im)) return;
  const auto normal = [](mpfr_srcptr part) {
    return mpfr_number_p(part) != 0 && (mpfr_zero_p(part) != 0 || mpfr_get_exp(part) > limits::lowest + 1);
  };
  if (!normal(mpc_realref(truth)) || !normal(mpc_imagref(truth))) return;
  const auto exponentOf = [](mpfr_srcptr part) { return mpfr_zero_p(part) != 0 ? limits::lowest : mpfr_get_exp(part); };
  const long re = exponentOf(mpc_realref(truth)), im = exponentOf(mpc_imagref(truth));
  worst.re = std::max(worst.re, distance(mpc_realref(truth), result.re, re, limits::digits));
  worst.im = std::max(worst.im, distance(mpc_imagref(truth), result.im, im, limits::digits));
  const long longer = std::max(re, im);
  worst.whole = std::max({worst.whole, distance(mpc_realref(truth), result.re, longer, limits::digits),
                          distance(mpc_imagref(truth), result.im, longer, limits::digits)});
}

enum class operands {
  near,        // both parts in [-4, 4)
  inside,      // parts of at most 1/2
  overflowing  // real parts from 88 to 89
};

template <class Wide>
complexOf<Wide> operandAt(std::uint64_t i, operands kind) {
  const std::uint64_t random = scrambled(i);
  const auto part = [](std::uint64_t word, int exponent) {
    return static_cast<Wide>(std::ldexp(static_cast<float>(static_cast<std::int32_t>(word)), exponent - 31));
  };
  const int exponent = kind == operands::inside ? -1 : 2;
  const complexOf<Wide> z = {part(random, exponent), part(random >> 32, exponent)};
  if (kind != operands::overflowing) return z;
  return {static_cast<Wide>(88.5) + z.re / 8, z.im};
}

constexpr std::uint64_t operandCount = 5000;

using preciseFunctionOfComplex = int (*)(mpc_ptr, mpc_srcptr, mpc_rnd_t);

template <class Wide>
accuracy worstOf(complexOf<Wide> (*kernel)(complexOf<Wide>), preciseFunctionOfComplex exact, operands kind) {
  accuracy worst;
  for (std::uint64_t i = 0; i < operandCount; ++i) {
    const complexOf<Wide> z = operandAt<Wide>(i, kind);
    if (!std::isfinite(z.re) || !std::isfinite(z.im) || z.re == 0 || z.im == 0) continue;
    preciseComplex truth(z);
    exact(truth.get(), truth.get(), MPC_RNDNN);
    judge(worst, truth.get(), kernel(z));
  }
  return worst;
}

constexpr double notJudged = std::numeric_limits<double>::infinity();

// The bounds are those of the headers. A worst value far below one shows that it is not tight.
void expectWithin(accuracy worst, accuracy most) {
  for (const auto part : {&accuracy::re, &accuracy::im, &accuracy::whole}) {
    if (most.*part == notJudged) continue;
    EXPECT_LE(worst.*part, most.*part) << worst;
    EXPECT_GE(worst.*part, most.*part / 4) << "the bound is not tight, or nothing was compared: " << worst;
  }
}

int expm1(mpc_ptr result, mpc_srcptr z, mpc_rnd_t rounding) {
  mpc_exp(result, z, rounding);
  return mpc_sub_ui(result, result, 1, rounding);
}
template <unsigned base>
int logToBase(mpc_ptr result, mpc_srcptr z, mpc_rnd_t rounding) {
  mpc_log(result, z, rounding);
  mpfr_t scale;
  mpfr_init2(scale, places);
  mpfr_set_ui(scale, base, MPFR_RNDN);
  mpfr_log(scale, scale, MPFR_RNDN);
  mpc_div_fr(result, result, scale, rounding);
  mpfr_clear(scale);
  return 0;
}

using namespace qsl_scalar;

using enum operands;

TEST(ComplexKernelAccuracy, Roots) {
  expectWithin(worstOf(cplxSqrtSingle, mpc_sqrt, near), {2.5, 2.5, 2});
  expectWithin(worstOf(cplxSqrtDouble, mpc_sqrt, near), {2.5, 2.5, 2});
}

TEST(ComplexKernelAccuracy, Exponentials) {
  expectWithin(worstOf(cplxExpSingle, mpc_exp, near), {2.5, 2.5, 2.5});
  expectWithin(worstOf(cplxExpDouble, mpc_exp, near), {2.5, 2.5, 2.5});
  expectWithin(worstOf(cplxExpSingle, mpc_exp, overflowing), {4, 4, 4});
}

// The real part of a small z beside a larger imaginary one is a difference.
TEST(ComplexKernelAccuracy, Expm1) {
  expectWithin(worstOf(cplxExpm1Single, expm1, inside), {notJudged, 6, 6});
  expectWithin(worstOf(cplxExpm1Single, expm1, near), {notJudged, 6, 6});
}

// Beside the unit circle the real part vanishes.
TEST(ComplexKernelAccuracy, Logarithms) {
  expectWithin(worstOf(cplxLogSingle, mpc_log, inside), {4, 1.5, 2});
  expectWithin(worstOf(cplxLogSingle, mpc_log, near), {notJudged, 1.5, 8});
  expectWithin(worstOf(cplxLogDouble, mpc_log, near), {notJudged, 1.5, 8});
  expectWithin(worstOf(cplxLog2Single, logToBase<2>, inside), {4, 2.5, 4});
  expectWithin(worstOf(cplxLog10Single, logToBase<10>, inside), {4, 2.5, 4});
}

// One part of a tangent vanishes at multiples of pi/4.
TEST(ComplexKernelAccuracy, Tangents) {
  expectWithin(worstOf(cplxTanSingle, mpc_tan, inside), {5, 5, 5});
  expectWithin(worstOf(cplxTanSingle, mpc_tan, near), {notJudged, 5, 5});
  expectWithin(worstOf(cplxTanhSingle, mpc_tanh, near), {5, notJudged, 5});
}

TEST(ComplexKernelAccuracy, InverseFunctions) {
  expectWithin(worstOf(cplxAsinSingle, mpc_asin, near), {5, 5, 4});
  expectWithin(worstOf(cplxAcosSingle, mpc_acos, near), {5, 5, 4});
  expectWithin(worstOf(cplxAcoshSingle, mpc_acosh, near), {5, 5, 4});
  expectWithin(worstOf(cplxAtanhSingle, mpc_atanh, near), {4, 4, 3});
}

// Powers with a whole, a fractional, and a complex exponent, of bases and exponents up to 4. The error of the logarithm
// is multiplied by the exponent.
template <class Wide>
accuracy worstOfPowers(complexOf<Wide> (*kernel)(complexOf<Wide>, complexOf<Wide>)) {
  accuracy worst;
  for (std::uint64_t i = 0; i < operandCount; ++i) {
    const complexOf<Wide> z = operandAt<Wide>(2 * i, near);
    complexOf<Wide> w = operandAt<Wide>(2 * i + 1, near);
    if (i % 3 != 0) w = {i % 3 == 1 ? w.re : std::trunc(w.re * 4), 0};
    if (w.re == 0) continue;
    preciseComplex truth(z), power(w);
    mpc_pow(truth.get(), truth.get(), power.get(), MPC_RNDNN);
    judge(worst, truth.get(), kernel(z, w));
  }
  return worst;
}

TEST(ComplexKernelAccuracy, Powers) {
  expectWithin(worstOfPowers(cplxPowSingle), {notJudged, notJudged, 40});
  expectWithin(worstOfPowers(cplxPowDouble), {notJudged, notJudged, 40});
}

}  // namespace
}  // namespace zthalf::testing
