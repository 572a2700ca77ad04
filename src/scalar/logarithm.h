// Logarithms of a half pattern, and its split into a fraction and an exponent.
#pragma once

#include <cstdint>

#include "core/float_conversion.h"
#include "core/patterns.h"
#include "scalar/kernels/float_fields.h"
#include "scalar/kernels/log_single.h"

namespace zthalf {

ZTHALF_INLINE std::uint16_t logOf(std::uint16_t x) { return narrow(qsl_scalar::logSingle(widen<float>(x))); }

// x = fraction * 2^exponent, exact, with |fraction| in [0.5, 1); both parts are halves. Every half is a normal float,
// so the fields of the float give them. Zeros, infinities and NaNs are their own fraction, with the exponent +0; a
// signalling NaN is made quiet by the narrowing.
struct fractionAndExponent {
  std::uint16_t fraction;
  std::uint16_t exponent;
};

ZTHALF_INLINE fractionAndExponent splitOf(std::uint16_t x) {
  const float v = widen<float>(x);
  const std::uint16_t magnitude = pattern::magnitudeOf(x);
  const auto isPlain = maskOf<std::uint32_t>((magnitude != 0) & (magnitude < pattern::infinity));
  const float fraction = floatOf(select(isPlain, bitsOf(qsl_scalar::withExponentField(v, 126)), bitsOf(v)));
  const auto exponent =
      static_cast<std::int32_t>(static_cast<std::uint32_t>(qsl_scalar::exponentFieldOf(v) - 126) & isPlain);
  return {narrow(fraction), narrow(static_cast<float>(exponent))};
}

}  // namespace zthalf
