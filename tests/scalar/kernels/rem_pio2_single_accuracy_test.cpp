// The reduction by pi/2 and the digits of 2/pi against multiple precision.
#include <gtest/gtest.h>
#include <mpfr.h>

#include <algorithm>
#include <cmath>

#include "scalar/kernels/rem_pio2_single.h"
#include "scalar/kernels/two_over_pi_digits.h"
#include "tests/scalar/kernels/trigonometric_steps.h"
#include "tests/support/sweep.h"

namespace zthalf::testing {
namespace {

using qsl_scalar::reducedAngle;
using qsl_scalar::remPio2Single;

class number {
 public:
  explicit number(mpfr_prec_t bits) { mpfr_init2(value_, bits); }
  number(number const&) = delete;
  number& operator=(number const&) = delete;
  ~number() { mpfr_clear(value_); }
  operator mpfr_ptr() { return value_; }

 private:
  mpfr_t value_;
};

// x - n pi/2 is upper + lower up to a multiple of 4 pi. The error of the pair, relative to the angle. 400 bits hold 128
// of the integer part, 24 of the argument and 30 of cancellation many times over.
double relativeError(float x, reducedAngle const& y) {
  number pi(400), angle(400), pair(400);
  mpfr_const_pi(pi, MPFR_RNDN);
  mpfr_mul_si(angle, pi, y.n, MPFR_RNDN);
  mpfr_div_ui(angle, angle, 2, MPFR_RNDN);
  mpfr_set_flt(pair, x, MPFR_RNDN);
  mpfr_sub(angle, pair, angle, MPFR_RNDN);
  mpfr_mul_ui(pi, pi, 4, MPFR_RNDN);
  mpfr_remainder(angle, angle, pi, MPFR_RNDN);
  mpfr_set_flt(pair, y.upper, MPFR_RNDN);
  mpfr_add_d(pair, pair, y.lower, MPFR_RNDN);
  mpfr_sub(pair, pair, angle, MPFR_RNDN);
  mpfr_div(pair, pair, angle, MPFR_RNDN);
  return std::abs(mpfr_get_d(pair, MPFR_RNDN));
}

double worstBetween(std::uint32_t low, std::uint32_t high) {
  double worst = 0;
  for (std::uint64_t i = 0; i < 100000; ++i) {
    const std::uint64_t random = scrambled(i);
    const std::uint32_t word = low + static_cast<std::uint32_t>((random >> 32) % (high - low));
    const float x = std::bit_cast<float>(word | (static_cast<std::uint32_t>(random) & 0x80000000u));
    worst = std::max(worst, relativeError(x, remPio2Single(x)));
  }
  return worst;
}

constexpr std::uint32_t quarterPi = 0x3F490FDB, threeQuarterPi = 0x4016CBE3, middleEnd = 0x43490F81, end = 0x7F800000;

TEST(RemPio2Accuracy, OneStep) {
  const double worst = worstBetween(quarterPi, threeQuarterPi);
  EXPECT_LE(worst, 0x1p-24);
  EXPECT_GE(worst, 0x1p-40);
}

TEST(RemPio2Accuracy, RepeatedSteps) {
  const double worst = worstBetween(threeQuarterPi, middleEnd);
  EXPECT_LE(worst, 0x1p-24);
  EXPECT_GE(worst, 0x1p-40);
}

TEST(RemPio2Accuracy, Digits) {
  const double worst = worstBetween(middleEnd, end);
  EXPECT_LE(worst, 0x1p-40);
  EXPECT_GE(worst, 0x1p-60);
}

TEST(RemPio2Accuracy, DigitsInEveryBinade) {
  double worst = 0;
  for (std::uint32_t field = 135; field < 255; ++field) {
    for (std::uint32_t i = 0; i < 500; ++i) {
      const float x = std::bit_cast<float>(field << 23 | static_cast<std::uint32_t>(scrambled(i) >> 41));
      worst = std::max(worst, relativeError(x, remPio2Single(x)));
    }
  }
  EXPECT_LE(worst, 0x1p-40);
}

// The float whose reduced angle is the smallest.
TEST(RemPio2Accuracy, WorstCancellation) {
  const float x = std::bit_cast<float>(0x6F79BE45u);
  EXPECT_LE(relativeError(x, remPio2Single(x)), 0x1p-40);
}

// Beside the multiples the middle way subtracts, where it may stop too early.
TEST(RemPio2Accuracy, BesideEveryMultiple) {
  double worst = 0;
  for (int n = 1; n <= 200; ++n) {
    const std::uint32_t word = bitsIn(static_cast<float>(n * 1.5707963267948966));
    for (std::uint32_t w = word - 300; w <= word + 300; ++w) {
      const float x = std::bit_cast<float>(w);
      worst = std::max(worst, relativeError(x, remPio2Single(x)));
    }
  }
  EXPECT_LE(worst, 0x1p-22);
  EXPECT_GE(worst, 0x1p-26);
}

TEST(TwoOverPiDigits, AreTheNumbers) {
  number value(2000);
  mpfr_const_pi(value, MPFR_RNDN);
  mpfr_ui_div(value, 2, value, MPFR_RNDN);
  ASSERT_EQ(qsl_scalar::twoOverPiDigits.size(), 198u);
  for (std::size_t i = 0; i < qsl_scalar::twoOverPiDigits.size(); ++i) {
    mpfr_mul_ui(value, value, 256, MPFR_RNDN);
    const unsigned long digit = mpfr_get_ui(value, MPFR_RNDZ);
    EXPECT_EQ(qsl_scalar::twoOverPiDigits[i], digit) << i;
    mpfr_sub_ui(value, value, digit, MPFR_RNDN);
  }
}

// The reference of the reduction's tests has the multiples of pi/2 written out.
TEST(RemPio2Reference, LeadingBitsOfMultiplesAreTheNumbers) {
  for (int n = 1; n <= 32; ++n) {
    number multiple(200);
    mpfr_const_pi(multiple, MPFR_RNDN);
    mpfr_mul_ui(multiple, multiple, static_cast<unsigned long>(n), MPFR_RNDN);
    mpfr_div_ui(multiple, multiple, 2, MPFR_RNDN);
    const float rounded = mpfr_get_flt(multiple, MPFR_RNDN);
    EXPECT_EQ(hex(steps::leadingBitsOfMultiple(n)), hex(bitsIn(rounded) & 0xFFFFFF00u)) << n;
  }
}

}  // namespace
}  // namespace zthalf::testing
