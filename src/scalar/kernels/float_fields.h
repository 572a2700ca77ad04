// What the single-precision kernels share: views of a float's fields, and the NaN that they return by definition.
#pragma once

#include <cstdint>

#include "core/bits.h"

namespace qsl_scalar {

using zthalf::bitsOf;
using zthalf::floatOf;

inline constexpr std::uint32_t signBit = 0x80000000u;
inline constexpr std::uint32_t magnitudeBits = 0x7FFFFFFFu;
inline constexpr std::uint32_t exponentBits = 0x7F800000u;
inline constexpr std::uint32_t fractionBits = 0x007FFFFFu;
inline constexpr std::uint32_t hiddenBit = 0x00800000u;  // the leading one of a normal significand; one exponent step

inline constexpr float infinity = floatOf(0x7F800000u);
inline constexpr float negativeInfinity = floatOf(0xFF800000u);

// The NaN of a real function outside its domain. It is negative, unlike the NaN of an invalid operation, and stays so:
// it does not go through the NaN policy.
inline constexpr float domainNaN = floatOf(0xFFC00000u);

// Float patterns read as integers are ordered like the floats as long as the sign is plus; a set sign is negative.
ZTHALF_INLINE constexpr std::int32_t signedBitsOf(float v) { return static_cast<std::int32_t>(bitsOf(v)); }
ZTHALF_INLINE constexpr std::uint32_t magnitudeBitsOf(float v) { return bitsOf(v) & magnitudeBits; }
ZTHALF_INLINE constexpr std::uint32_t fractionBitsOf(float v) { return bitsOf(v) & fractionBits; }
ZTHALF_INLINE constexpr std::int32_t exponentFieldOf(float v) {
  return static_cast<std::int32_t>((bitsOf(v) & exponentBits) >> 23);
}
ZTHALF_INLINE constexpr bool hasSign(float v) { return (bitsOf(v) & signBit) != 0; }
ZTHALF_INLINE constexpr float magnitudeOf(float v) { return floatOf(magnitudeBitsOf(v)); }

// v without its 12 low fraction bits. Twelve significant bits are left, so the product of two such values is exact, and
// v - upperHalf(v) is exact too.
ZTHALF_INLINE constexpr float upperHalf(float v) { return floatOf(bitsOf(v) & 0xFFFFF000u); }

// Parts of a float as its bits tell them: for code that a compiler turns into vector lanes.
struct bitwiseParts {
  static constexpr auto upperHalf = qsl_scalar::upperHalf;
  static constexpr auto magnitudeOf = qsl_scalar::magnitudeOf;
};

// The same for code that handles one float at a time, where the detour of the bits through an integer register would
// cost more than the step that follows: in a vector of equal lanes the float stays where it is.
struct singleFloatParts {
  using words = std::uint32_t __attribute__((vector_size(16)));
  using lanes = float __attribute__((vector_size(16)));
  ZTHALF_INLINE static float masked(float v, std::uint32_t mask) {
    const auto bits = reinterpret_cast<words>(lanes{v, v, v, v}) & words{mask, mask, mask, mask};
    return reinterpret_cast<lanes>(bits)[0];
  }
  ZTHALF_INLINE static float upperHalf(float v) { return masked(v, 0xFFFFF000u); }
  ZTHALF_INLINE static float magnitudeOf(float v) { return masked(v, magnitudeBits); }
};

// k added to the exponent field: v * 2^k as long as v and the result are normal.
ZTHALF_INLINE constexpr float exponentRaised(float v, std::int32_t k) {
  return floatOf(bitsOf(v) + (static_cast<std::uint32_t>(k) << 23));
}

ZTHALF_INLINE constexpr float withExponentField(float v, std::int32_t field) {
  return floatOf((bitsOf(v) & ~exponentBits) | static_cast<std::uint32_t>(field) << 23);
}

}  // namespace qsl_scalar
