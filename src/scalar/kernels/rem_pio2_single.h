// Reduction of an angle by multiples of pi/2 in single precision.
#pragma once

#include <cstdint>

#include "scalar/kernels/float_fields.h"

namespace qsl_scalar {

// The angle n pi/2 + upper + lower. |upper| is up to about pi/4, and lower is what the rounding of upper dropped.
struct reducedAngle {
  std::int32_t n;
  float upper;
  float lower;

  // The angle of -x where sign is the sign bit, that of x where it is 0. No branch: signs are as good as random.
  ZTHALF_INLINE reducedAngle negatedIf(std::uint32_t sign) const {
    const std::int32_t flip = -static_cast<std::int32_t>(sign >> 31);
    return {(n ^ flip) - flip, floatOf(bitsOf(upper) ^ sign), floatOf(bitsOf(lower) ^ sign)};
  }
};

// x by the nearest multiple of pi/2, for |x| above pi/4. n is that multiple's number, exact up to 201.06 and modulo 8
// above. An infinity or a NaN gives the negative NaN 0xFFC00000 in both parts.
reducedAngle remPio2Single(float x);

}  // namespace qsl_scalar
