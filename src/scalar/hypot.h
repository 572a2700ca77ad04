// hypot of two halves, and of a half and a float or double.
#pragma once

#include <cmath>
#include <cstdint>

#include "core/bits.h"
#include "core/float_conversion.h"
#include "core/patterns.h"
#include "scalar/kernels/hypot_double.h"

namespace zthalf {

// Where the working type's root sits exactly half-way between two numbers of a narrow type, by the width of its
// fraction: of the bits below the narrow one's last place the leading one alone is set. Above the place of the narrow
// number's last bit one more is looked at, which tells the ties that round down to even from those that round up.
template <class Wide, int narrowFractionWidth>
struct rootTies {
  using word = typename formatOf<Wide>::word;
  static constexpr int below = formatOf<Wide>::fractionWidth - narrowFractionWidth;
  static constexpr word mask = (word{4} << (below - 1)) - 1;
  static constexpr word roundingDown = word{1} << (below - 1);
  static constexpr word roundingUp = word{3} << (below - 1);
};

inline constexpr int halfFractionWidth = 10;

// sqrt(a^2 + b^2), moved so that its rounding to the narrow type gives what the exact root would: for halves in float,
// where a float takes part in double. Both squares are exact there, and the sum s cannot overflow.
//
// The second rounding of the root r can go wrong only where r is exactly a tie, and the exact root is not. The exact
// sum is s - e, with e the rounding error of s, and r^2 = s - d: so the exact root is above r where e < d, and below it
// where e > d. A tie that would round down to even is moved up by its last bit in the first case, one that would round
// up is moved down in the second.
//
// With an infinity e is a NaN, both comparisons are false, and the root stands: infinity, or a NaN if the other operand
// was one. A NaN's sign is not settled here.
template <int narrowFractionWidth, class Wide>
ZTHALF_INLINE Wide rootOfSquares(Wide a, Wide b) {
  using ties = rootTies<Wide, narrowFractionWidth>;
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
  return valueOf((bits | raise) - lower);
}

// Magnitudes come in, so a NaN result is positive.
template <class Wide>
ZTHALF_INLINE std::uint16_t hypotOfMagnitudes(Wide a, Wide b) {
  return narrow(rootOfSquares<halfFractionWidth>(a, b));
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

ZTHALF_INLINE std::uint16_t hypotOf(float x, std::uint16_t y) { return hypotOf(y, x); }

// Beside a double operand the kernel in double has the work.
inline std::uint16_t hypotOf(std::uint16_t x, double y) {
  return narrow(qsl_scalar::hypotDouble(widenMagnitude<double>(x), y));
}
inline std::uint16_t hypotOf(double x, std::uint16_t y) {
  return narrow(qsl_scalar::hypotDouble(x, widenMagnitude<double>(y)));
}

}  // namespace zthalf
