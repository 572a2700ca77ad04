// Powers of half patterns: x^y for two halves, 2^y and 10^y.
//
// These are the steps of powSingle, free of branches, without those that two halves do not need: no operand is a
// subnormal or a huge float, and a result far outside the range of half is an infinity or a zero whatever its digits.
// So nearly every special case of powSingle comes out of the general steps.
#pragma once

#include <cmath>
#include <cstdint>

#include "core/float_conversion.h"
#include "core/patterns.h"
#include "scalar/kernels/pow_single_parts.h"

namespace zthalf {

// The single of a half power, an infinite one as 65536: its product with the logarithm of every half but 1 is outside
// of half's range too. Some number for a NaN. These are the steps of widen without the one for infinities and NaNs.
ZTHALF_INLINE float widenPower(std::uint16_t y) {
  constexpr int shift = 13;
  const std::int32_t placed = static_cast<std::int16_t>(y) << shift;  // the sign fills the bits above
  const std::int32_t magnitude = placed & (pattern::magnitudeBits << shift);
  const std::int32_t small = smallerOf(magnitude, 0x0400 << shift);
  const auto value = static_cast<std::uint32_t>(singleOfSmall(small) + (magnitude - small));
  return floatOf(value | (static_cast<std::uint32_t>(placed) & 0x80000000u));
}

// 2^(y log2 x) for a half y, as a float that rounds to the right half. The sum 16 is beyond the largest half, and -27
// below half of the smallest; the result is at most 65536. Nothing of y is below its upper half, so the product is in
// two parts at once.
template <class Parts = qsl_scalar::bitwiseParts>
ZTHALF_INLINE float powerFromLogarithm(qsl_scalar::powers::split log2X, float y) {
  const qsl_scalar::powers::split p = {log2X.upper * y, log2X.lower * y};
  const float sum = p.upper + p.lower;
  const auto [number, exponent] = qsl_scalar::powers::scaledExponential<Parts>(p, sum);
  const std::uint32_t bits = bitsOf(qsl_scalar::exponentRaised(number, exponent));
  const std::uint32_t notTooLarge = select(maskOf<std::uint32_t>(sum >= 16.0f), bitsOf(65536.0f), bits);
  return floatOf(notTooLarge & maskOf<std::uint32_t>(sum > -27.0f));
}

// narrow for a number from 0 to 65536.
ZTHALF_INLINE std::uint16_t narrowPower(float power) {
  return static_cast<std::uint16_t>(roundedInUpperHalf(static_cast<std::int32_t>(bitsOf(power))) >> 16);
}

// The base's logarithm is a constant. Any NaN gives the negative one.
template <class Parts = qsl_scalar::bitwiseParts>
ZTHALF_INLINE std::uint16_t powerOfBase(qsl_scalar::powers::split log2OfBase, std::uint16_t y) {
  const std::uint16_t power = narrowPower(powerFromLogarithm<Parts>(log2OfBase, widenPower(y)));
  return select(pattern::nanMask(y), static_cast<std::uint16_t>(pattern::quietNaN | pattern::signBit), power);
}

template <class Parts = qsl_scalar::bitwiseParts>
ZTHALF_INLINE std::uint16_t pow2Of(std::uint16_t y) {
  return powerOfBase<Parts>({1.0f, 0.0f}, y);
}

template <class Parts = qsl_scalar::bitwiseParts>
ZTHALF_INLINE std::uint16_t pow10Of(std::uint16_t y) {
  constexpr qsl_scalar::powers::split log2OfTen = qsl_scalar::powers::logarithmOfNormal(bitsOf(10.0f));
  return powerOfBase<Parts>(log2OfTen, y);
}

// log2 |x| of a half x. For a zero and an infinity it is so large that its product with the smallest power but zero is
// outside the range of half.
ZTHALF_INLINE qsl_scalar::powers::split logarithmOfMagnitude(std::uint32_t magnitude) {
  const qsl_scalar::powers::split general = qsl_scalar::powers::logarithmOfNormal(magnitude);
  const std::uint32_t isEdge =
      maskOf<std::uint32_t>(magnitude == 0) | maskOf<std::uint32_t>(magnitude == qsl_scalar::exponentBits);
  return {floatOf(bitsOf(general.upper) + (isEdge & (24u << 23))), general.lower};
}

// x^y as powSingle has it, rounded to half. Squares may be ties, and the roots of numbers just below a power of four
// lie too close to one for the general steps. The other powers that powSingle takes a short way for come out of them as
// the same halves.
ZTHALF_INLINE std::uint16_t powerOfHalves(std::uint16_t x, std::uint16_t y) {
  constexpr std::uint16_t minusOne = 0xBC00, two = 0x4000, oneHalf = 0x3800;
  const auto is = [](bool condition) { return maskOf<std::uint16_t>(condition); };
  const float wideX = widen<float>(x);
  const float wideY = widenPower(y);
  const float power = qsl_scalar::magnitudeOf(wideY);

  const float general = powerFromLogarithm(logarithmOfMagnitude(qsl_scalar::magnitudeBitsOf(wideX)), wideY);
  const float root = std::sqrt(qsl_scalar::magnitudeOf(wideX));
  const std::uint32_t orSquare = select(maskOf<std::uint32_t>(wideY == 2.0f), bitsOf(wideX * wideX), bitsOf(general));
  const std::uint32_t magnitude = select(maskOf<std::uint32_t>(wideY == 0.5f), bitsOf(root), orSquare);

  // The sum's last place is 1, and its last bit tells an odd number.
  const float whole = power + 0x1p23f;
  const std::uint32_t isWholeWord = maskOf<std::uint32_t>(whole - 0x1p23f == power);
  const std::uint32_t sign = bitsOf(wideX) & isWholeWord & (bitsOf(whole) << 31);
  const std::int32_t held = smallerOf(static_cast<std::int32_t>(magnitude), upperOfSinglePower(16));
  const auto number = static_cast<std::uint16_t>((roundedInUpperHalf(held) | sign) >> 16);

  // A negative x to a power that is not an integer, but for a zero and for -infinity to a negative power.
  constexpr std::uint16_t minusInfinity = pattern::infinity | pattern::signBit;
  const auto isNegative = is(static_cast<std::int16_t>(x) < 0) & ~is(x == pattern::signBit);
  const auto vanishes = is(x == minusInfinity) & is(static_cast<std::int16_t>(y) < 0);
  const auto isOutside = isNegative & ~static_cast<std::uint16_t>(isWholeWord) & ~vanishes;

  // A NaN is negative, but to the powers 1, 2, -1 and 0.5 it has the sign of x, and a square root's is positive.
  const std::uint16_t xIsNaN = pattern::nanMask(x), yIsNaN = pattern::nanMask(y);
  const auto isRoot = is(y == oneHalf);
  const auto isShort = is(y == pattern::one) | is(y == two) | is(y == minusOne) | isRoot;
  const auto signOfNaN = (~isShort | (x & xIsNaN)) & pattern::signBit;
  return select(static_cast<std::uint16_t>(isOutside | xIsNaN | yIsNaN),
                static_cast<std::uint16_t>(pattern::quietNaN | signOfNaN), number);
}

// The same for one pair alone.
std::uint16_t powerOfTwoHalves(std::uint16_t x, std::uint16_t y);

}  // namespace zthalf
