#include "scalar/kernels/kernel_rem_pio2.h"

#include <algorithm>

#include "scalar/kernels/float_fields.h"
#include "scalar/kernels/scalbn_single.h"
#include "scalar/kernels/two_over_pi_digits.h"

namespace qsl_scalar {

namespace {

// With x * 2/pi = n + f the angle is f * pi/2, and n is wanted modulo 8 only. So the product starts at the first digit
// of 2/pi that contributes less than a multiple of 8, and goes on until enough digits of f are known: ten terms, and
// more where f begins with zeros. Everything up to f is exact, since each float in it is a small integer times a power
// of two; rounding begins with the product f * pi/2.

constexpr int lastTerm = 9;   // the product's terms 0 to 9 are always formed
constexpr int capacity = 16;  // of terms; no float needs more than 14

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
    floatOf(0x1FC40000u),  // 8.30055726673725e-20
    floatOf(0x1BC60000u),  // 3.2756352257180363e-22
};

float twoOverPiDigit(int i) { return i < 0 ? 0.0f : static_cast<float>(twoOverPiDigits[static_cast<unsigned>(i)]); }

// Term i of the product of x with the digits of 2/pi from index first on.
float termOfProduct(angleDigits const& x, int first, int i) {
  float sum = 0.0f;
  for (int j = 0; j < x.count; ++j) sum = sum + x.digit[j] * twoOverPiDigit(first + i - j);
  return sum;
}

// The value 2^exponent * (top + digit[count - 1] / 256 + digit[count - 2] / 256^2 + ... + digit[0] / 256^count).
struct number {
  std::array<std::int32_t, capacity> digit;
  int count;
  float top;
  std::int32_t exponent;
};

// Carries from the last of the terms upwards.
number distilled(std::array<float, capacity> const& term, int last, std::int32_t exponent) {
  number value{};
  value.count = last;
  value.exponent = exponent;
  float z = term[last];
  for (int i = 0; i < last; ++i) {
    const float carry = static_cast<float>(static_cast<std::int32_t>(z * 0.00390625f));
    value.digit[i] = static_cast<std::int32_t>(z + carry * -256.0f);
    z = term[last - 1 - i] + carry;
  }
  value.top = z;
  return value;
}

// Takes the integer part out of the value and returns it modulo 8; the top is then the part of the fraction that stands
// above the digits, unscaled. For a positive exponent the integer reaches into the first digit.
std::int32_t takeIntegerPart(number& value) {
  float z = scalbnSingle(value.top, value.exponent);
  z = z + static_cast<float>(static_cast<std::int32_t>(z * 0.125f)) * -8.0f;
  auto n = static_cast<std::int32_t>(z);
  value.top = z - static_cast<float>(n);
  if (value.exponent > 0) {
    std::int32_t& leading = value.digit[value.count - 1];
    const std::int32_t part = leading >> (8 - value.exponent);
    n = n + part;
    leading = leading - (part << (8 - value.exponent));
  }
  return n;
}

bool isAtLeastHalf(number const& fraction) {
  if (fraction.exponent < 0) return fraction.top >= 0.5f;
  return fraction.digit[fraction.count - 1] >> (7 - fraction.exponent) > 0;
}

// 1 - f by digits: the first digit that is not zero, seen from below, becomes 256 - d, those above 255 - d, and the
// leading one keeps the bits of the fraction alone. The top takes part for a negative exponent; otherwise it is zero.
void complement(number& fraction) {
  bool borrowed = false;
  for (int i = 0; i < fraction.count; ++i) {
    std::int32_t& digit = fraction.digit[i];
    if (borrowed) {
      digit = 255 - digit;
    } else if (digit != 0) {
      digit = 256 - digit;
      borrowed = true;
    }
  }
  if (fraction.exponent > 0) {
    fraction.digit[fraction.count - 1] &= 0xFF >> fraction.exponent;
  } else if (fraction.exponent < 0) {
    fraction.top = 1.0f - fraction.top;
    if (borrowed) fraction.top = fraction.top - exponentRaised(1.0f, fraction.exponent);
  }
}

// How many terms more are needed: none where the fraction shows a digit above the last ten, otherwise one and one for
// each further leading zero.
int missingTerms(number const& fraction) {
  if (fraction.top != 0.0f) return 0;
  for (int i = fraction.count - 1; i >= lastTerm; --i) {
    if (fraction.digit[i] != 0) return 0;
  }
  int missing = 1;
  while (fraction.digit[lastTerm - missing] == 0) ++missing;
  return missing;
}

// Makes digit[count] the leading digit, of weight 2^exponent: the top, or without one the first digit that is not zero.
// The exponent is at least -8 here, so the top is one digit.
void normalize(number& fraction) {
  if (fraction.top != 0.0f) {
    fraction.digit[fraction.count] = static_cast<std::int32_t>(scalbnSingle(fraction.top, -fraction.exponent));
    return;
  }
  do {
    --fraction.count;
    fraction.exponent -= 8;
  } while (fraction.digit[fraction.count] == 0);
}

// f * pi/2 as the sum of the products of equal weight, the lightest ones first; the lower part is what the rounding of
// the sum dropped, found by adding again from the heaviest down.
reducedAngle timesHalfPi(number const& fraction) {
  const int last = fraction.count;
  std::array<float, capacity> scaled{};
  float weight = exponentRaised(1.0f, fraction.exponent);
  for (int i = last; i >= 0; --i) {
    scaled[i] = weight * static_cast<float>(fraction.digit[i]);
    weight = weight * 0.00390625f;
  }

  std::array<float, capacity> product{};
  for (int i = last; i >= 0; --i) {
    float sum = 0.0f;
    for (int k = 0; k <= lastTerm && k <= last - i; ++k) sum = sum + halfPiDigits[k] * scaled[i + k];
    product[last - i] = sum;
  }

  float upper = 0.0f;
  for (int i = last; i >= 0; --i) upper = upper + product[i];
  float lower = product[0] - upper;
  for (int i = 1; i <= last; ++i) lower = lower + product[i];
  return {0, upper, lower};
}

}  // namespace

reducedAngle kernelRemPio2(angleDigits const& x) {
  const int first = std::max(0, (x.exponent - 3) / 8);
  const std::int32_t exponent = x.exponent - 8 * (first + 1);
  std::array<float, capacity> term{};
  for (int i = 0; i <= lastTerm; ++i) term[i] = termOfProduct(x, first, i);

  int last = lastTerm;
  for (;;) {
    number fraction = distilled(term, last, exponent);
    std::int32_t n = takeIntegerPart(fraction);
    const bool isRoundedUp = isAtLeastHalf(fraction);
    if (isRoundedUp) {
      n = n + 1;
      complement(fraction);
    }

    if (const int missing = missingTerms(fraction); missing > 0) {
      for (int i = last + 1; i <= last + missing; ++i) term[i] = termOfProduct(x, first, i);
      last += missing;
      continue;
    }

    normalize(fraction);
    const reducedAngle y = timesHalfPi(fraction);
    return isRoundedUp ? reducedAngle{n & 7, -y.upper, -y.lower} : reducedAngle{n & 7, y.upper, y.lower};
  }
}

}  // namespace qsl_scalar
