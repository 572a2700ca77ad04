// Where the stopping forms of real functions leave the real line. A NaN never stops a loop.
// Internal: promises nothing to users of the library.
#pragma once

#include <cstdint>

#include "core/patterns.h"
#include "zthalf/half_t.h"

namespace half::templates::emulated {

// Patterns with the sign bit set are ordered by magnitude, so each condition is one range, up to -infinity.

// Minus zero is no negative number.
struct isNegativeNumber {
  ZTHALF_INLINE bool operator()(fp16binary_t x) const {
    return static_cast<std::uint16_t>(x.bits - 0x8001) <= 0xFC00 - 0x8001;
  }
};

struct isBelowMinusOne {
  ZTHALF_INLINE bool operator()(fp16binary_t x) const {
    return static_cast<std::uint16_t>(x.bits - 0xBC01) <= 0xFC00 - 0xBC01;
  }
};

}  // namespace half::templates::emulated
