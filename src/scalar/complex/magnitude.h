// Magnitude, spacing and direction of a complex half.
#pragma once

#include <cstdint>

#include "core/nan_policy.h"
#include "scalar/complex/complex_value.h"
#include "scalar/hypot.h"
#include "scalar/kernels/hypot_single.h"
#include "scalar/spacing.h"

namespace zthalf {

// sqrt(re^2 + im^2), as the root of the exact sum. Unlike hypot it keeps a NaN's sign, of the real part's NaN before
// the imaginary part's: both have become quiet when they meet.
ZTHALF_INLINE std::uint16_t magnitudeOf(complexHalf z) {
  const float root = rootOfSquares<halfFractionWidth>(widen<float>(z.re), widen<float>(z.im));
  const std::uint16_t reNaN = maskOf<std::uint16_t>(pattern::isNaN(z.re));
  const std::uint16_t imNaN = maskOf<std::uint16_t>(pattern::isNaN(z.im));
  const auto sign = static_cast<std::uint16_t>(((z.re & reNaN) | (z.im & imNaN & ~reNaN)) & pattern::signBit);
  return static_cast<std::uint16_t>(pattern::magnitudeOf(narrow(root)) | sign);
}

// The spacing of halves at the magnitude; 0x7E00 where that is an infinity or a NaN.
ZTHALF_INLINE std::uint16_t epsOf(complexHalf z) { return epsOf(magnitudeOf(z)); }

// z / |z|: the point of the unit circle in the direction of z, each part rounded once. On the real axis it is -1, +0 or
// +1, and a NaN stays a NaN there.
inline complexHalf directionOf(complexHalf z) {
  const float re = widen<float>(z.re);
  const float im = widen<float>(z.im);
  if (im == 0)
    return {re < 0 ? std::uint16_t(pattern::signBit | pattern::one) : re > 0 ? pattern::one : sumOf(z.re, 0), 0};
  const float length = qsl_scalar::hypotSingle(re, im);
  return {narrow(settled(re / length, re, length)), narrow(settled(im / length, im, length))};
}

}  // namespace zthalf
