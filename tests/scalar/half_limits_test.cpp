// The limits of half_t, each against what it stands for, worked out with the operators or in double.
#include "zthalf/half_limits.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <set>

#include "tests/support/patterns.h"
#include "zthalf/half_scalar.h"

namespace zthalf {
namespace {

using limits = std::numeric_limits<half_t>;

double valueOf(half_t x) { return half_scalar::impl::convertHalfToDouble(x.bits); }
half_t halfOf(double x) { return {half_scalar::impl::convertDoubleToHalf(x)}; }

static_assert(limits::is_specialized && limits::is_signed && limits::is_bounded && limits::is_iec559);
static_assert(!limits::is_integer && !limits::is_exact && !limits::is_modulo && !limits::traps);
static_assert(limits::has_infinity && limits::has_quiet_NaN && limits::has_signaling_NaN);
static_assert(limits::has_denorm == std::denorm_present && !limits::has_denorm_loss && !limits::tinyness_before);
static_assert(limits::round_style == std::round_to_nearest && limits::radix == 2);
static_assert(noexcept(limits::min()) && noexcept(limits::quiet_NaN()) && limits::max().bits == 0x7BFF);
static_assert(std::numeric_limits<half_t const>::max().bits == 0x7BFF);
static_assert(std::numeric_limits<half_t volatile>::epsilon().bits == 0x1400);
static_assert(std::numeric_limits<half_t const volatile>::digits == 11);

TEST(HalfLimits, AreTheEndsOfTheNumbers) {
  double largest = 0, smallest = 1, smallestNormal = 1;
  testing::forEveryPattern([&](std::uint16_t p) {
    if (!half_scalar::isfinite({p})) return;
    const double x = valueOf({p});
    largest = std::fmax(largest, x);
    if (x > 0) smallest = std::fmin(smallest, x);
    if (x > 0 && (p & 0x7C00) != 0) smallestNormal = std::fmin(smallestNormal, x);
  });
  EXPECT_EQ(valueOf(limits::max()), largest);
  EXPECT_EQ(valueOf(limits::lowest()), -largest);
  EXPECT_EQ(valueOf(limits::denorm_min()), smallest);
  EXPECT_EQ(valueOf(limits::min()), smallestNormal);
}

TEST(HalfLimits, EpsilonIsTheStepAboveOneAndTheDigitsFollow) {
  const half_t one = halfOf(1);
  EXPECT_EQ((one + limits::epsilon()).bits, half_scalar::nextafter(one, limits::infinity()).bits);
  EXPECT_EQ(valueOf(limits::epsilon()), std::ldexp(1, 1 - limits::digits));
  EXPECT_EQ(valueOf(limits::round_error()), 0.5) << "of the last place, to nearest";
  EXPECT_EQ((one + half_t{0x1000}).bits, one.bits) << "half of epsilon is a tie, to even";
}

TEST(HalfLimits, ExponentsBoundThePowers) {
  EXPECT_EQ(valueOf(limits::min()), std::ldexp(1, limits::min_exponent - 1));
  EXPECT_TRUE(half_scalar::isfinite(halfOf(std::ldexp(1, limits::max_exponent - 1))));
  EXPECT_TRUE(half_scalar::isinf(halfOf(std::ldexp(1, limits::max_exponent))));
  const auto isNormal = [](double x) { return x >= valueOf(limits::min()) && x <= valueOf(limits::max()); };
  EXPECT_TRUE(isNormal(std::pow(10, limits::min_exponent10)) && !isNormal(std::pow(10, limits::min_exponent10 - 1)));
  EXPECT_TRUE(isNormal(std::pow(10, limits::max_exponent10)) && !isNormal(std::pow(10, limits::max_exponent10 + 1)));
}

// Of decimal numbers within the normal range, that is.
TEST(HalfLimits, DecimalDigitsSurvive) {
  const auto survive = [](int digits, double unit) {
    for (int n = static_cast<int>(std::pow(10, digits - 1)); n < std::pow(10, digits); ++n) {
      if (std::lrint(valueOf(halfOf(n * unit)) / unit) != n) return false;
    }
    return true;
  };
  for (const double unit : {1e-6, 1e-5, 1e-4, 1e-3, 1e-2, 1e-1, 1.0, 10.0}) {
    EXPECT_TRUE(survive(limits::digits10, unit)) << unit;
  }
  EXPECT_FALSE(survive(limits::digits10 + 1, 1e-1));

  const auto texts = [](int digits) {
    std::set<std::string> all;
    for (std::uint16_t p = 0x0001; p < 0x7C00; ++p) {
      char text[32];
      std::snprintf(text, sizeof text, "%.*e", digits - 1, valueOf({p}));
      all.insert(text);
    }
    return all.size();
  };
  EXPECT_EQ(texts(limits::max_digits10), 0x7BFFu);
  EXPECT_LT(texts(limits::max_digits10 - 1), 0x7BFFu);
}

TEST(HalfLimits, InfinityAndNaNs) {
  EXPECT_EQ((limits::max() + limits::max()).bits, limits::infinity().bits);
  EXPECT_EQ((limits::infinity() - limits::infinity()).bits, limits::quiet_NaN().bits);
  EXPECT_TRUE(half_scalar::isnan(limits::quiet_NaN()) && half_scalar::isnan(limits::signaling_NaN()));
  EXPECT_EQ(limits::signaling_NaN().bits & 0x0200, 0) << "signalling";
  EXPECT_EQ((limits::signaling_NaN() + half_t{}).bits, limits::quiet_NaN().bits);
}

}  // namespace
}  // namespace zthalf
