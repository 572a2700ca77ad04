// powSingle without branches, for loops that run in vector lanes.
#pragma once

#include <cmath>
#include <cstdint>

#include "core/nan_policy.h"
#include "scalar/kernels/float_fields.h"
#include "scalar/kernels/pow_single_parts.h"

namespace qsl_scalar {

namespace powers {

// Conditions are masks: combined as plain booleans they make the compiler fall back to branches.
ZTHALF_INLINE std::uint32_t where(bool condition) { return maskOf<std::uint32_t>(condition); }
ZTHALF_INLINE float pick(std::uint32_t mask, float first, float second) {
  return floatOf(select(mask, bitsOf(first), bitsOf(second)));
}

// x^y for a magnitude x; a zero, one, an infinity and a NaN give some number.
ZTHALF_INLINE float magnitudeInLanes(float x, float y) {
  const std::uint32_t isHuge = where(magnitudeOf(y) > hugePower);
  const split nearOne = logarithmNearOne(x);
  const split general = logarithm(x);
  const split p = product(y, {pick(isHuge, nearOne.upper, general.upper), pick(isHuge, nearOne.lower, general.lower)});
  const float sum = p.upper + p.lower;
  const std::uint32_t isBelowOne = where(x < nextBelowOne);
  const std::uint32_t isAboveOne = where(x > nextAboveOne);
  const std::uint32_t isNegative = where(y < 0.0f);

  float result = exponential(p, sum);
  result = pick(where(overflows(p, sum)), infinity, result);
  result = pick(where(vanishes(p, sum)), 0.0f, result);
  const std::uint32_t grows = (isBelowOne & isNegative) | (isAboveOne & ~isNegative);
  return pick(isHuge & (isBelowOne | isAboveOne), floatOf(grows & bitsOf(infinity)), result);
}

}  // namespace powers

// The cases of powSingle from the last one to the first, each put in above the ones before.
ZTHALF_INLINE float powSingleInLanes(float x, float y) {
  using namespace powers;
  const float magnitude = magnitudeOf(x);
  const float reciprocal = 1.0f / magnitude;
  const float power = magnitudeOf(y);
  const std::uint32_t signOfX = bitsOf(x) & signBit;
  const std::uint32_t isNegative = where(x < 0.0f);
  const std::uint32_t isNaN = where(x != x);

  // Adding 2^23 rounds a smaller float to an integer; from 2^24 on every float is an even one.
  const std::uint32_t isWhole = where(power >= 0x1p23f) | where((power + 0x1p23f) - 0x1p23f == power);
  const auto whole = static_cast<std::uint32_t>(static_cast<std::int32_t>(power < 0x1p24f ? power : 0.0f));
  const std::uint32_t sign = signOfX & isWhole & (whole << 31);

  const std::uint32_t isEdge = where(magnitude == infinity) | where(magnitude == 0.0f) | where(magnitude == 1.0f);
  const float edge = pick(where(y < 0.0f), reciprocal, magnitude);
  float result = pick(isEdge, edge, magnitudeInLanes(magnitude, y));
  result = floatOf(bitsOf(result) | sign);
  const std::uint32_t staysInfinite = where(x == negativeInfinity) & where(y < 0.0f);
  result = pick(isNegative & ~isWhole & ~staysInfinite, domainNaN, result);

  const std::uint32_t grows = (where(magnitude > 1.0f) & where(y > 0.0f)) | (where(magnitude < 1.0f) & where(y < 0.0f));
  const float extreme = pick(where(magnitude == 1.0f), 1.0f, floatOf(grows & bitsOf(infinity)));
  result = pick(where(power == infinity), extreme, result);
  result = pick(isNaN | where(y != y), domainNaN, result);

  const float root = pick(isNegative, zthalf::defaultNaN<float>, std::sqrt(x + 0.0f));
  result = pick(where(y == 0.5f), root, result);
  result = pick(where(y == -1.0f), floatOf(bitsOf(reciprocal) | signOfX), result);
  result = pick(where(y == 0.0f), pick(isNaN, domainNaN, 1.0f), result);
  result = pick(where(y == 1.0f), x, result);
  return pick(where(y == 2.0f), x * x, result);
}

}  // namespace qsl_scalar
