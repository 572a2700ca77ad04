// Rounding to half between two steps of a chain, without leaving single.
#pragma once

#include <cstdint>

#include "core/bits.h"
#include "core/float_conversion.h"

namespace half_utils {

// The half that x rounds to, as a single; a NaN stays as it is.
//
// As in roundedInUpperHalf(), a power of two is added whose last place is that of the half result; here it is
// subtracted again, which is exact. What is above 65504 then is 65536, and filling the exponent field makes an infinity
// of it. The first clamp keeps a NaN, since the comparison is false for one. A zero result gets the sign of x back.
ZTHALF_INLINE float roundedToHalf(float x) {
  constexpr std::int32_t smallestScale = zthalf::upperOfSinglePower(-14);
  constexpr std::int32_t largestFinite = zthalf::upperOfSinglePower(16) - (1 << 13);
  const std::uint32_t bits = zthalf::bitsOf(x);
  const float magnitude = zthalf::floatOf(bits & 0x7FFFFFFFu);
  const float held = 65536.0f < magnitude ? 65536.0f : magnitude;
  const std::int32_t scale = zthalf::largerOf(static_cast<std::int32_t>(zthalf::bitsOf(held)), smallestScale);
  const float power = zthalf::floatOf(static_cast<std::uint32_t>(scale & 0x7F800000) + (13u << 23));
  const std::uint32_t rounded = zthalf::bitsOf((held + power) - power);
  const auto overflows = zthalf::maskOf<std::uint32_t>(static_cast<std::int32_t>(rounded) > largestFinite);
  return zthalf::floatOf(rounded | (overflows & 0x7F800000u) | (bits & 0x80000000u));
}

}  // namespace half_utils
