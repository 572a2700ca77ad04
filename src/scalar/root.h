// Square roots of a half pattern.
#pragma once

#include <cmath>
#include <cstdint>

#include "core/float_conversion.h"
#include "core/nan_policy.h"

namespace zthalf {

// Adding +0 makes a minus zero positive before the root sees it.
ZTHALF_INLINE float rootOf(std::uint16_t x) { return std::sqrt(widen<float>(x) + 0.0f); }

ZTHALF_INLINE std::uint16_t sqrtOf(std::uint16_t x) { return settledUnsigned(narrow(rootOf(x)), x); }

// Two float roundings, of the root and of the quotient, before the one to half.
ZTHALF_INLINE std::uint16_t rsqrtOf(std::uint16_t x) { return settledUnsigned(narrow(1.0f / rootOf(x)), x); }

}  // namespace zthalf
