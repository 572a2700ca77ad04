#include "scalar/kernels/sinpi_cospi_single.h"

#include <cstdint>

#include "scalar/kernels/pi_constants.h"
#include "scalar/kernels/rem_pio2_single.h"
#include "scalar/kernels/sine_cosine_series.h"

namespace qsl_scalar {

namespace {

// |x| modulo 2 in (-1, 1]. Nothing is rounded: halves and doubles of floats, and differences of neighbours, are exact.
// From 2^24 on every float is an even integer.
float halfTurnsWithin1(float magnitude) {
  if (magnitude >= 0x1p24f) return 0.0f;
  const float r = magnitude - 2.0f * static_cast<float>(static_cast<std::int32_t>(magnitude * 0.5f));
  return r - floatOf(bitsOf(2.0f) & zthalf::maskOf<std::uint32_t>(r > 1.0f));
}

// Multiples of pi/12 have results of their own, since pi r is rounded and would spoil the exact ones among them. The
// test is on the rounded product: a float next to 1/12 whose product is a whole number counts as 1/12.
bool isTwelfths(float r) {
  const float twelfths = r * 12.0f;
  return twelfths == static_cast<float>(static_cast<std::int32_t>(twelfths));
}

// sin(k pi / 12) for k from 0 to 6.
constexpr float sines[] = {
    0.0f,
    floatOf(0x3E8483EEu),  // 0.25881904
    0.5f,
    floatOf(0x3F3504F3u),  // 0.70710677
    floatOf(0x3F5DB3D7u),  // 0.86602539
    floatOf(0x3F7746EAu),  // 0.96592581
    1.0f,
};

// For r from 0 to 1.
float sineOfTwelfths(float r) {
  const auto k = static_cast<std::int32_t>(r * 12.0f);
  return sines[k <= 6 ? k : 12 - k];
}

float cosineOfTwelfths(float r) {
  const auto k = static_cast<std::int32_t>(r * 12.0f);
  return k <= 6 ? sines[6 - k] : -sines[k - 6];
}

// pi r as n pi/2 plus an angle of at most pi/4. Multiples of 1/2 are subtracted from r, where that is exact, and what
// is left is multiplied by pi in two parts.
reducedAngle angleOf(float r) {
  const std::int32_t n = static_cast<std::int32_t>(r >= 0.25f) + static_cast<std::int32_t>(r >= 0.75f);
  const float rest = r - 0.5f * static_cast<float>(n);
  return {n, piUpper * rest, piLower * rest};
}

}  // namespace

// The sine is odd and the cosine even, in every bit: signs come in at the end, that of a zero too.

float sinpiSingle(float x) {
  const float magnitude = magnitudeOf(x);
  if (bitsOf(magnitude) >= exponentBits) return domainNaN;
  const float turned = halfTurnsWithin1(magnitude);
  const float r = magnitudeOf(turned);
  const float sine = isTwelfths(r) ? sineOfTwelfths(r) : sinQuadrant(angleOf(r));
  return floatOf(bitsOf(sine) ^ ((bitsOf(x) ^ bitsOf(turned)) & signBit));
}

float cospiSingle(float x) {
  const float magnitude = magnitudeOf(x);
  if (bitsOf(magnitude) >= exponentBits) return domainNaN;
  const float r = magnitudeOf(halfTurnsWithin1(magnitude));
  return isTwelfths(r) ? cosineOfTwelfths(r) : cosQuadrant(angleOf(r));
}

sineAndCosine<float> sincospiSingle(float x) {
  const float magnitude = magnitudeOf(x);
  if (bitsOf(magnitude) >= exponentBits) return {domainNaN, domainNaN};
  const float turned = halfTurnsWithin1(magnitude);
  const float r = magnitudeOf(turned);
  const std::uint32_t sign = (bitsOf(x) ^ bitsOf(turned)) & signBit;
  if (isTwelfths(r)) return {floatOf(bitsOf(sineOfTwelfths(r)) ^ sign), cosineOfTwelfths(r)};
  const reducedAngle y = angleOf(r);
  return {floatOf(bitsOf(sinQuadrant(y)) ^ sign), cosQuadrant(y)};
}

}  // namespace qsl_scalar
