#include "scalar/kernels/log1p_single.h"

#include <cstdint>

#include "scalar/kernels/float_fields.h"
#include "scalar/kernels/logarithm_constants.h"

namespace qsl_scalar {

namespace {

// u = 1 + x = 2^k (1 + f), and what the rounding of u lost, relative to u: ln(1 + x) = k ln 2 + ln(1 + f) + lost.
struct reduction {
  float k;
  float f;
  float lost;
  float halfSquare;  // f^2 / 2
  bool isNearOne;    // the significand of u is within a few units of a power of two
};

// 1 + f lies in about [0.71, 1.42). The comparison is on the fraction alone: 0x3504F6 is that of 1.41421.
reduction reduced(float u, float lost) {
  const std::int32_t field = exponentFieldOf(u);
  const std::uint32_t fraction = fractionBitsOf(u);
  const bool lower = fraction > 0x003504F6u;
  const float f = floatOf(fraction | (lower ? 0x3F000000u : 0x3F800000u)) - 1.0f;
  const std::uint32_t distance = lower ? (hiddenBit - fraction) >> 2 : fraction;
  return {static_cast<float>(field - (lower ? 126 : 127)), f, lost, f * (f * 0.5f), distance == 0};
}

// ln(1 + f) = f - f^2/2 + f^3/3 is enough here.
float logarithmNearOne(reduction const& r) {
  constexpr float minusTwoThirds = floatOf(0xBF2AAAABu);  // -0.6666666865348816
  const float lower = r.lost + r.k * ln2Lower;
  if (r.f == 0.0f) return r.k == 0.0f ? 0.0f : r.k * ln2Upper + lower;
  const float middle = r.halfSquare * (r.f * minusTwoThirds + 1.0f);
  if (r.k == 0.0f) return r.f - middle;
  return r.k * ln2Upper - ((middle - lower) - r.f);
}

// With s = f / (2 + f): ln(1 + f) = f - (h - s (h + R)), h = f^2 / 2. The form with h keeps the rounding error of the
// leading term below that of f itself, which the correction needs to be of use.
float logarithm(reduction const& r) {
  const float s = r.f / (r.f + 2.0f);
  const float z = s * s;
  const float series = z * (z * (z * (z * lg4 + lg3) + lg2) + lg1);
  const float product = s * (r.halfSquare + series);
  if (r.k == 0.0f) return r.f - (r.halfSquare - product);
  return r.k * ln2Upper - ((r.halfSquare - ((r.lost + r.k * ln2Lower) + product)) - r.f);
}

float logarithmOfSum(float u, float lost) {
  const reduction r = reduced(u, lost);
  return r.isNearOne ? logarithmNearOne(r) : logarithm(r);
}

// For x above -1 where 1 + x is rounded: the part of the exact sum that u has not, divided by u.
float logarithmOfRoundedSum(float x) {
  const float u = x + 1.0f;
  const bool oneIsSmaller = bitsOf(u) > 0x3FFFFFFFu;  // u from 2.0 on: x is the larger term
  const float lost = oneIsSmaller ? (x - u) + 1.0f : x - (u + -1.0f);
  return logarithmOfSum(u, lost / u);
}

}  // namespace

// Ranges by the pattern, from the top: infinity and NaN; from 2^24 on x + 1 is x for this purpose; above sqrt(2) - 1
// the sum is rounded and corrected. Then the magnitude: from 1 on only -1 has a result that is not a NaN; below 2^-29
// the first two terms are the result, below 2^-54 the first. Down to sqrt(1/2) - 1 nothing needs to be rounded: k = 0
// and f = x. What is left, to -1, is rounded and corrected again.
float log1pSingle(float x) {
  constexpr std::int32_t aboveRootTwo = 0x3ED413CF;     // 0.41421363
  constexpr std::uint32_t belowRootHalf = 0xBE95F618u;  // -0.29289317

  if (signedBitsOf(x) > aboveRootTwo) {
    if (signedBitsOf(x) >= std::int32_t{exponentBits}) return x;
    if (x >= 0x1p24f) return logarithmOfSum(x, 0.0f);
    return logarithmOfRoundedSum(x);
  }
  const float magnitude = magnitudeOf(x);
  if (!(magnitude < 1.0f)) return x == -1.0f ? negativeInfinity : domainNaN;
  if (magnitude < 0x1p-29f) return magnitude < 0x1p-54f ? x : x - (x * x) * 0.5f;
  if (bitsOf(x) <= belowRootHalf) return logarithm({0.0f, x, 0.0f, (x * 0.5f) * x, false});
  return logarithmOfRoundedSum(x);
}

}  // namespace qsl_scalar
