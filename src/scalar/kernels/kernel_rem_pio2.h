// Reduction of a large angle by the digits of 2/pi.
// Internal: promises nothing to users of the library.
#pragma once

#include <array>
#include <cstdint>

#include "scalar/kernels/rem_pio2_single.h"

namespace qsl_scalar {

// A positive angle as digits to the base 256: 2^exponent * (digit[0] + digit[1] / 256 + digit[2] / 256^2), with
// digit[0] at least 128, an exponent of at least 0, and count the number of digits up to the last one that is not zero.
struct angleDigits {
  std::array<float, 3> digit;
  int count;
  std::int32_t exponent;
};

// The angle by the nearest multiple of pi/2, that multiple's number modulo 8. Exact to single precision and about as
// much again for every float: upper is the rounded angle to about 1 unit in the last place.
reducedAngle kernelRemPio2(angleDigits const& x);

}  // namespace qsl_scalar
