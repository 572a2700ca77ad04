#include "scalar/kernels/kernel_rem_pio2.h"

#include <algorithm>
#include <bit>
#include <cstring>

#include "scalar/kernels/float_fields.h"
#include "scalar/kernels/two_over_pi_digits.h"

namespace qsl_scalar {

namespace {

// With x * 2/pi = n + f the angle is f * pi/2, and n is wanted modulo 8 only. So the product starts at the first digit
// of 2/pi that contributes less than a multiple of 8, and goes on until enough digits of f are known: ten terms, and
// more where f begins with zeros. Term i is the sum of the products of digits with a weight of 256^-i, and later terms
// are left out with all they would carry. All of that is exact, and done on one wide integer. Rounding begins with the
// product f * pi/2, which is formed in single precision from the digits of f; its order of operations is part of the
// result.

using wide = unsigned __int128;

constexpr int lastTerm = 9;    // the product's terms 0 to 9 are always formed
constexpr int lastDigit = 15;  // of a wide; no float needs a term beyond 14

// pi/2 as a sum of floats with at most 8 significant bits each, so that their products with digits are exact.
constexpr std::array<float, 10> halfPiDigits = {
    floatOf(0x3FC90000u),  // 1.5703125
    floatOf(0x39F00000u),  // 0.000457763671875
    floatOf(0x37DA0000u),  // 2.5987625122070312e-05
    floatOf(0x33A20000u),  // 7.543712854385376e-08
    floatOf(0x2E840000u),  // 6.002665031701326e-11
    floatOf(0x2B500000u),  // 7.389644451905042e-13
    floatOf(0x27C20000u),  // 5.384581669432009e-15
    floatOf(0x22D00000u),  // 5.637851296924623e-18
    floatOf(0x1FC40000u),  // 8.300923e-20
    floatOf(0x1BC60000u),  // 3.2756352257180363e-22
};

// Sixteen digits of 2/pi.
constexpr wide digitsOfTwoOverPi(int first) {
  wide digits = 0;
  for (int i = first; i <= first + lastDigit; ++i) digits = digits << 8 | twoOverPiDigits[static_cast<unsigned>(i)];
  return digits;
}

// The terms 0 to last of the product of x with the digits of 2/pi from index first on, in units of the last one. What
// does not fit counts for multiples of 8 only.
wide product(angleDigits const& x, int first, int last, wide twoOverPi) {
  wide digits = twoOverPi >> 8 * (lastDigit - last);
  wide sum = digits * static_cast<std::uint32_t>(x.digit[0]);
  for (int j = 1; j <= 2; ++j) {
    digits >>= 8;
    if (first >= j) digits |= wide{twoOverPiDigits[static_cast<unsigned>(first - j)]} << 8 * last;
    sum += digits * static_cast<std::uint32_t>(x.digit[static_cast<unsigned>(j)]);
  }
  return sum;
}

int leadingZeros(wide v) {
  const auto upper = static_cast<std::uint64_t>(v >> 64);
  return upper != 0 ? std::countl_zero(upper) : 64 + std::countl_zero(static_cast<std::uint64_t>(v));
}

// How many terms more are needed: none where a digit shows above the last nine, otherwise one, and one for each zero
// with which these nine begin.
int missingTerms(wide fraction) {
  if ((fraction >> 8 * lastTerm) != 0) return 0;
  return 1 + (leadingZeros(fraction) - 8 * (lastDigit + 1 - lastTerm)) / 8;
}

// 256^-i.
constexpr auto powersOf256 = [] {
  std::array<float, lastDigit + 1> powers{};
  for (int i = 0; i <= lastDigit; ++i) powers[i] = exponentRaised(1.0f, -8 * i);
  return powers;
}();

using lanes = float __attribute__((vector_size(16)));

// The digits of pi/2 from index -16 on, with zeros where there are none.
constexpr auto paddedHalfPi = [] {
  std::array<float, 2 * (lastDigit + 1)> digits{};
  for (unsigned k = 0; k < halfPiDigits.size(); ++k) digits[lastDigit + 1 + k] = halfPiDigits[k];
  return digits;
}();

lanes halfPiFrom(int index) {
  lanes digits;
  std::memcpy(&digits, paddedHalfPi.data() + lastDigit + 1 + index, sizeof digits);
  return digits;
}

// f * pi/2 as the sum of the products of equal weight, the lightest ones first; the lower part is what the rounding of
// the sum dropped, found by adding again from the heaviest down. The fraction has `leading` digits below the leading
// one, whose last place is worth 2^exponent.
//
// The product of weight 256^-i is the sum over j of digit j of f and digit i - j of pi/2. Both are integers below 256
// in units of their weights, and at most ten of their products are added: all of these sums are exact, in any order,
// and so are formed side by side. Zeros stand in where pi/2 has no digit.
template <int groups>
ZTHALF_INLINE reducedAngle timesHalfPi(wide fraction, int leading, std::int32_t exponent) {
  const wide aligned = fraction << 8 * (lastDigit - leading);
  lanes sum[groups] = {};
  for (int j = 0; j <= leading; ++j) {
    const auto digit = static_cast<std::uint64_t>(aligned >> 8 * (lastDigit - j)) & 0xFF;
    const auto value = static_cast<float>(static_cast<std::int32_t>(digit)) * powersOf256[j];
    for (int g = j / 4; g < groups; ++g) sum[g] = sum[g] + lanes{value, value, value, value} * halfPiFrom(4 * g - j);
  }
  const float weight = exponentRaised(1.0f, exponent);
  float product[4 * groups];
  for (int g = 0; g < groups; ++g) sum[g] = sum[g] * lanes{weight, weight, weight, weight};
  std::memcpy(product, sum, sizeof product);

  float upper = 0.0f;
  for (int i = leading; i >= 0; --i) upper = upper + product[i];
  float lower = product[0] - upper;
  for (int i = 1; i <= leading; ++i) lower = lower + product[i];
  return {0, upper, lower};
}

reducedAngle timesHalfPi(wide fraction, std::int32_t places) {
  constexpr int usual = 9;  // of nearly all angles; with the number known the loops dissolve
  const int leading = lastDigit - leadingZeros(fraction) / 8;
  const std::int32_t exponent = 8 * leading - places;
  if (leading == usual) return timesHalfPi<usual / 4 + 1>(fraction, usual, exponent);
  return timesHalfPi<(lastDigit + 1) / 4>(fraction, leading, exponent);
}

}  // namespace

reducedAngle kernelRemPio2(angleDigits const& x) {
  const int first = std::max(0, (x.exponent - 3) / 8);
  const std::int32_t exponent = x.exponent - 8 * (first + 1);  // of the product's term 0, from -8 to 2
  constexpr wide fromTheFirst = digitsOfTwoOverPi(0);
  const wide twoOverPi = first == 0 ? fromTheFirst : digitsOfTwoOverPi(first);

  for (int last = lastTerm;;) {
    const wide value = product(x, first, last, twoOverPi);
    const int places = 8 * last - exponent;  // of the fraction
    const wide one = wide{1} << places;
    const auto integer = static_cast<std::int32_t>(static_cast<std::uint32_t>(value >> places));
    const wide below = value & (one - 1);
    const auto roundedUp = static_cast<std::uint32_t>(below >> (places - 1));
    const wide flip = -wide{roundedUp};
    const wide fraction = ((below ^ flip) - flip) & (one - 1);

    if (const int missing = missingTerms(fraction); missing > 0) {
      last += missing;
      continue;
    }

    const reducedAngle y = timesHalfPi(fraction, places);
    const std::uint32_t sign = roundedUp << 31;
    return {(integer + static_cast<std::int32_t>(roundedUp)) & 7, floatOf(bitsOf(y.upper) ^ sign),
            floatOf(bitsOf(y.lower) ^ sign)};
  }
}

}  // namespace qsl_scalar
