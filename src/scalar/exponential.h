// exp of a half pattern.
#pragma once

#include <cstdint>

#include "core/float_conversion.h"
#include "scalar/kernels/logarithm_constants.h"

namespace zthalf {

// Deliberately short: within 0.873 units in the last place of half.
//
// x log2(e) = k + f with k whole, |f| up to 0.5 and ties of k away from zero; 2^f is a quadratic in f, one for each
// side of zero, and k goes into the exponent field. Beyond 12 and -18 the result is that of 12 and of -18, which the
// last rounding makes infinity and zero; the overflow itself begins at 11.09.
//
// A NaN passes both limits. It gets k = 0, so that the conversion to an integer is defined, and keeps its sign through
// the quadratic. No branch: a loop over this runs in vector lanes.
ZTHALF_INLINE std::uint16_t expOf(std::uint16_t x) {
  constexpr std::uint32_t below0 = 0x3F7FF406u;  // 0.9998172521591187
  constexpr std::uint32_t below1 = 0x3F2FB63Eu;  // 0.6863745450973511
  constexpr std::uint32_t below2 = 0x3E4F8062u;  // 0.202638179063797
  constexpr std::uint32_t above0 = 0x3F800878u;  // 1.000258445739746
  constexpr std::uint32_t above1 = 0x3F2F219Bu;  // 0.6841065287590027
  constexpr std::uint32_t above2 = 0x3E92B9C8u;  // 0.2865736484527588

  const float v = widen<float>(x);
  const float notTooSmall = v < -18.0f ? -18.0f : v;
  const float held = notTooSmall > 12.0f ? 12.0f : notTooSmall;
  const float t = held * qsl_scalar::log2E;

  const float half = floatOf((bitsOf(t) & 0x80000000u) | bitsOf(0.5f));
  const auto isNumber = maskOf<std::uint32_t>(t == t);
  const auto k = static_cast<std::int32_t>(floatOf(bitsOf(t + half) & isNumber));
  const float f = t - static_cast<float>(k);

  const auto isBelow = maskOf<std::uint32_t>(f <= 0.0f);
  const float c0 = floatOf(select(isBelow, below0, above0));
  const float c1 = floatOf(select(isBelow, below1, above1));
  const float c2 = floatOf(select(isBelow, below2, above2));
  const float p = c0 + f * (c1 + f * c2);
  return narrow(floatOf(bitsOf(p) + (static_cast<std::uint32_t>(k) << 23)));
}

}  // namespace zthalf
