// Sine and cosine of a reduced angle in single precision.
#pragma once

#include <cstdint>

#include "scalar/kernels/float_fields.h"
#include "scalar/kernels/rem_pio2_single.h"

namespace qsl_scalar {

// Below it sin x rounds to x and cos x to 1.
inline constexpr float tinyAngle = floatOf(0x32000000u);  // 2^-27

// sin a = a + a^3 (sine1 + sine2 z + sine3 z^2 + sine4 z^3), z = a^2, on |a| up to pi/4: near -1/3!, 1/5!, -1/7!, 1/9!,
// and fitted.
inline constexpr float sine1 = floatOf(0xBE2AAAABu);  // -0.16666667
inline constexpr float sine2 = floatOf(0x3C088887u);  // 0.008333332
inline constexpr float sine3 = floatOf(0xB95009C3u);  // -0.00019840062
inline constexpr float sine4 = floatOf(0x3636D9C0u);  // 2.724686e-06

// cos a = 1 - z/2 + z^2 (cosine1 + cosine2 z + cosine3 z^2 + cosine4 z^3): near 1/4!, -1/6!, 1/8!, -1/10!.
inline constexpr float cosine1 = floatOf(0x3D2AAAABu);  // 0.041666668
inline constexpr float cosine2 = floatOf(0xBAB60B60u);  // -0.0013888888
inline constexpr float cosine3 = floatOf(0x37D00AD5u);  // 2.4800576e-05
inline constexpr float cosine4 = floatOf(0xB4928E05u);  // -2.7297952e-07

// The selections in what follows are masks: which case an angle is depends on the end of a long reduction, and a branch
// on it, as good as random, would hold up everything behind.

// sin(a + b) for a pair whose b is small against a: sin a + b cos a, with cos a = 1 - z/2. Every term that contains b
// is added to the small correction and not to a.
ZTHALF_INLINE float sinPoly(float a, float b) {
  const float z = a * a;
  const float v = a * z;
  const float r = z * (z * sine4 + sine3) + sine2;
  const float sine = a - (v * -sine1 + (z * (b * 0.5f - v * r) - b));
  return floatOf(zthalf::select(zthalf::maskOf<std::uint32_t>(magnitudeOf(a) < tinyAngle), bitsOf(a), bitsOf(sine)));
}

// sin a for a single float.
inline float sinPoly(float a) {
  if (magnitudeOf(a) < tinyAngle) return a;
  const float z = a * a;
  return a + (a * z) * (z * (z * (z * sine4 + sine3) + sine2) + sine1);
}

// cos(a + b) = cos a - a b. From 0.3 on 1 - z/2 would be rounded too coarsely. There 1 - h comes first, exact since h
// has few bits, and z/2 - h, at most 0.11 in size, is subtracted with the rest: h is about |a|/4, and 0.28125 above
// 0.78125. A tiny angle gives 1 in the same way.
ZTHALF_INLINE float cosPoly(float a, float b) {
  const float magnitude = magnitudeOf(a);
  const float z = a * a;
  const float c = z * (z * (z * cosine4 + cosine3) + cosine2) + cosine1;
  const float q = z * (z * c) - a * b;
  const float quarter = upperHalf(magnitude) * 0.25f;
  const auto isLarge = zthalf::maskOf<std::uint32_t>(magnitude > 0.78125f);
  const auto isSmall = zthalf::maskOf<std::uint32_t>(magnitude < floatOf(0x3E99999Au));  // 0.3
  const float h = floatOf(zthalf::select(isLarge, bitsOf(0.28125f), bitsOf(quarter)) & ~isSmall);
  return (1.0f - h) - ((z * 0.5f - h) - q);
}

// sin and cos of n pi/2 + upper + lower, which are no NaNs.
ZTHALF_INLINE float sinQuadrant(reducedAngle const& y) {
  const auto n = static_cast<std::uint32_t>(y.n);
  const float sine = sinPoly(y.upper, y.lower);
  const float cosine = cosPoly(y.upper, y.lower);
  return floatOf(zthalf::select(0 - (n & 1), bitsOf(cosine), bitsOf(sine)) ^ (n & 2) << 30);
}

ZTHALF_INLINE float cosQuadrant(reducedAngle const& y) { return sinQuadrant({y.n + 1, y.upper, y.lower}); }

}  // namespace qsl_scalar
