#include "scalar/kernels/kernel_rem_pio2.h"

#include <algorithm>

#include "scalar/kernels/float_fields.h"
#include "scalar/kernels/two_over_pi_digits.h"

namespace qsl_scalar {

namespace {

// With x * 2/pi = n + f the angle is f * pi/2, and n is wanted modulo 8 only. So the product starts at the first digit
// of 2/pi that contributes less than a multiple of 8, and goes on until enough digits of f are known: ten terms, and
// more where f begins with zeros. All of that is exact. Rounding begins with the product f * pi/2, which is formed in
// single precision; its order of operations is part of the result.

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
    floatOf(0x1FC40000u),  // 8.300923e-20
    floatOf(0x1BC60000u),  // 3.2756352257180363e-22
};

// Term i of the product of x with the digits of 2/pi from index first on.
std::int32_t termOfProduct(angleDigits const& x, int first, int i) {
  std::int32_t sum = 0;
  for (int j = 0; j < 3; ++j) {
    const int index = first + i - j;
    if (index >= 0) sum += x.digit[static_cast<unsigned>(j)] * twoOverPiDigits[static_cast<unsigned>(index)];
  }
  return sum;
}

// The value 2^exponent * (digit[leading] + digit[leading - 1] / 256 + ... + digit[0] / 256^leading).
struct number {
  std::array<std::int32_t, capacity> digit;
  int leading;
  std::int32_t exponent;
};

// The product's terms with their carries taken upwards: all digits but the leading one are below 256.
number carried(std::array<std::int32_t, capacity> const& term, int last, std::int32_t exponent) {
  number value{{}, last, exponent};
  std::int32_t carry = 0;
  for (int i = 0; i < last; ++i) {
    const std::int32_t sum = term[last - i] + carry;
    value.digit[i] = sum & 0xFF;
    carry = sum >> 8;
  }
  value.digit[last] = term[0] + carry;
  return value;
}

// Takes the integer part out of the value and returns it. Where the leading digit is an integer, the integer part ends
// inside the next one, or before it, and that becomes the leading digit: afterwards the exponent is from -8 to -1, and
// the leading digit has that many bits, all of the fraction.
std::int32_t takeIntegerPart(number& value) {
  std::int32_t upper = 0;
  if (value.exponent >= 0) {
    upper = value.digit[value.leading] << value.exponent;
    --value.leading;
    value.exponent -= 8;
  }
  std::int32_t& leading = value.digit[value.leading];
  const std::int32_t integer = upper + (leading >> -value.exponent);
  leading &= (1 << -value.exponent) - 1;
  return integer;
}

bool isAtLeastHalf(number const& fraction) { return fraction.digit[fraction.leading] >> (-fraction.exponent - 1) != 0; }

// 1 - f by digits: the first digit that is not zero, seen from below, is taken from its base, those above it from one
// less. The base of the leading digit is that of its bits.
void complement(number& fraction) {
  std::int32_t borrow = 0;
  for (int i = 0; i <= fraction.leading; ++i) {
    const std::int32_t base = i < fraction.leading ? 256 : 1 << -fraction.exponent;
    const std::int32_t taken = fraction.digit[i] + borrow;
    fraction.digit[i] = taken == 0 ? 0 : base - taken;
    borrow = taken == 0 ? 0 : 1;
  }
}

// How many terms more are needed: none where a digit shows above the last nine, otherwise one, and one for each zero
// with which these nine begin.
int missingTerms(number const& fraction) {
  for (int i = fraction.leading; i >= lastTerm; --i) {
    if (fraction.digit[i] != 0) return 0;
  }
  int missing = 1;
  while (fraction.digit[lastTerm - missing] == 0) ++missing;
  return missing;
}

void dropLeadingZeros(number& fraction) {
  while (fraction.digit[fraction.leading] == 0) {
    --fraction.leading;
    fraction.exponent -= 8;
  }
}

// f * pi/2 as the sum of the products of equal weight, the lightest ones first; the lower part is what the rounding of
// the sum dropped, found by adding again from the heaviest down.
reducedAngle timesHalfPi(number const& fraction) {
  const int leading = fraction.leading;
  std::array<float, capacity> scaled{};
  float weight = exponentRaised(1.0f, fraction.exponent);
  for (int i = leading; i >= 0; --i) {
    scaled[i] = weight * static_cast<float>(fraction.digit[i]);
    weight = weight * 0x1p-8f;
  }

  std::array<float, capacity> product{};
  for (int i = leading; i >= 0; --i) {
    float sum = 0.0f;
    for (int k = 0; k <= lastTerm && k <= leading - i; ++k) sum = sum + halfPiDigits[k] * scaled[i + k];
    product[leading - i] = sum;
  }

  float upper = 0.0f;
  for (int i = leading; i >= 0; --i) upper = upper + product[i];
  float lower = product[0] - upper;
  for (int i = 1; i <= leading; ++i) lower = lower + product[i];
  return {0, upper, lower};
}

}  // namespace

reducedAngle kernelRemPio2(angleDigits const& x) {
  const int first = std::max(0, (x.exponent - 3) / 8);
  const std::int32_t exponent = x.exponent - 8 * (first + 1);  // from -8 to 2
  std::array<std::int32_t, capacity> term{};
  for (int i = 0; i <= lastTerm; ++i) term[i] = termOfProduct(x, first, i);

  for (int last = lastTerm;;) {
    number fraction = carried(term, last, exponent);
    const std::int32_t integer = takeIntegerPart(fraction);
    const bool isRoundedUp = isAtLeastHalf(fraction);
    if (isRoundedUp) complement(fraction);

    if (const int missing = missingTerms(fraction); missing > 0) {
      for (int i = last + 1; i <= last + missing; ++i) term[i] = termOfProduct(x, first, i);
      last += missing;
      continue;
    }

    dropLeadingZeros(fraction);
    const reducedAngle y = timesHalfPi(fraction);
    return isRoundedUp ? reducedAngle{(integer + 1) & 7, -y.upper, -y.lower}
                       : reducedAngle{integer & 7, y.upper, y.lower};
  }
}

}  // namespace qsl_scalar
