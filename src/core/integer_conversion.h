// The conversions between half patterns and the integers and bool.
#pragma once

#include <concepts>
#include <cstdint>
#include <limits>
#include <type_traits>

#include "core/bits.h"
#include "core/float_conversion.h"
#include "core/patterns.h"

namespace zthalf {

// An 8-bit integer is exact in half, so nothing is rounded and the pattern is assembled: converting to single finds the
// highest set bit, in vector lanes too, and the single's exponent and leading fraction bits become the half's.
template <class Integer>
requires(sizeof(Integer) == 1) ZTHALF_INLINE std::uint16_t integerToHalf(Integer value) {
  constexpr std::uint32_t rebias = (127 - 15) << 10;
  const std::uint32_t word = bitsOf(static_cast<float>(static_cast<std::int32_t>(value)));
  const auto sign = static_cast<std::uint16_t>((word >> 16) & pattern::signBit);
  const auto magnitude = static_cast<std::uint16_t>(((word & 0x7FFFFFFFu) >> 13) - rebias);
  return static_cast<std::uint16_t>(magnitude & maskOf<std::uint16_t>(value != 0)) | sign;
}

// A 16-bit integer is exact in single, so the one rounding is that of narrow.
template <class Integer>
requires(sizeof(Integer) == 2) ZTHALF_INLINE std::uint16_t integerToHalf(Integer value) {
  return narrow(static_cast<float>(static_cast<std::int32_t>(value)));
}

// Wider integers: a magnitude with a bit from 16 upward set is beyond the range of half, and is decided before anything
// is rounded, so that a large value never gets a first rounding on its way through single. The magnitude of the most
// negative value is taken in the unsigned type.
template <class Integer>
requires(sizeof(Integer) > 2) ZTHALF_INLINE std::uint16_t integerToHalf(Integer value) {
  using word = std::make_unsigned_t<Integer>;
  const bool negative = std::is_signed_v<Integer> && value < 0;
  const word magnitude = negative ? word{0} - static_cast<word>(value) : static_cast<word>(value);
  const bool beyond = magnitude > 0xFFFF;
  const auto inRange = static_cast<std::int32_t>(beyond ? 0 : magnitude);
  const std::uint16_t rounded = narrow(static_cast<float>(inRange));
  return static_cast<std::uint16_t>((beyond ? pattern::infinity : rounded) | (negative ? pattern::signBit : 0));
}

// A logical array's element is a byte of which any bit may be set.
ZTHALF_INLINE std::uint16_t logicalToHalf(std::uint8_t byte) { return maskOf<std::uint16_t>(byte != 0) & pattern::one; }

// The magnitude of a finite half as an integer, to nearest with ties away from zero; 0 for infinities and NaNs.
// The half is exact in single, and so is its sum with 0.5: below 0.5 the sum's last place is 2^-24, the spacing of the
// smallest halves, and above it has 13 bits to spare. Cutting off the fraction is then the rounding.
ZTHALF_INLINE std::uint32_t roundedMagnitude(std::uint16_t h) {
  const std::uint16_t magnitude = pattern::magnitudeOf(h);
  const auto finite = static_cast<std::uint16_t>(magnitude & maskOf<std::uint16_t>(magnitude < pattern::infinity));
  return static_cast<std::uint32_t>(static_cast<std::int32_t>(widen<float>(finite) + 0.5f));
}

// Half to integer: to nearest, ties away from zero, held in the type's range; infinities give the range's ends and a
// NaN of either sign gives 0. An unsigned type's range ends at 0, so there whatever has the sign bit set gives 0.
template <class Integer>
ZTHALF_INLINE Integer halfToInteger(std::uint16_t h) {
  using word = std::conditional_t<(sizeof(Integer) > 4), std::uint64_t, std::uint32_t>;
  constexpr auto most = static_cast<word>(std::numeric_limits<Integer>::max());
  constexpr word least = std::is_signed_v<Integer> ? most + 1 : 0;  // the magnitude of the range's lower end

  const word rounded = roundedMagnitude(h);
  const word negative = maskOf<word>((h & pattern::signBit) != 0);
  const word limit = select(negative, least, most);
  const word wanted = pattern::isInfinite(h) ? limit : rounded;
  const word held = wanted < limit ? wanted : limit;
  return static_cast<Integer>((held ^ negative) - negative);
}

// Half to bool: everything but the two zeros is true, a NaN included.
ZTHALF_INLINE bool halfToLogical(std::uint16_t h) { return pattern::magnitudeOf(h) != 0; }

}  // namespace zthalf
