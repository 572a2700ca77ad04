// How far the kernels of two arguments are from the truth at full width, on numbered random operands, and how far their
// halves are.
#include <gtest/gtest.h>

#include <algorithm>

#include "scalar/kernels/atan2_double.h"
#include "scalar/kernels/atan2_single.h"
#include "scalar/kernels/atan_double.h"
#include "scalar/kernels/hypot_double.h"
#include "scalar/kernels/hypot_single.h"
#include "scalar/kernels/pow_double.h"
#include "tests/scalar/kernels/pair_operands.h"
#include "tests/scalar/mixed_operands_at.h"
#include "tests/support/multiple_precision.h"
#include "tests/support/patterns.h"
#include "zthalf/half_scalar.h"

namespace zthalf::testing {
namespace {

constexpr std::uint64_t operandCount = 200000;

using twoArguments = int (*)(mpfr_ptr, mpfr_srcptr, mpfr_srcptr, mpfr_rnd_t);

// The true value goes into truth, which has been made before: 160 bits.
void compute(precise& truth, twoArguments function, double x, double y) {
  precise first(x), second(y);
  function(truth.get(), first.get(), second.get(), MPFR_RNDN);
}

// In units in the last place of double. Overflow is not judged.
double distanceInDouble(precise& truth, double result) {
  if (std::isinf(result) || mpfr_get_d(truth.get(), MPFR_RNDN) > 0x1.fffffffffffffp1023) return 0;
  precise difference;
  mpfr_sub_d(difference.get(), truth.get(), result, MPFR_RNDN);
  const long exponent = mpfr_zero_p(truth.get()) ? -1074 : static_cast<long>(mpfr_get_exp(truth.get())) - 53;
  mpfr_mul_2si(difference.get(), difference.get(), -std::max(exponent, -1074L), MPFR_RNDN);
  return std::abs(mpfr_get_d(difference.get(), MPFR_RNDN));
}

template <class At, class Kernel>
double worstDouble(At at, Kernel kernel, twoArguments function) {
  double worst = 0;
  precise truth;
  for (std::uint64_t i = 0; i < operandCount; ++i) {
    const operandPair<double> p = at(i);
    if (!std::isfinite(p.first) || !std::isfinite(p.second)) continue;
    compute(truth, function, p.first, p.second);
    if (truth.isFinite()) worst = std::max(worst, distanceInDouble(truth, kernel(p.first, p.second)));
  }
  return worst;
}

template <class Kernel>
double worstSingle(Kernel kernel, twoArguments function) {
  double worst = 0;
  precise truth;
  for (std::uint64_t i = 0; i < operandCount; ++i) {
    const operandPair<float> p = pairAt<float>(i);
    if (!std::isfinite(p.first) || !std::isfinite(p.second)) continue;
    compute(truth, function, p.first, p.second);
    if (truth.isFinite()) worst = std::max(worst, truth.distanceTo(kernel(p.first, p.second), singleFormat));
  }
  return worst;
}

void expectBetween(double least, double worst, double most) {
  EXPECT_GE(worst, least) << "the bound is not tight, or nothing was compared";
  EXPECT_LE(worst, most);
}

TEST(TwoArgumentKernelAccuracy, HypotSingle) {
  expectBetween(0.5, worstSingle(qsl_scalar::hypotSingle, mpfr_hypot), 1.0);
}

TEST(TwoArgumentKernelAccuracy, HypotDouble) {
  expectBetween(0.5, worstDouble(pairAt<double>, qsl_scalar::hypotDouble, mpfr_hypot), 1.0);
}

TEST(TwoArgumentKernelAccuracy, Atan2Single) {
  const auto kernel = [](float y, float x) { return qsl_scalar::atan2Single(y, x); };
  expectBetween(0.5, worstSingle(kernel, mpfr_atan2), 1.5);
}

TEST(TwoArgumentKernelAccuracy, Atan2Double) {
  expectBetween(0.5, worstDouble(pairAt<double>, qsl_scalar::atan2Double, mpfr_atan2), 1.5);
}

TEST(TwoArgumentKernelAccuracy, AtanDouble) {
  const auto kernel = [](double x, double) { return qsl_scalar::atanDouble(x); };
  const auto truth = [](mpfr_ptr result, mpfr_srcptr x, mpfr_srcptr, mpfr_rnd_t rounding) {
    return mpfr_atan(result, x, rounding);
  };
  expectBetween(0.5, worstDouble(pairAt<double>, kernel, truth), 1.0);
}

// Powers up to 2^31 have a logarithm in two full parts. Beyond, the short logarithm's leading product takes 57 bits,
// and the power multiplies what is lost of them: hundreds of units in the last place, by its constants.
constexpr double hugePower = 0x1p31;

operandPair<double> powerOfPositiveAt(std::uint64_t i, bool huge) {
  const operandPair<double> p = powerPairAt(i);
  const bool wanted = (std::abs(p.second) > hugePower) == huge;
  return {wanted ? std::abs(p.first) : 1.0, p.second};
}

TEST(TwoArgumentKernelAccuracy, PowDouble) {
  const auto at = [](std::uint64_t i) { return powerOfPositiveAt(i, false); };
  expectBetween(0.5, worstDouble(at, qsl_scalar::powDouble, mpfr_pow), 1.0);
}

TEST(TwoArgumentKernelAccuracy, PowDoubleOfHugePowersIsCoarse) {
  const auto at = [](std::uint64_t i) { return powerOfPositiveAt(i, true); };
  expectBetween(400, worstDouble(at, qsl_scalar::powDouble, mpfr_pow), 640);
}

// hypot of a half and a float gives the nearest half.
TEST(TwoArgumentAccuracy, HypotOfHalfAndFloatIsCorrectlyRounded) {
  precise truth;
  for (std::uint64_t i = 0; i < operandCount; ++i) {
    const mixedPair<float> p = mixedPairAt<float>(i);
    const auto x = widen<double>(p.half);
    if (!std::isfinite(x) || !std::isfinite(p.wide)) continue;
    compute(truth, mpfr_hypot, x, p.wide);
    const auto result = widen<double>(half_scalar::hypot(half_t{p.half}, p.wide).bits);
    ASSERT_EQ(result, truth.roundedTo(halfFormat)) << hex(p.half) << " " << hex(p.wide);
  }
}

// The share of half results that are not the nearest one, and the worst distance.
struct halfAccuracy {
  double worst = 0;
  double misrounded = 0;
};

template <class Function>
halfAccuracy accuracyOfHalves(Function function, twoArguments exact, bool positiveOnly) {
  halfAccuracy accuracy;
  precise truth;
  std::uint64_t wrong = 0;
  for (std::uint64_t i = 0; i < operandCount; ++i) {
    const std::uint64_t random = scrambled(i);
    const auto x = static_cast<std::uint16_t>(positiveOnly ? random & 0x7FFF : random);
    const auto y = static_cast<std::uint16_t>(random >> 32);
    const auto wideX = widen<double>(x);
    const auto wideY = widen<double>(y);
    if (!std::isfinite(wideX) || !std::isfinite(wideY)) continue;
    compute(truth, exact, wideX, wideY);
    if (!truth.isFinite()) continue;
    const auto result = widen<double>(function(half_t{x}, half_t{y}).bits);
    accuracy.worst = std::max(accuracy.worst, truth.distanceTo(result, halfFormat));
    wrong += result != truth.roundedTo(halfFormat);
  }
  accuracy.misrounded = static_cast<double>(wrong) / static_cast<double>(operandCount);
  return accuracy;
}

TEST(TwoArgumentAccuracy, Atan2OfHalvesIsNearlyAlwaysCorrectlyRounded) {
  const halfAccuracy accuracy =
      accuracyOfHalves([](half_t y, half_t x) { return half_scalar::atan2(y, x); }, mpfr_atan2, false);
  expectBetween(0.4, accuracy.worst, 0.501);
  EXPECT_LE(accuracy.misrounded, 0.001);
}

TEST(TwoArgumentAccuracy, PowerOfHalvesIsNearlyAlwaysCorrectlyRounded) {
  const halfAccuracy accuracy =
      accuracyOfHalves([](half_t x, half_t y) { return half_scalar::power(x, y); }, mpfr_pow, true);
  expectBetween(0.4, accuracy.worst, 0.52);
  EXPECT_LE(accuracy.misrounded, 0.01);
}

}  // namespace
}  // namespace zthalf::testing
