// Square roots of a half pattern.
// Internal: promises nothing to users of the library.
#pragma once

#include <cmath>
#include <cstdint>

#include "core/float_conversion.h"
#include "core/patterns.h"

namespace zthalf {

// No root is negative and an invalid operation's NaN is positive, so a sign can only be that of a NaN that came in.
ZTHALF_INLINE std::uint16_t signedLikeNaN(std::uint16_t result, std::uint16_t x) {
  const auto isNaN = maskOf<std::uint16_t>(static_cast<std::int16_t>(pattern::magnitudeOf(x)) >
                                           static_cast<std::int16_t>(pattern::infinity));
  return pattern::magnitudeOf(result) | (pattern::signOf(x) & isNaN);
}

// Adding +0 makes a minus zero positive before the root sees it.
ZTHALF_INLINE float rootOf(std::uint16_t x) { return std::sqrt(widen<float>(x) + 0.0f); }

ZTHALF_INLINE std::uint16_t sqrtOf(std::uint16_t x) { return signedLikeNaN(narrow(rootOf(x)), x); }

// Two float roundings, of the root and of the quotient, before the one to half.
ZTHALF_INLINE std::uint16_t rsqrtOf(std::uint16_t x) { return signedLikeNaN(narrow(1.0f / rootOf(x)), x); }

}  // namespace zthalf
