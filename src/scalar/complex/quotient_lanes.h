// Quotients of halves with a complex operand without a branch, for passes in vector lanes: the bits of quotientOf
// but for the signs of NaNs, which quotient_nan_signs.h knows, and for elements that are left to the scalar function.
//
// Every way of dividing by finite numbers has one form: with the dividend a + b i, two factors e and f and a divisor g,
//
//   (a e + b f) / g    and    (b e - a f) / g.
//
// For a divisor c + d i the factors are c and d and g is c^2 + d^2; on the diagonals they are 1/2 and 1/2 or -1/2, and
// beside a part of zero 0 and 1, where g is the part that is left. Which way it is shows in the patterns, so factors
// are chosen in lanes of 16 bits. A factor of zero gets the sign that makes its product with the dividend minus zero,
// which no sum notices.
#pragma once

#include <cstdint>

#include "core/float_conversion.h"
#include "core/patterns.h"
#include "scalar/complex/complex_value.h"
#include "scalar/half_arithmetic.h"

namespace zthalf {

// The quotient of one pair on its own, out of line.
complexHalf quotientOfHalves(complexHalf x, complexHalf y);
complexHalf quotientOfHalves(complexHalf x, std::uint16_t y);
complexHalf quotientOfHalves(std::uint16_t x, complexHalf y);

struct quotientInLanes {
  complexHalf value;
  std::uint16_t isLeft;  // all ones: the value counts for nothing, the scalar function is to give it
};

// Masks of lanes of 16 bits.
ZTHALF_INLINE std::uint16_t zeroMask(std::uint16_t x) { return maskOf<std::uint16_t>(pattern::isZero(x)); }
ZTHALF_INLINE std::uint16_t infinityMask(std::uint16_t x) { return maskOf<std::uint16_t>(pattern::isInfinite(x)); }
ZTHALF_INLINE std::uint16_t notFiniteMask(std::uint16_t x) {
  return maskOf<std::uint16_t>(static_cast<std::int16_t>(pattern::magnitudeOf(x)) >= std::int16_t{pattern::infinity});
}
ZTHALF_INLINE std::uint16_t equalMask(std::uint16_t x, std::uint16_t y) { return maskOf<std::uint16_t>(x == y); }

// Which way a divisor goes: one of the masks is all ones. Two NaNs of one payload count as a diagonal here, which gives
// NaNs like the plain way.
struct divisorWay {
  std::uint16_t isReal, isImaginary, isDiagonal, isPlain;

  ZTHALF_INLINE explicit divisorWay(complexHalf y)
      : isReal(zeroMask(y.im)),
        isImaginary(zeroMask(y.re) & ~isReal),
        isDiagonal(equalMask(pattern::magnitudeOf(y.re), pattern::magnitudeOf(y.im)) & ~isReal),
        isPlain(~(isReal | isImaginary | isDiagonal)) {}

  // The factors, but for the signs of zeros.
  ZTHALF_INLINE complexHalf factors(complexHalf y) const {
    constexpr std::uint16_t half = 0x3800;
    const std::uint16_t signedHalf = half | pattern::signOf(y.re ^ y.im);
    return {static_cast<std::uint16_t>((y.re & isPlain) | (half & isDiagonal) | (pattern::one & isReal)),
            static_cast<std::uint16_t>((y.im & isPlain) | (signedHalf & isDiagonal) | (pattern::one & isImaginary))};
  }

  // g, where the squares of the factors add up to the given number.
  ZTHALF_INLINE float divisor(complexHalf y, float squares) const {
    const float part = widen<float>(select(isImaginary, y.im, y.re));
    const auto mask = static_cast<std::uint32_t>(static_cast<std::int16_t>(isPlain));  // the sign fills the bits above
    return floatOf(select(mask, bitsOf(squares), bitsOf(part)));
  }
};

// Infinite divisors are left, and what is not finite anywhere beside a divisor on an axis: a factor of zero would not
// keep it out.
ZTHALF_INLINE quotientInLanes plainQuotientInLanes(complexHalf x, complexHalf y) {
  const divisorWay way(y);
  const complexHalf factors = way.factors(y);
  const float a = widen<float>(x.re), b = widen<float>(x.im);
  const float e = widen<float>(factors.re | (pattern::signOf(~x.re) & way.isImaginary));
  const float f = widen<float>(factors.im | (pattern::signOf(~x.im) & way.isReal));
  const float g = way.divisor(y, e * e + f * f);
  const float re = (a * e + b * f) / g;
  const float im = (b * e - a * f) / g;
  const std::uint16_t noA = zeroMask(x.re), noB = zeroMask(x.im);
  const std::uint16_t noRe = (way.isReal & noA & ~noB) | (way.isImaginary & ~noA & noB);
  const std::uint16_t noIm = (way.isReal & noB) | (way.isImaginary & noA);
  const std::uint16_t notFinite = notFiniteMask(x.re) | notFiniteMask(x.im) | notFiniteMask(y.re) | notFiniteMask(y.im);
  const std::uint16_t isLeft = infinityMask(y.re) | infinityMask(y.im) | ((way.isReal | way.isImaginary) & notFinite);
  return {{static_cast<std::uint16_t>(narrow(re) & ~noRe), static_cast<std::uint16_t>(narrow(im) & ~noIm)}, isLeft};
}

// A real divisor: the quotients of halves, and nothing is left.
ZTHALF_INLINE quotientInLanes plainQuotientInLanes(complexHalf x, std::uint16_t y) {
  const std::uint16_t byZero = zeroMask(y), noA = zeroMask(x.re), noB = zeroMask(x.im);
  return {{static_cast<std::uint16_t>(quotientOf(x.re, y) & ~(byZero & noA & ~noB)),
           static_cast<std::uint16_t>(quotientOf(x.im, y) & ~(byZero & noB))},
          0};
}

// A real dividend has no imaginary part, but on the diagonals one of zero, which turns a minus zero beside it into plus
// zero. Infinite dividends are left as well, and imaginary NaNs as divisors.
ZTHALF_INLINE quotientInLanes plainQuotientInLanes(std::uint16_t x, complexHalf y) {
  const divisorWay way(y);
  const complexHalf factors = way.factors(y);
  const std::uint16_t isSameSign = ~maskOf<std::uint16_t>(pattern::signOf(y.re ^ y.im) != 0);
  const float besideRe = floatOf(std::uint32_t{pattern::signOf(~(way.isDiagonal & isSameSign))} << 16);
  const float besideIm = floatOf(std::uint32_t{pattern::signOf(~way.isDiagonal)} << 16);
  const float a = widen<float>(x), e = widen<float>(factors.re), f = widen<float>(factors.im);
  const float g = way.divisor(y, e * e + f * f);
  const float re = (a * e + besideRe) / g;
  const float im = (besideIm - a * f) / g;
  const std::uint16_t signedZero = pattern::signOf(y.im) & way.isImaginary;
  return {{static_cast<std::uint16_t>((narrow(re) & ~way.isImaginary) | signedZero),
           static_cast<std::uint16_t>(narrow(im) & ~way.isReal)},
          static_cast<std::uint16_t>(infinityMask(x) | infinityMask(y.re) | infinityMask(y.im) |
                                     (way.isImaginary & pattern::nanMask(y.im)))};
}

}  // namespace zthalf
