// How far the kernels are from the truth at full width, on numbered random operands.
#include <gtest/gtest.h>

#include <algorithm>

#include "scalar/kernels/expm1_single.h"
#include "scalar/kernels/log1p_single.h"
#include "scalar/kernels/log_single.h"
#include "scalar/kernels/pow_single.h"
#include "tests/scalar/kernels/power_operands.h"
#include "tests/support/multiple_precision.h"

namespace zthalf::testing {
namespace {

constexpr std::uint64_t operandCount = 200000;

// The worst distance over random patterns and over random numbers of [-1, 3], where most of the work is done.
double worstOf(float (*kernel)(float), preciseFunction exact) {
  double worst = 0;
  for (std::uint64_t i = 0; i < operandCount; ++i) {
    const std::uint64_t random = scrambled(i);
    const auto word = static_cast<std::uint32_t>(random >> 32);
    const float x = i % 2 == 0 ? std::bit_cast<float>(word) : static_cast<float>(word) * 0x1p-30f - 1.0f;
    if (!std::isfinite(x)) continue;
    precise truth = exactly(exact, x);
    if (truth.isFinite()) worst = std::max(worst, truth.distanceTo(kernel(x), singleFormat));
  }
  return worst;
}

float logKernel(float x) { return qsl_scalar::logSingle(x); }

TEST(SingleKernelAccuracy, LogSingle) {
  const double worst = worstOf(logKernel, mpfr_log);
  EXPECT_LE(worst, 0.9);
  EXPECT_GE(worst, 0.5);
}

TEST(SingleKernelAccuracy, Log1pSingle) {
  const double worst = worstOf(qsl_scalar::log1pSingle, mpfr_log1p);
  EXPECT_LE(worst, 0.9);
  EXPECT_GE(worst, 0.5);
}

TEST(SingleKernelAccuracy, Expm1Single) {
  const double worst = worstOf(qsl_scalar::expm1Single, mpfr_expm1);
  EXPECT_LE(worst, 0.9);
  EXPECT_GE(worst, 0.5);
}

double powerDistance(float x, float y) {
  precise truth(x), power(y);
  mpfr_pow(truth.get(), truth.get(), power.get(), MPFR_RNDN);
  return truth.isFinite() ? truth.distanceTo(qsl_scalar::powSingle(x, y), singleFormat) : 0.0;
}

// Bases that are not a power of two: one of the two parts of a + base is not its leading part.
TEST(SingleKernelAccuracy, PowSingleOfGeneralBases) {
  double worst = 0;
  for (std::uint64_t i = 0; i < operandCount; ++i) {
    const powerOperands p = powerOperandsAt(i);
    if (std::isfinite(p.x) && std::isfinite(p.y) && p.x > 0) worst = std::max(worst, powerDistance(p.x, p.y));
  }
  EXPECT_LE(worst, 98.0);
  EXPECT_GE(worst, 80.0);
}

TEST(SingleKernelAccuracy, PowSingleOfTwo) {
  double worst = 0;
  for (std::uint64_t i = 0; i < operandCount / 4; ++i) {
    const float y = static_cast<float>(static_cast<std::int32_t>(scrambled(i))) * 0x1p-24f;
    worst = std::max(worst, powerDistance(2.0f, y));
  }
  EXPECT_LE(worst, 1.0);
  EXPECT_GE(worst, 0.5);
}

}  // namespace
}  // namespace zthalf::testing
