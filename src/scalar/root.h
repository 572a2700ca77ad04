// Square roots of a half pattern.
// Internal: promises nothing to users of the library.
#pragma once

#include <cstdint>

#include "core/float_conversion.h"
#include "scalar/kernels/square_root.h"

namespace zthalf {

// Adding +0 makes a minus zero positive before the root sees it.
ZTHALF_INLINE float rootOf(std::uint16_t x) { return qsl_scalar::squareRoot(widen<float>(x) + 0.0f); }

ZTHALF_INLINE std::uint16_t sqrtOf(std::uint16_t x) { return narrow(rootOf(x)); }

// Two float roundings, of the root and of the quotient, before the one to half.
ZTHALF_INLINE std::uint16_t rsqrtOf(std::uint16_t x) { return narrow(1.0f / rootOf(x)); }

}  // namespace zthalf
