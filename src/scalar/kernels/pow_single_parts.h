// What powSingle is made of: the logarithm and the exponential to base 2 with more than a float's precision.
//
// Every function here is free of branches, so that the scalar powSingle and the one for vector lanes share it.
#pragma once

#include <cstdint>

#include "scalar/kernels/float_fields.h"
#include "scalar/kernels/logarithm_constants.h"

namespace qsl_scalar::powers {

using zthalf::maskOf;
using zthalf::select;

// A number as the sum of two floats. Where an upper part has 12 significant bits, its products with others are exact.
// It is cut by upperHalf; code for single values may choose another way of cutting.
struct split {
  float upper;
  float lower;
};

// log2(x) for x within a few units of 1: with t = x - 1, exact,
// log2 x = (t - (t^2/2 - t^3/3 + t^4/4)) / ln 2, and the product of t and 1/ln 2 is carried in two parts.
ZTHALF_INLINE split logarithmNearOne(float x) {
  constexpr float third = floatOf(0x3EAAAAABu);            // 0.3333333432674408
  constexpr float minusInverseLn2 = floatOf(0xBFB8AA3Bu);  // -1.4426950216293335
  constexpr float inverseLn2Upper = floatOf(0x3FB8A000u);  // 1.4423828125
  constexpr float inverseLn2Lower = floatOf(0x39A3B296u);  // 0.00031222839606925845
  const float t = x + -1.0f;
  const float w = (t * t) * (0.5f - t * (t * -0.25f + third));
  const float u = t * inverseLn2Upper;
  const float v = t * inverseLn2Lower + w * minusInverseLn2;
  const float upper = upperHalf(u + v);
  return {upper, v - (upper - u)};
}

// x = 2^n a with a in [0.866, 1.732), and a = base (1 + s) / (1 - s) with base 1 below 1.2247 and 1.5 from there, so
// that |s| = |(a - base) / (a + base)| stays below 0.1011. Then
//   log2 x = n + log2(base) + 2/(3 ln 2) s (3 + s^2 + r),   r = s^4 (3/5 + 3/7 s^2 + ...).
// s, the bracket and their product are each carried in two parts. The argument is the pattern of a positive normal x;
// where x itself is too small for that, it comes multiplied by a power of two that the bias makes up for.
template <class Parts = bitwiseParts>
ZTHALF_INLINE constexpr split logarithmOfNormal(std::uint32_t normal, std::int32_t bias = 127) {
  constexpr std::uint32_t rootOfThreeHalves = 0x001CC472u;       // fraction of 1.2247
  constexpr std::uint32_t rootOfThree = 0x005DB3D7u;             // fraction of 1.7320
  constexpr std::uint32_t upperLog2OfThreeHalves = 0x3F15C000u;  // 0.5849609375
  constexpr std::uint32_t lowerLog2OfThreeHalves = 0x35D1CFDCu;  // 1.5632208487659227e-06
  constexpr float l1 = floatOf(0x3F19999Au);                     // 0.6000000238418579
  constexpr float l2 = floatOf(0x3EDB6B88u);                     // 0.4285547733306885
  constexpr float l3 = floatOf(0x3EACDAD6u);                     // 0.33760708570480347
  constexpr float factor = floatOf(0x3F76384Fu);                 // 0.9617967009544373, 2/(3 ln 2)
  constexpr float factorUpper = floatOf(0x3F763800u);            // 0.9617919921875
  constexpr float factorLower = floatOf(0x369DC3A0u);            // 4.701738362200558e-06

  const std::uint32_t fraction = normal & fractionBits;
  const auto nextBinade = maskOf<std::uint32_t>(fraction >= rootOfThree);
  const std::uint32_t fromThreeHalves = maskOf<std::uint32_t>(fraction >= rootOfThreeHalves) & ~nextBinade;
  const auto n = static_cast<std::int32_t>((normal >> 23) + (nextBinade & 1)) - bias;
  const std::uint32_t word = fraction | (0x3F800000u - (nextBinade & hiddenBit));
  const float a = floatOf(word);
  const float base = floatOf(0x3F800000u + (fromThreeHalves & 0x00400000u));
  const split logarithmOfBase = {floatOf(fromThreeHalves & upperLog2OfThreeHalves),
                                 floatOf(fromThreeHalves & lowerLog2OfThreeHalves)};

  const float difference = a - base;
  const float reciprocal = 1.0f / (base + a);
  const float s = difference * reciprocal;
  const float sUpper = Parts::upperHalf(s);
  // A part of a + base with 12 significant bits, so that its product with sUpper is exact. It is about three quarters
  // of the sum and not its leading bits, so the product with the rest is rounded early: that costs a general base up to
  // 94 ulp. Results depend on it; do not mend it.
  const float sumUpper = floatOf(((fromThreeHalves & 0x00200000u) + (word >> 1) + 0x20040000u) & 0x7FFFF000u);
  const float sumLower = a - (sumUpper - base);
  const float sLower = reciprocal * ((difference - sumUpper * sUpper) - sumLower * sUpper);

  const float square = s * s;
  const float r = (square * square) * (square * (square * l3 + l2) + l1) + (s + sUpper) * sLower;
  const float squareUpper = sUpper * sUpper;
  const float bracketUpper = Parts::upperHalf((squareUpper + 3.0f) + r);
  const float bracketLower = r - ((bracketUpper + -3.0f) - squareUpper);

  const float u = sUpper * bracketUpper;
  const float v = sLower * bracketUpper + s * bracketLower;
  const float productUpper = Parts::upperHalf(u + v);
  const float productLower = v - (productUpper - u);

  const float z = productUpper * factorUpper;
  const float zLower = logarithmOfBase.lower + (productUpper * factorLower + productLower * factor);
  const auto exponent = static_cast<float>(n);
  const float upper = Parts::upperHalf((logarithmOfBase.upper + (z + zLower)) + exponent);
  return {upper, zLower - (((upper - exponent) - logarithmOfBase.upper) - z)};
}

ZTHALF_INLINE split logarithm(float x) {
  const bool isSubnormal = magnitudeBitsOf(x) < hiddenBit;
  const std::uint32_t normal = select(maskOf<std::uint32_t>(isSubnormal), bitsOf(x * 0x1p24f), bitsOf(x));
  return logarithmOfNormal(normal, isSubnormal ? 151 : 127);
}

// y log2 x in two parts. y is split as well, so that the leading product is exact.
ZTHALF_INLINE split product(float y, split log2X) {
  const float yUpper = upperHalf(y);
  return {log2X.upper * yUpper, log2X.lower * y + (y - yUpper) * log2X.upper};
}

// At the two ends of the exponent range the lower part of p decides: the sum 128 still overflows only if what was lost
// in it points up beyond half a last place, and the sum -150 still gives a zero unless what was lost points up.
ZTHALF_INLINE bool overflows(split p, float sum) {
  constexpr float margin = floatOf(0x3338AA3Cu);  // 4.299566569443414e-08, from 128 to the rounding limit
  return (sum > 128.0f) | ((sum == 128.0f) & (p.lower + margin > sum - p.upper));
}

ZTHALF_INLINE bool vanishes(split p, float sum) {
  return (sum < -150.0f) | ((sum == -150.0f) & (p.lower <= sum - p.upper));
}

// A number near 1 and the exponent that it is still to be raised by.
struct scaledNumber {
  float value;
  std::int32_t exponent;
};

// 2^(upper + lower), for a sum in [-150, 128]; other sums give some number. The nearest integer m of the sum, halves up
// in magnitude, is the exponent, but a sum of one half stays whole. For the rest, with z = rest * ln 2 in two parts,
// exp(z) = 1 + z + ... comes from the even series t of z as in exp(z) = 1 + (z - (z t / (t - 2) - correction)).
template <class Parts = bitwiseParts>
ZTHALF_INLINE scaledNumber scaledExponential(split p, float sum) {
  constexpr float ln2Remainder = floatOf(0x35BFBE8Cu);  // 1.4286065379565116e-06
  constexpr float p1 = floatOf(0x3E2AAAABu);            // 0.1666666716337204, near 1/6
  constexpr float p2 = floatOf(0xBB360B70u);            // -0.0027777813374996185, near -1/360
  constexpr float p3 = floatOf(0x388A4F5Fu);            // 6.595136801479384e-05

  const float magnitude = Parts::magnitudeOf(sum);
  const float held = magnitude < 150.0f ? magnitude : 150.0f;
  const std::int32_t whole = static_cast<std::int32_t>(held + 0.5f) & maskOf<std::int32_t>(held > 0.5f);
  const std::int32_t flip = signedBitsOf(sum) >> 31;
  const std::int32_t m = (whole ^ flip) - flip;

  const float rest = p.upper - static_cast<float>(m);
  const float t = Parts::upperHalf(p.lower + rest);
  const float u = t * ln2Upper;
  const float v = (p.lower - (t - rest)) * ln2 + t * ln2Remainder;
  const float z = u + v;
  const float w = v - (z - u);
  const float square = z * z;
  const float series = z - square * (square * (square * p3 + p2) + p1);
  const float r = (z * series) / (series + -2.0f) - (w + z * w);
  return {(z - r) + 1.0f, m};
}

// The same as one float. A result below the normal range is rounded by an addition: 2^149 times the result has its last
// place at that of 2^23, and the sum of both holds the subnormal's pattern.
ZTHALF_INLINE float exponential(split p, float sum) {
  const auto [result, m] = scaledExponential(p, sum);
  const float scaled = exponentRaised(result, m);
  const float raised = exponentRaised(result, 149 + (m < -125 ? m : -125));
  const std::uint32_t subnormal = bitsOf(raised + 0x1p23f) - bitsOf(0x1p23f);
  const bool isSubnormal = signedBitsOf(scaled) < static_cast<std::int32_t>(hiddenBit);
  return floatOf(select(maskOf<std::uint32_t>(isSubnormal), subnormal, bitsOf(scaled)));
}

// A huge power, from 2^27 on, leaves a result of its own only to an x next to 1; other x overflow or vanish.
inline constexpr float hugePower = 0x1p27f;
inline constexpr float nextBelowOne = floatOf(0x3F7FFFF0u);  // 0.99999905
inline constexpr float nextAboveOne = floatOf(0x3F800008u);  // 1.00000095

}  // namespace qsl_scalar::powers
