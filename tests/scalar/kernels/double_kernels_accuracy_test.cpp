// How far the double-precision kernels under the complex ones are from the truth, on numbered random operands.
#include <gtest/gtest.h>

#include <algorithm>
#include <ostream>

#include "scalar/kernels/exp_double.h"
#include "scalar/kernels/log1p_double.h"
#include "scalar/kernels/log_double.h"
#include "scalar/kernels/sincos_double.h"
#include "tests/support/multiple_precision.h"
#include "tests/support/sweep.h"

namespace zthalf::testing {
namespace {

constexpr std::uint64_t operandCount = 300000;

// In units in the last place of double. Results below the normal range have the last place of the smallest ones.
double distanceInDouble(mpfr_srcptr truth, double result) {
  precise difference;
  mpfr_sub_d(difference.get(), truth, result, MPFR_RNDN);
  const long exponent = mpfr_zero_p(truth) != 0 ? -1074 : static_cast<long>(mpfr_get_exp(truth)) - 53;
  mpfr_mul_2si(difference.get(), difference.get(), -std::max(exponent, -1074L), MPFR_RNDN);
  return std::abs(mpfr_get_d(difference.get(), MPFR_RNDN));
}

// In turn: any pattern; numbers from -1 to 3, where most of the work is done; numbers up to 800 in size; multiples of
// pi/4 and what lies next to them.
double operandAt(std::uint64_t i) {
  const std::uint64_t random = scrambled(i);
  const double fraction = static_cast<double>(static_cast<std::int64_t>(random)) * 0x1p-63;
  switch (i % 4) {
    case 0:
      return std::bit_cast<double>(random);
    case 1:
      return 2.0 * fraction + 1.0;
    case 2:
      return 800.0 * fraction;
    default:
      return std::nextafter(0.7853981633974483 * static_cast<double>(random % 100000), i % 3 == 0 ? 0.0 : 1e300);
  }
}

double worstOf(double (*kernel)(double), preciseFunction exact) {
  double worst = 0;
  for (std::uint64_t i = 0; i < operandCount; ++i) {
    const double x = operandAt(i);
    if (!std::isfinite(x)) continue;
    precise truth = exactly(exact, x);
    const double result = kernel(x);
    if (truth.isFinite() && !std::isinf(result)) worst = std::max(worst, distanceInDouble(truth.get(), result));
  }
  return worst;
}

void expectBetween(double least, double worst, double most) {
  EXPECT_GE(worst, least) << "the bound is not tight, or nothing was compared";
  EXPECT_LE(worst, most);
}

TEST(DoubleKernelAccuracy, ExpDouble) { expectBetween(0.5, worstOf(qsl_scalar::expDouble, mpfr_exp), 1.0); }
TEST(DoubleKernelAccuracy, LogDouble) { expectBetween(0.5, worstOf(qsl_scalar::logDouble, mpfr_log), 1.0); }
TEST(DoubleKernelAccuracy, Log1pDouble) { expectBetween(0.5, worstOf(qsl_scalar::log1pDouble, mpfr_log1p), 1.0); }

double sine(double x) { return qsl_scalar::sincosDouble(x).sine; }
double cosine(double x) { return qsl_scalar::sincosDouble(x).cosine; }
TEST(DoubleKernelAccuracy, SincosDouble) {
  expectBetween(0.5, worstOf(sine, mpfr_sin), 1.0);
  expectBetween(0.5, worstOf(cosine, mpfr_cos), 1.0);
}

// The double that comes nearest to a multiple of pi/2, and the largest one.
TEST(DoubleKernelAccuracy, SincosDoubleOfHardAngles) {
  for (const double x :
       {0x1.6ac5b262ca1ffp849, 0x1.fffffffffffffp1023, 0x1.921fb54442d18p0, 0x1.921fb54442d18p1, 0x1p1000}) {
    precise s = exactly(mpfr_sin, x), c = exactly(mpfr_cos, x);
    EXPECT_LE(distanceInDouble(s.get(), sine(x)), 1.0) << x;
    EXPECT_LE(distanceInDouble(c.get(), cosine(x)), 1.0) << x;
  }
}

std::string shown(double x) { return hex(x); }
const double inf = std::numeric_limits<double>::infinity();
const double positive = std::bit_cast<double>(0x7FF8000000000001u);
const double negative = std::bit_cast<double>(0xFFF8000000000001u);
constexpr char const* domainNaN = "0xFFF8000000000000";

TEST(DoubleKernels, SpecialArguments) {
  using namespace qsl_scalar;
  EXPECT_EQ(shown(expDouble(inf)), shown(inf));
  EXPECT_EQ(shown(expDouble(-inf)), shown(0.0));
  EXPECT_EQ(shown(expDouble(710.0)), shown(inf));
  EXPECT_EQ(shown(expDouble(-746.0)), shown(0.0));
  EXPECT_EQ(shown(expDouble(-0.0)), shown(1.0));
  EXPECT_EQ(shown(expDouble(positive)), domainNaN);
  EXPECT_EQ(shown(logDouble(-0.0)), shown(-inf));
  EXPECT_EQ(shown(logDouble(-1.0)), domainNaN);
  EXPECT_EQ(shown(logDouble(negative)), domainNaN);
  EXPECT_EQ(shown(logDouble(positive)), shown(positive));
  EXPECT_EQ(shown(logDouble(inf)), shown(inf));
  EXPECT_EQ(shown(logDouble(1.0)), shown(0.0));
  EXPECT_EQ(shown(log1pDouble(-0.0)), shown(-0.0));
  EXPECT_EQ(shown(log1pDouble(-1.0)), shown(-inf));
  EXPECT_EQ(shown(log1pDouble(-1.5)), domainNaN);
  EXPECT_EQ(shown(log1pDouble(-inf)), domainNaN);
  EXPECT_EQ(shown(log1pDouble(negative)), domainNaN);
  EXPECT_EQ(shown(log1pDouble(positive)), shown(positive));
  EXPECT_EQ(shown(log1pDouble(inf)), shown(inf));
  EXPECT_EQ(shown(sine(-0.0)), shown(-0.0));
  EXPECT_EQ(shown(cosine(-0.0)), shown(1.0));
  for (const double x : {inf, -inf, positive, negative}) {
    EXPECT_EQ(shown(sine(x)), domainNaN);
    EXPECT_EQ(shown(cosine(x)), domainNaN);
  }
}

}  // namespace
}  // namespace zthalf::testing
