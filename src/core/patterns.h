// Views and classes of a binary16 pattern: integer work only.
#pragma once

#include <cstdint>

#include "core/bits.h"

namespace zthalf::pattern {

inline constexpr std::uint16_t signBit = 0x8000;
inline constexpr std::uint16_t magnitudeBits = 0x7FFF;
inline constexpr std::uint16_t exponentBits = 0x7C00;
inline constexpr std::uint16_t fractionBits = 0x03FF;
inline constexpr std::uint16_t quietBit = 0x0200;

inline constexpr std::uint16_t zero = 0x0000;
inline constexpr std::uint16_t smallestSubnormal = 0x0001;  // 2^-24
inline constexpr std::uint16_t one = 0x3C00;
inline constexpr std::uint16_t largestFinite = 0x7BFF;  // 65504
inline constexpr std::uint16_t infinity = 0x7C00;
inline constexpr std::uint16_t quietNaN = 0x7E00;

ZTHALF_INLINE constexpr std::uint16_t signOf(std::uint16_t x) { return x & signBit; }
ZTHALF_INLINE constexpr std::uint16_t magnitudeOf(std::uint16_t x) { return x & magnitudeBits; }
ZTHALF_INLINE constexpr unsigned exponentOf(std::uint16_t x) { return (x & exponentBits) >> 10; }

ZTHALF_INLINE constexpr bool isZero(std::uint16_t x) { return magnitudeOf(x) == 0; }
ZTHALF_INLINE constexpr bool isNaN(std::uint16_t x) { return magnitudeOf(x) > infinity; }
ZTHALF_INLINE constexpr bool isInfinite(std::uint16_t x) { return magnitudeOf(x) == infinity; }
ZTHALF_INLINE constexpr bool isFinite(std::uint16_t x) { return magnitudeOf(x) < infinity; }

// All ones for a NaN. Compared as signed numbers, which is what lanes of 16 bits can do.
ZTHALF_INLINE constexpr std::uint16_t nanMask(std::uint16_t x) {
  return maskOf<std::uint16_t>(static_cast<std::int16_t>(magnitudeOf(x)) > std::int16_t{infinity});
}

// An integer in the order of the numbers: both zeros have key 0. Says nothing about NaNs.
ZTHALF_INLINE constexpr std::int16_t orderKey(std::uint16_t x) {
  const auto flip = maskOf<std::uint16_t>((x & signBit) != 0);  // negation is complement plus one
  return static_cast<std::int16_t>((magnitudeOf(x) ^ flip) - flip);
}

}  // namespace zthalf::pattern
