// The angle of a point in single precision.
#pragma once

#include <cstdint>

#include "scalar/kernels/atan_single.h"
#include "scalar/kernels/float_fields.h"
#include "scalar/kernels/pi_constants.h"

namespace qsl_scalar {

// The angle of (x, y), from -pi to pi, within 1.5 ulp; the ordinate comes first. In the right half plane it is
// +-atan|y/x|; in the left one it is +-(pi - atan|y/x|), with pi in two parts. The quotient may be infinite, and may
// vanish: the arc tangent is pi/2 to the last place long before the one, and is lost beside pi long before the other.
//
// What the quotient does not decide is put in after it, each case above the ones before:
//   x a zero, or y infinite: pi/2 with the sign of y; in the left half plane too, unlike pi - pi/2 in two parts
//   both infinite: pi/4 or 3pi/4, with the sign of y
//   both zero: plus zero, whatever the signs
//   a NaN: the negative NaN 0xFFC00000
ZTHALF_INLINE float atan2Single(float y, float x) {
  using zthalf::maskOf;
  using zthalf::select;
  constexpr float threeQuartersPi = floatOf(0x4016CBE4u);  // 2.356194496154785

  const float magnitudeX = magnitudeOf(x);
  const float magnitudeY = magnitudeOf(y);
  const auto isLeft = maskOf<std::uint32_t>(hasSign(x));
  const auto isUpright = maskOf<std::uint32_t>(magnitudeX == 0.0f) | maskOf<std::uint32_t>(magnitudeY == infinity);
  const auto areInfinite =
      maskOf<std::uint32_t>(magnitudeX == infinity) & maskOf<std::uint32_t>(magnitudeY == infinity);
  const auto areZero = maskOf<std::uint32_t>(magnitudeX + magnitudeY == 0.0f);
  const auto anyNaN = maskOf<std::uint32_t>(x != x) | maskOf<std::uint32_t>(y != y);

  const float right = atanOfMagnitude(magnitudeY / magnitudeX);
  const float left = piUpper - (right - piLower);
  const std::uint32_t diagonal = select(isLeft, bitsOf(threeQuartersPi), bitsOf(quarterPiUpper));
  std::uint32_t angle = select(isLeft, bitsOf(left), bitsOf(right));
  angle = select(isUpright, bitsOf(halfPiUpper), angle);
  angle = select(areInfinite, diagonal, angle);
  const std::uint32_t withSign = (angle | (bitsOf(y) & signBit)) & ~areZero;
  return floatOf(select(anyNaN, bitsOf(domainNaN), withSign));
}

}  // namespace qsl_scalar
