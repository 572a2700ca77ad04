// mod and rem of two halves: exact, with quotients that half cannot tell from an integer counted as integers.
//
// Both start from the remainder r of |x| by |y|, 0 <= r < |y|, for |x| >= |y|. It is a multiple of the smaller
// operand's last place and below |y|, so it is a half, and nothing is rounded. Then comes the tolerance: when y has a
// fraction, the quotient of the halves that a program holds may miss an integer only because y was rounded when it was
// stored (1.0 by 0.1). So if the distance from |x|/|y| to the nearest integer is no more than half a unit in the last
// place that a half quotient would have, that is 2^(E-11) for a quotient in [2^E, 2^(E+1)), the remainder is zero. An
// integral y has no such doubt, and its remainder always stands.
//
// All lanes take the same steps, so that a plain loop vectorises; special operands are put in at the end.
#pragma once

#include <cstdint>

#include "core/bits.h"
#include "core/float_conversion.h"
#include "core/patterns.h"

namespace zthalf {

// The remainder of x by y with its tolerance, both finite magnitudes of halves as floats, x >= y > 0. Other operands
// give some number.
//
// With n the integer nearest to the rounded quotient, x - n y lies within about y/2 of zero, and its distance from zero
// is the distance to the nearest multiple; where rounding made n the farther neighbour, the distance is close to y/2
// and far above every tolerance. Adding y to a negative offset makes it the remainder.
//
// Product and difference are exact. With a fraction in y only quotients below 2^10 matter, since from there on the
// tolerance is y/2 and more and takes every remainder: n has at most 11 bits and y has 11. For an integral y the
// product is an integer, and not above 2^17. The difference is a multiple of the last place of y and below y.
// The quotient of two different significands of 11 bits is farther from a power of two than a float's rounding error,
// so the exponent of the rounded quotient is E.
ZTHALF_INLINE float toleratedRemainder(float x, float y) {
  constexpr float toInteger = 0x1p23f;  // from here on a float's last place is 1 or more: adding it rounds to nearest
  const float quotient = x / y;
  const float nearest = (quotient + toInteger) - toInteger;
  const float offset = x - nearest * y;
  const float distance = floatOf(bitsOf(offset) & 0x7FFFFFFFu);

  const float halfUnit = floatOf((bitsOf(quotient) & 0x7F800000u) - (11u << 23));  // 2^(E-11)
  const bool isIntegral = (y + toInteger) - toInteger == y;
  const bool stands = isIntegral | ((quotient < 1024.0f) & (distance > y * halfUnit));

  const float remainder = offset + floatOf(bitsOf(y) & maskOf<std::uint32_t>(offset < 0.0f));
  return floatOf(bitsOf(remainder) & maskOf<std::uint32_t>(stands));
}

// The remainder with the sign of x. In the order of their precedence:
//   x a NaN: x as it is, not made quiet
//   y a NaN: the payload of y, and the sign of x
//   x infinite, or y a zero: the NaN 0x7E00 with the sign of x
//   |x| < |y|: x; so for an infinite y, and for a zero x
//   otherwise the remainder, a zero too, with the sign of x
ZTHALF_INLINE std::uint16_t remOfHalves(std::uint16_t x, std::uint16_t y) {
  const std::uint16_t sign = pattern::signOf(x);
  const std::uint16_t magnitudeX = pattern::magnitudeOf(x);
  const std::uint16_t magnitudeY = pattern::magnitudeOf(y);
  const float remainder = toleratedRemainder(widen<float>(magnitudeX), widen<float>(magnitudeY));

  std::uint16_t result = narrow(remainder);
  result = select(maskOf<std::uint16_t>(magnitudeX < magnitudeY), magnitudeX, result);
  const bool isInvalid = (magnitudeX == pattern::infinity) | (magnitudeY == 0);
  result = select(maskOf<std::uint16_t>(isInvalid), pattern::quietNaN, result);
  result = select(maskOf<std::uint16_t>(magnitudeY > pattern::infinity), magnitudeY, result);
  result = select(maskOf<std::uint16_t>(magnitudeX > pattern::infinity), magnitudeX, result);
  return result | sign;
}

// The remainder with the sign of y: where the signs differ, what is missing to the next multiple. In the order of their
// precedence:
//   x a NaN: x as it is, not made quiet
//   y a zero: x; of two zeros a zero with the sign of y
//   y a NaN: y as it is
//   x infinite: the NaN 0x7E00 with the sign of y
//   remainder zero, x a zero included: a zero with the sign of y
//   signs equal: the remainder, which is |x| for |x| < |y|, also for an infinite y
//   signs different: |y| less the remainder, with the sign of y; so for an infinite y, y
//
// The last difference is rounded only where |x| < |y|. Taking it in float first rounds twice and does no harm: the
// float is inexact only where x ends more than 24 places below the leading place of the difference, and then all of x
// is too small to bring |y| - |x| near a tie between two halves.
ZTHALF_INLINE std::uint16_t modOfHalves(std::uint16_t x, std::uint16_t y) {
  const std::uint16_t sign = pattern::signOf(y);
  const std::uint16_t magnitudeX = pattern::magnitudeOf(x);
  const std::uint16_t magnitudeY = pattern::magnitudeOf(y);
  const float wideX = widen<float>(magnitudeX);
  const float wideY = widen<float>(magnitudeY);

  const auto isSmaller = maskOf<std::uint32_t>(magnitudeX < magnitudeY);
  const float remainder = floatOf(select(isSmaller, bitsOf(wideX), bitsOf(toleratedRemainder(wideX, wideY))));
  const bool isKept = (remainder == 0.0f) | (pattern::signOf(x) == sign);
  const float value = floatOf(select(maskOf<std::uint32_t>(isKept), bitsOf(remainder), bitsOf(wideY - remainder)));

  std::uint16_t result = narrow(value) | sign;
  const std::uint16_t invalid = pattern::quietNaN | sign;
  result = select(maskOf<std::uint16_t>(magnitudeX == pattern::infinity), invalid, result);
  result = select(maskOf<std::uint16_t>(magnitudeY > pattern::infinity), y, result);
  const std::uint16_t byZero = select(maskOf<std::uint16_t>(magnitudeX == 0), sign, x);
  result = select(maskOf<std::uint16_t>(magnitudeY == 0), byZero, result);
  return select(maskOf<std::uint16_t>(magnitudeX > pattern::infinity), x, result);
}

}  // namespace zthalf
