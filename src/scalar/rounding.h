// ceil, floor, fix and round on patterns. A NaN, a zero of either sign and everything from 1024 on come back as they
// are; no floating-point arithmetic is done.
#pragma once

#include <cstdint>

#include "core/patterns.h"

namespace zthalf {

// The bits of a magnitude pattern from 1.0 on that stand below the point: (1 << (25 - e)) - 1 for an exponent field e
// of 15 to 24, none above. Not made by a shift, since shifting each lane by a count of its own is missing on the base
// level: 2^(25-e) is written down as a float, where the power is the exponent field, and converting it does the shift.
ZTHALF_INLINE std::uint16_t bitsBelowPoint(std::uint16_t magnitude) {
  const std::uint32_t field = magnitude & pattern::exponentBits;
  const std::uint32_t held = field > pattern::one ? field : pattern::one;
  const auto unit =
      static_cast<std::int32_t>(floatOf((152u << 23) - (held << 13)));  // 152 = 127 + 25; 0 from e = 26 on
  return static_cast<std::uint16_t>((unit > 1 ? unit : 1) - 1);
}

// A magnitude rounded to an integer's. Patterns are ordered like their values, so adding what reaches the next integer
// and clearing the bits below the point rounds, and the carry steps into the next binade by itself.

ZTHALF_INLINE std::uint16_t magnitudeTowardsZero(std::uint16_t m) {
  const std::uint16_t below = bitsBelowPoint(m);
  return static_cast<std::uint16_t>(m & ~below) & maskOf<std::uint16_t>(m >= pattern::one);
}

ZTHALF_INLINE std::uint16_t magnitudeAwayFromZero(std::uint16_t m) {
  const std::uint16_t below = bitsBelowPoint(m);
  const auto large = static_cast<std::uint16_t>((m + below) & ~below);
  const std::uint16_t small = pattern::one & maskOf<std::uint16_t>(m != 0);
  return select(maskOf<std::uint16_t>(m >= pattern::one), large, small);
}

ZTHALF_INLINE std::uint16_t magnitudeToNearest(std::uint16_t m) {
  constexpr std::uint16_t oneHalf = 0x3800;
  const std::uint16_t below = bitsBelowPoint(m);
  const auto large = static_cast<std::uint16_t>((m + ((below + 1) >> 1)) & ~below);
  const std::uint16_t small = pattern::one & maskOf<std::uint16_t>(m >= oneHalf);
  return select(maskOf<std::uint16_t>(m >= pattern::one), large, small);
}

ZTHALF_INLINE std::uint16_t ceilOf(std::uint16_t x) {
  const std::uint16_t m = pattern::magnitudeOf(x);
  const std::uint16_t sign = pattern::signOf(x);
  return select(maskOf<std::uint16_t>(sign != 0), magnitudeTowardsZero(m), magnitudeAwayFromZero(m)) | sign;
}

ZTHALF_INLINE std::uint16_t floorOf(std::uint16_t x) {
  const std::uint16_t m = pattern::magnitudeOf(x);
  const std::uint16_t sign = pattern::signOf(x);
  return select(maskOf<std::uint16_t>(sign != 0), magnitudeAwayFromZero(m), magnitudeTowardsZero(m)) | sign;
}

ZTHALF_INLINE std::uint16_t fixOf(std::uint16_t x) {
  return magnitudeTowardsZero(pattern::magnitudeOf(x)) | pattern::signOf(x);
}

// To nearest, ties away from zero.
ZTHALF_INLINE std::uint16_t roundOf(std::uint16_t x) {
  return magnitudeToNearest(pattern::magnitudeOf(x)) | pattern::signOf(x);
}

}  // namespace zthalf
