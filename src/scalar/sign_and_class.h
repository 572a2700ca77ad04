// Sign, magnitude and class of a real or complex half: bit work on the pattern, NaN payloads passing through.
#pragma once

#include <cstdint>

#include "core/patterns.h"

namespace zthalf {

ZTHALF_INLINE std::uint16_t negated(std::uint16_t x) { return x ^ pattern::signBit; }

// The imaginary part of a negated or conjugated value: never minus zero.
ZTHALF_INLINE std::uint16_t negatedUnlessZero(std::uint16_t x) {
  return negated(x) & maskOf<std::uint16_t>(!pattern::isZero(x));
}

// -1, +0 or +1; minus zero gives plus zero, a NaN gives itself.
ZTHALF_INLINE std::uint16_t signumOf(std::uint16_t x) {
  const std::uint16_t unit = (x & pattern::signBit) | pattern::one;
  const std::uint16_t number = unit & maskOf<std::uint16_t>(!pattern::isZero(x));
  return select(maskOf<std::uint16_t>(pattern::isNaN(x)), x, number);
}

}  // namespace zthalf
