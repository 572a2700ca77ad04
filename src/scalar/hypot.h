// hypot of two halves, and of a half and a float.
// Internal: promises nothing to users of the library.
#pragma once

#include <cmath>
#include <cstdint>

#include "core/bits.h"
#include "core/float_conversion.h"
#include "core/patterns.h"

namespace zthalf {

// Where the working type's root sits exactly half-way between two halves: of the bits below a half's last place the
// leading one alone is set. Above the place of the half's last bit one more is looked at, which tells the ties that
// round down to even from those that round up.
template <class Wide>
struct rootTies {
  using word = typename formatOf<Wide>::word;
  static constexpr int belowHalf = formatOf<Wide>::fractionWidth - 10;
  static constexpr word mask = (word{4} << (belowHalf - 1)) - 1;
  static constexpr word roundingDown = word{1} << (belowHalf - 1);
  static constexpr word roundingUp = word{3} << (belowHalf - 1);
};

// sqrt(a^2 + b^2) rounded to half, as if the root had been taken of the exact sum: for halves in float, for a half and
// a float in double. Both squares are exact there, and the sum s cannot overflow.
//
// The rounding of the root r to half can go wrong only where r is exactly a tie, and the exact root is not. The exact
// sum is s - e, with e the rounding error of s, and r^2 = s - d: so the exact root is above r where e < d, and below it
// where e > d. A tie that would round down to even is moved up by its last bit in the first case, one that would round
// up is moved down in the second.
//
// Magnitudes come in, so a NaN result is positive. With an infinity e is a NaN, both comparisons are false, and the
// root stands: infinity, or a NaN if the other operand was one.
template <class Wide>
ZTHALF_INLINE std::uint16_t hypotOfMagnitudes(Wide a, Wide b) {
  using ties = rootTies<Wide>;
  using word = typename ties::word;
  const Wide squareA = a * a;
  const Wide squareB = b * b;
  const Wide s = squareA + squareB;
  const Wide e = ((s - squareA) - squareB) + ((s - squareB) - squareA);
  const Wide r = std::sqrt(s);
  const Wide d = s - r * r;

  const word bits = bitsOf(r);
  const word low = bits & ties::mask;
  const bool isInexact = e != 0;
  const word raise = maskOf<word>(isInexact & (low == ties::roundingDown) & (e < d)) & 1;
  const word lower = maskOf<word>(isInexact & (low == ties::roundingUp) & (e > d)) & 1;
  return narrow(valueOf((bits | raise) - lower));
}

template <class Wide>
ZTHALF_INLINE Wide widenMagnitude(std::uint16_t x) {
  return widen<Wide>(pattern::magnitudeOf(x));
}

ZTHALF_INLINE std::uint16_t hypotOf(std::uint16_t x, std::uint16_t y) {
  return hypotOfMagnitudes(widenMagnitude<float>(x), widenMagnitude<float>(y));
}

// Symmetric in its arguments, so this serves both orders.
ZTHALF_INLINE std::uint16_t hypotOf(std::uint16_t x, float y) {
  const float magnitude = floatOf(bitsOf(y) & 0x7FFFFFFFu);
  return hypotOfMagnitudes(widenMagnitude<double>(x), static_cast<double>(magnitude));
}

}  // namespace zthalf
