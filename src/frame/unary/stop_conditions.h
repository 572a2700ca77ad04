// Where the stopping forms of real functions leave the real line. A NaN never stops a loop.
#pragma once

#include <cstdint>

#include "core/patterns.h"
#include "zthalf/half_t.h"

namespace half::templates::emulated {

// Patterns of one sign are ordered by magnitude, so each condition is one range, up to an infinity.

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

// Of either sign, infinities included.
struct isBeyondOne {
  ZTHALF_INLINE bool operator()(fp16binary_t x) const {
    return static_cast<std::uint16_t>(zthalf::pattern::magnitudeOf(x.bits) - 0x3C01) <= 0x7C00 - 0x3C01;
  }
};

}  // namespace half::templates::emulated
