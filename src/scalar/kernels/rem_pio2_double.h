// Reduction of an angle by multiples of pi/2 in double precision.
#pragma once

#include <cstdint>

namespace qsl_scalar {

// The angle n pi/2 + upper + lower. |upper| is up to about pi/4, and lower is what the rounding of upper dropped.
struct reducedAngleDouble {
  std::uint32_t n;
  double upper;
  double lower;
};

// x by the nearest multiple of pi/2, for a finite x above 2^-27; n is that multiple's number modulo 4. The pair has 60
// right places at least, for every double.
reducedAngleDouble remPio2Double(double x);

}  // namespace qsl_scalar
