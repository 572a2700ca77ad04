// What the double-precision kernels share: a double as two 32-bit words, and the NaN that they return by definition.
//
// The kernels decide by the high word alone: sign, exponent field and the 20 leading fraction bits. As a signed integer
// the high words of positive doubles are ordered like the doubles, as far as they differ.
#pragma once

#include <cstdint>

#include "core/bits.h"

namespace qsl_scalar::doubles {

inline constexpr std::uint64_t magnitudeBits = 0x7FFFFFFFFFFFFFFFu;
inline constexpr double infinity = zthalf::doubleOf(0x7FF0000000000000u);
inline constexpr double largestFinite = zthalf::doubleOf(0x7FEFFFFFFFFFFFFFu);  // 1.7976931348623157e+308
inline constexpr std::int32_t exponentStep = 0x00100000;                        // one in the exponent field

// The NaN of a real function outside its domain; negative, and it does not go through the NaN policy.
inline constexpr double domainNaN = zthalf::doubleOf(0xFFF8000000000000u);

ZTHALF_INLINE constexpr std::int32_t highWordOf(double v) { return static_cast<std::int32_t>(zthalf::bitsOf(v) >> 32); }
ZTHALF_INLINE constexpr std::int32_t highWordOfMagnitude(double v) { return highWordOf(v) & 0x7FFFFFFF; }
ZTHALF_INLINE constexpr std::uint32_t lowWordOf(double v) { return static_cast<std::uint32_t>(zthalf::bitsOf(v)); }

ZTHALF_INLINE constexpr double fromWords(std::int32_t high, std::uint32_t low) {
  return zthalf::doubleOf(std::uint64_t{static_cast<std::uint32_t>(high)} << 32 | low);
}
// The double of this high word whose low word is zero. It has 21 significant bits: a product of two such is exact.
ZTHALF_INLINE constexpr double fromHighWord(std::int32_t high) { return fromWords(high, 0); }
ZTHALF_INLINE constexpr double upperHalf(double v) { return fromHighWord(highWordOf(v)); }

ZTHALF_INLINE constexpr bool hasSign(double v) { return highWordOf(v) < 0; }
ZTHALF_INLINE constexpr double magnitudeOf(double v) { return zthalf::doubleOf(zthalf::bitsOf(v) & magnitudeBits); }

// steps of the high word added: with a multiple of exponentStep, a scaling by a power of two, as long as value and
// result are normal.
ZTHALF_INLINE constexpr double highWordRaised(double v, std::int32_t steps) {
  return fromWords(highWordOf(v) + steps, lowWordOf(v));
}

}  // namespace qsl_scalar::doubles
