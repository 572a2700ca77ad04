// Scaling by a power of two in single precision.
#pragma once

#include <cstdint>

namespace qsl_scalar {

// v * 2^n, rounded once: to infinity on overflow and to a subnormal or a zero on underflow, always with the sign of v.
// Zeros, infinities and NaNs come back as they are.
float scalbnSingle(float v, std::int32_t n);

}  // namespace qsl_scalar
