// Reduction of a large angle by the digits of 2/pi.
#pragma once

#include <array>
#include <cstdint>

#include "scalar/kernels/rem_pio2_single.h"

namespace qsl_scalar {

// A positive angle as digits to the base 256: 2^exponent * (digit[0] + digit[1] / 256 + digit[2] / 256^2), with
// digit[0] at least 128 and an exponent from 0 to 120.
struct angleDigits {
  std::array<std::int32_t, 3> digit;
  std::int32_t exponent;
};

// The angle by the nearest multiple of pi/2, that multiple's number modulo 8. The two parts together are right to more
// than 40 bits, for every float.
reducedAngle kernelRemPio2(angleDigits const& x);

}  // namespace qsl_scalar
