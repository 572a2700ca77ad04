#include "scalar/kernels/pow_single.h"

#include <cmath>
#include <cstdint>

#include "scalar/kernels/float_fields.h"
#include "scalar/kernels/pow_single_parts.h"
#include "scalar/kernels/square_root.h"

namespace qsl_scalar {

namespace {

bool isWhole(float power) { return power == std::trunc(power); }

// From 2^24 on every float is an even integer.
bool isOdd(float whole) { return whole < 0x1p24f && (static_cast<std::int32_t>(whole) & 1) != 0; }

// |x| = 1 keeps its magnitude, a smaller one goes to zero and a larger one to infinity, and turned round for y < 0.
float powerToInfinity(float magnitude, float y) {
  if (magnitude == 1.0f) return 1.0f;
  return (magnitude > 1.0f) == (y > 0.0f) ? infinity : 0.0f;
}

// |x| = 0, 1 or infinity. A power that is not an integer leaves minus zero positive and, where it is negative,
// -infinity as well.
float powerOfEdge(float x, float magnitude, float y) {
  const float r = y < 0.0f ? 1.0f / magnitude : magnitude;
  if (!hasSign(x)) return r;
  const float power = magnitudeOf(y);
  if (isWhole(power)) return isOdd(power) ? -r : r;
  if (x == -1.0f || (x == negativeInfinity && y > 0.0f)) return domainNaN;
  return r;
}

// log2(x) for x within a few units of 1: with t = x - 1, exact,
// log2 x = (t - (t^2/2 - t^3/3 + t^4/4)) / ln 2, and the product of t and 1/ln 2 is carried in two parts.
split logarithmNearOne(float x) {
  constexpr float third = floatOf(0x3EAAAAABu);            // 0.3333333432674408
  constexpr float minusInverseLn2 = floatOf(0xBFB8AA3Bu);  // -1.4426950216293335
  constexpr float inverseLn2Upper = floatOf(0x3FB8A000u);  // 1.4423828125
  constexpr float inverseLn2Lower = floatOf(0x39A3B296u);  // 0.00031222839606925845
  const float t = x + -1.0f;
  const float w = (t * t) * (0.5f - t * (t * -0.25f + third));
  const float leading = t * inverseLn2Upper;
  const float trailing = t * inverseLn2Lower + w * minusInverseLn2;
  const float upper = upperHalf(leading + trailing);
  return {upper, trailing - (upper - leading)};
}

// x = 2^n a with a in [0.866, 1.732), and a = base (1 + s) / (1 - s) with base 1 below 1.2247 and 1.5 from there, so
// that |s| = |(a - base) / (a + base)| stays below 0.1. Then
//   log2 x = n + log2(base) + 2/(3 ln 2) s (3 + s^2 + r),   r = s^4 (3/5 + 3/7 s^2 + ...).
// s, the bracket and their product are each carried in two parts.
split logarithm(float x) {
  constexpr float l1 = floatOf(0x3F19999Au);           // 0.6000000238418579
  constexpr float l2 = floatOf(0x3EDB6B88u);           // 0.4285547733306885
  constexpr float l3 = floatOf(0x3EACDAD6u);           // 0.33760708570480347
  constexpr float factor = floatOf(0x3F76384Fu);       // 0.9617967009544373, 2/(3 ln 2)
  constexpr float factorUpper = floatOf(0x3F763800u);  // 0.9617919921875
  constexpr float factorLower = floatOf(0x369DC3A0u);  // 4.701738362200558e-06

  constexpr split log2Of1Point5{floatOf(0x3F15C000u), floatOf(0x35D1CFDCu)};  // 0.5849609375 + 1.5632208487659227e-06

  std::int32_t n = -127;
  if (magnitudeBitsOf(x) < hiddenBit) {
    x = x * 0x1p24f;
    n = -151;
  }
  n += exponentFieldOf(x);
  const std::uint32_t fraction = fractionBitsOf(x);
  std::uint32_t word = fraction | 0x3F800000u;
  const bool takesOneAndAHalf = fraction >= 0x001CC472u && fraction < 0x005DB3D7u;  // 1.2247 and 1.7320
  if (fraction >= 0x005DB3D7u) {
    word = fraction | 0x3F000000u;
    n += 1;
  }
  const float a = floatOf(word);
  const float base = takesOneAndAHalf ? 1.5f : 1.0f;
  const split logarithmOfBase = takesOneAndAHalf ? log2Of1Point5 : split{0.0f, 0.0f};

  const float difference = a - base;
  const float reciprocal = 1.0f / (base + a);
  const float s = difference * reciprocal;
  const float sUpper = upperHalf(s);
  // A part of a + base with 12 significant bits, so that its product with sUpper is exact. It is about three quarters
  // of the sum and not its leading bits, so the product with the rest is rounded early: with a general base that costs
  // the result up to about 95 ulp. Results depend on it; do not mend it.
  const float sumUpper = floatOf(((takesOneAndAHalf ? 0x00200000u : 0u) + (word >> 1) + 0x20040000u) & 0x7FFFF000u);
  const float sumLower = a - (sumUpper - base);
  const float sLower = reciprocal * ((difference - sumUpper * sUpper) - sumLower * sUpper);

  const float square = s * s;
  const float r = (square * square) * (square * (square * l3 + l2) + l1) + (s + sUpper) * sLower;
  const float squareUpper = sUpper * sUpper;
  const float bracketUpper = upperHalf((squareUpper + 3.0f) + r);
  const float bracketLower = r - ((bracketUpper + -3.0f) - squareUpper);

  const float leading = sUpper * bracketUpper;
  const float trailing = sLower * bracketUpper + s * bracketLower;
  const float productUpper = upperHalf(leading + trailing);
  const float productLower = trailing - (productUpper - leading);

  const float z = productUpper * factorUpper;
  const float zLower = logarithmOfBase.lower + (productUpper * factorLower + productLower * factor);
  const auto exponent = static_cast<float>(n);
  const float upper = upperHalf((logarithmOfBase.upper + (z + zLower)) + exponent);
  return {upper, zLower - (((upper - exponent) - logarithmOfBase.upper) - z)};
}

// 2^(upper + lower), for a sum in [-150, 128]. The nearest integer m of the sum goes into the exponent. For the rest,
// with z = rest * ln 2 carried in two parts and c = z - z^2 (1/6 - z^2/360 + ...), which makes z c / (c - 2) the part
// of exp(z) beyond its linear term, negated:  exp(z) = 1 + z - (z c / (c - 2) - zLower (1 + z)).
float exponential(split p, float sum) {
  constexpr float ln2 = floatOf(0x3F317218u);           // 0.6931471824645996
  constexpr float ln2Remainder = floatOf(0x35BFBE8Cu);  // 1.4286065379565116e-06
  constexpr float p1 = floatOf(0x3E2AAAABu);            // 0.1666666716337204, near 1/6
  constexpr float p2 = floatOf(0xBB360B70u);            // -0.0027777813374996185, near -1/360
  constexpr float p3 = floatOf(0x388A4F5Fu);            // 6.595136801479384e-05

  const std::int32_t word = signedBitsOf(sum);
  const std::uint32_t magnitude = magnitudeBitsOf(sum);
  std::int32_t m = 0;
  if (magnitude > 0x3F000000u) {  // above 0.5
    // A half is added in the place of its bit, and what stands below the point is cut off.
    const auto rounded = static_cast<std::uint32_t>(word) + (hiddenBit >> ((magnitude >> 23) - 126));
    const std::int32_t field = exponentFieldOf(floatOf(rounded));
    const auto whole = static_cast<std::uint32_t>(static_cast<std::int32_t>(exponentBits | signBit) >> (field - 127));
    m = static_cast<std::int32_t>(((rounded & fractionBits) | hiddenBit) >> (150 - field));
    if (word < 0) m = -m;
    p.upper = p.upper - floatOf(rounded & whole);
  }
  const float t = upperHalf(p.lower + p.upper);
  const float leading = t * ln2Upper;
  const float trailing = (p.lower - (t - p.upper)) * ln2 + t * ln2Remainder;
  const float z = leading + trailing;
  const float zLower = trailing - (z - leading);
  const float square = z * z;
  const float c = z - square * (square * (square * p3 + p2) + p1);
  const float r = (z * c) / (c + -2.0f) - (zLower + z * zLower);
  const float result = (z - r) + 1.0f;
  const float scaled = exponentRaised(result, m);
  return signedBitsOf(scaled) >= static_cast<std::int32_t>(hiddenBit) ? scaled : scalbnSingle(result, m);
}

// x^y = 2^(y log2 x) for a finite positive x that is not 1. y is split as well, so that the leading product is exact.
// At the two ends of the exponent range the lower part decides: the sum 128 still overflows only if what was lost in it
// points up, and the sum -150 still gives a zero only if it does not.
float magnitudeOfPower(float x, float y) {
  constexpr float hugePower = 0x1p27f;  // from here on only an x next to 1 has a power that is not extreme
  constexpr float closeBelowOne = floatOf(0x3F7FFFF0u);  // 0.99999905
  constexpr float closeAboveOne = floatOf(0x3F800008u);  // 1.00000095
  constexpr std::int32_t top = 0x43000000;               // 128
  constexpr std::int32_t bottom = 0x43160000;            // 150
  constexpr float margin = floatOf(0x3338AA3Cu);  // 4.299566569443414e-08, the distance of 128 to the rounding limit

  const bool isHuge = magnitudeOf(y) > hugePower;
  if (isHuge && x < closeBelowOne) return y < 0.0f ? infinity : 0.0f;
  if (isHuge && x > closeAboveOne) return y > 0.0f ? infinity : 0.0f;
  const split log2X = isHuge ? logarithmNearOne(x) : logarithm(x);

  const float yUpper = upperHalf(y);
  const float lower = log2X.lower * y + (y - yUpper) * log2X.upper;
  const float upper = log2X.upper * yUpper;
  const float sum = upper + lower;
  const std::int32_t word = signedBitsOf(sum);
  const auto magnitude = static_cast<std::int32_t>(magnitudeBitsOf(sum));
  if (word > top) return infinity;
  if (word == top && lower + margin > sum - upper) return infinity;
  if (magnitude > bottom) return 0.0f;
  if (magnitude == bottom && lower <= sum - upper) return 0.0f;
  return exponential({upper, lower}, sum);
// x^y = 2^p, p = y log2 x in two parts.
float powerOfTwo(powers::split p) {
  const float sum = p.upper + p.lower;
  if (magnitudeOf(sum) >= 128.0f) {
    if (powers::overflows(p, sum)) return infinity;
    if (powers::vanishes(p, sum)) return 0.0f;
  }
  return powers::exponential(p, sum);
}

float hugePowerOf(float x, float y) {
  if (x < powers::nextBelowOne) return y < 0.0f ? infinity : 0.0f;
  if (x > powers::nextAboveOne) return y > 0.0f ? infinity : 0.0f;
  return powerOfTwo(powers::product(y, powers::logarithmNearOne(x)));
}

// x^y for a finite positive x that is not 1.
float powerOfPositive(float x, float y) {
  if (magnitudeOf(y) > powers::hugePower) return hugePowerOf(x, y);
  return powerOfTwo(powers::product(y, powers::logarithm(x)));
}

}  // namespace

// The order of the cases decides where two of them meet, as in NaN^0 or (-infinity)^0.5.
float powSingle(float x, float y) {
  if (y == 2.0f) return x * x;
  if (y == 1.0f) return x;
  if (y == 0.0f) return x != x ? domainNaN : 1.0f;
  if (y == -1.0f) return 1.0f / x;
  if (y == 0.5f) return squareRoot(x + 0.0f);
  if (x != x || y != y) return domainNaN;

  const float magnitude = magnitudeOf(x);
  const float power = magnitudeOf(y);
  if (power == infinity) return powerToInfinity(magnitude, y);
  if (magnitude == infinity || magnitude == 0.0f || magnitude == 1.0f) return powerOfEdge(x, magnitude, y);
  if (x > 0.0f) return powerOfPositive(x, y);
  if (!isWhole(power)) return domainNaN;
  const float result = powerOfPositive(magnitude, y);
  return isOdd(power) ? -result : result;
}

}  // namespace qsl_scalar
