// The arc tangent in single precision.
#pragma once

#include <cstdint>

#include "scalar/kernels/float_fields.h"

namespace qsl_scalar {

// One of five values, by the interval of t, as at atanOfMagnitude.
ZTHALF_INLINE float pickByInterval(float t, float zero, float half, float one, float threeHalves, float unbounded) {
  using zthalf::maskOf;
  using zthalf::select;
  std::uint32_t picked = select(maskOf<std::uint32_t>(t >= 0.4375f), bitsOf(half), bitsOf(zero));
  picked = select(maskOf<std::uint32_t>(t >= 0.6875f), bitsOf(one), picked);
  picked = select(maskOf<std::uint32_t>(t >= 1.1875f), bitsOf(threeHalves), picked);
  picked = select(maskOf<std::uint32_t>(t >= 2.4375f), bitsOf(unbounded), picked);
  return floatOf(picked);
}

// The arc tangent of a magnitude, an infinite one too. With a centre c, atan t = atan c + atan a where
// a = (t - c)/(1 + c t):
//
//   t in [0, 7/16)        c = 0         a = t
//     [7/16, 11/16)       c = 1/2       a = (2t - 1) / (2 + t)
//     [11/16, 19/16)      c = 1         a = (t - 1) / (t + 1)
//     [19/16, 39/16)      c = 3/2       a = (t - 3/2) / (1 + 3t/2)
//     [39/16, infinity]   c = infinity  a = -1/t
//
// so that |a| is at most 7/16. There a - atan a = a R with R = a^2/3 - a^4/5 + a^6/7 - ..., fitted, and summed as its
// even and odd powers of z = a^2. atan c enters in two parts, the lower one first.
//
// Below 2^-29 nothing of t^3/3 is left beside t, and from 2^30 on nothing of 1/t beside pi/2: t is the result, or held
// at 2^30, and no product becomes subnormal. There is one division and no branch, so that a loop runs in vector lanes.
ZTHALF_INLINE float atanOfMagnitude(float t) {
  constexpr float halfUpper = floatOf(0x3EED6000u);         // 0.463623046875
  constexpr float halfLower = floatOf(0x37CE0AC3u);         // 2.4562124963267706e-05
  constexpr float oneUpper = floatOf(0x3F490000u);          // 0.78515625
  constexpr float oneLower = floatOf(0x397DAA22u);          // 0.00024191339616663754
  constexpr float threeHalvesUpper = floatOf(0x3F7B9000u);  // 0.982666015625
  constexpr float threeHalvesLower = floatOf(0x3905E941u);  // 0.00012770762259606272
  constexpr float unboundedUpper = floatOf(0x3FC90000u);    // 1.5703125
  constexpr float unboundedLower = floatOf(0x39FDAA22u);    // 0.0004838267923332751
  constexpr float a1 = floatOf(0x3EAAAAAAu);                // 0.3333333134651184
  constexpr float a2 = floatOf(0xBE4CCB05u);                // -0.19999321
  constexpr float a3 = floatOf(0x3E11FCE2u);                // 0.14256623
  constexpr float a4 = floatOf(0xBDDA7B04u);                // -0.106679946
  constexpr float a5 = floatOf(0x3D7E7ADEu);                // 0.062128894

  const auto isTiny = zthalf::maskOf<std::uint32_t>(t < 0x1p-29f);
  const float held = floatOf(bitsOf(t < 0x1p30f ? t : 0x1p30f) & ~isTiny);
  const float numerator = pickByInterval(held, held, (held + held) + -1.0f, held + -1.0f, held + -1.5f, -1.0f);
  const float denominator = pickByInterval(held, 1.0f, held + 2.0f, held + 1.0f, held * 1.5f + 1.0f, held);
  const float upper = pickByInterval(held, 0.0f, halfUpper, oneUpper, threeHalvesUpper, unboundedUpper);
  const float lower = pickByInterval(held, 0.0f, halfLower, oneLower, threeHalvesLower, unboundedLower);

  const float a = numerator / denominator;
  const float z = a * a;
  const float w = z * z;
  const float below = a * (w * (w * a4 + a2) + z * (w * (w * a5 + a3) + a1));
  const float angle = upper - ((below - lower) - a);
  return floatOf(zthalf::select(isTiny, bitsOf(t), bitsOf(angle)));
}

// Within 1 ulp for every float. A zero gives itself, an infinity half pi with its sign, a NaN of either sign the
// negative NaN 0xFFC00000.
ZTHALF_INLINE float atanSingle(float x) {
  const std::uint32_t angle = bitsOf(atanOfMagnitude(magnitudeOf(x))) | (bitsOf(x) & signBit);
  return floatOf(zthalf::select(zthalf::maskOf<std::uint32_t>(x != x), bitsOf(domainNaN), angle));
}

}  // namespace qsl_scalar
