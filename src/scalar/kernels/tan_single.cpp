#include "scalar/kernels/tan_single.h"

#include "scalar/kernels/float_fields.h"
#include "scalar/kernels/pi_constants.h"
#include "scalar/kernels/rem_pio2_single.h"

namespace qsl_scalar {

namespace {

// tan a = a + tangent1 a^3 + a^5 p(a^2) on |a| up to 0.6744, p of degree 4 and split into its even and odd powers; the
// coefficients are near 1/3, 2/15, 17/315, 62/2835, ..., and fitted.
constexpr float tangent1 = floatOf(0x3EAAAAAAu);  // 0.3333333
constexpr float tangent2 = floatOf(0x3E088913u);  // 0.1333354
constexpr float tangent3 = floatOf(0x3D5CD8E8u);  // 0.053917795
constexpr float tangent4 = floatOf(0x3CB6D1BCu);  // 0.022316806
constexpr float tangent5 = floatOf(0x3BE8E61Au);  // 0.0071075084
constexpr float tangent6 = floatOf(0x3BD7F1BAu);  // 0.0065900953

constexpr std::uint32_t tiny = 0x31800016u;     // 3.7253e-09: below it tan a rounds to a
constexpr std::uint32_t nearEnd = 0x3F2CA579u;  // 0.6743999: above it the argument is reflected at pi/4

// What a function of the reduced angle is asked for: the tangent, or, an odd multiple of pi/2 having been taken away,
// minus its reciprocal.
enum class quantity { tangent, minusCotangent };

// tan(a + b) or -1 / tan(a + b) for a pair whose b is small against a.
//
// Towards the end of the interval the argument becomes c = pi/4 - |a + b|, and with t = tan c = c + R
//   tan(pi/4 - c) = (1 - t) / (1 + t) = 1 - 2 (c - (t^2 / (t + 1) - R)),
// and in the same way for the reciprocal with -1 in the place of 1.
//
// -1 / t is formed in two parts, since t is not known to single precision only: with g = -1 / t rounded, and t and g
// cut to parts whose product is exact, g + g (1 + t g) is the corrected reciprocal.
float tanPoly(float a, float b, quantity wanted) {
  const bool isTangent = wanted == quantity::tangent;
  const std::uint32_t magnitude = magnitudeBitsOf(a);
  if (magnitude < tiny) {
    if (isTangent) return a;
    return magnitude == 0 ? infinity : -1.0f / a;
  }

  const bool isNegative = hasSign(a);
  const bool isTurned = magnitude > nearEnd;
  if (isTurned) {
    a = (quarterPiUpper - magnitudeOf(a)) + (quarterPiLower - (isNegative ? -b : b));
    b = 0.0f;
  }

  const float z = a * a;
  const float v = a * z;
  const float w = z * z;
  const float odd = z * (w * tangent5 + tangent3);
  const float even = w * (w * tangent6 + tangent4) + tangent2;
  const float rest = v * tangent1 + (b + z * (b + v * (odd + even)));
  const float t = a + rest;

  if (isTurned) {
    const float unit = isTangent ? 1.0f : -1.0f;
    const float d = a - ((t * t) / (t + unit) - rest);
    return (unit - (d + d)) * (isNegative ? -1.0f : 1.0f);
  }
  if (isTangent) return t;

  const float g = -1.0f / t;
  const float upperT = upperHalf(t);
  const float upperG = upperHalf(g);
  const float lowerT = rest - (upperT - a);
  return g * ((upperT * upperG + 1.0f) + lowerT * upperG) + upperG;
}

}  // namespace

// tan(a + pi/2) = -1 / tan a, so the parity of the reduction's n decides. An infinity or a NaN ends with the NaN of the
// reduction as it is.
float tanSingle(float x) {
  if (magnitudeOf(x) <= quarterPiUpper) return tanPoly(x, 0.0f, quantity::tangent);
  const reducedAngle y = remPio2Single(x);
  if (y.upper != y.upper) return y.upper;
  return tanPoly(y.upper, y.lower, (y.n & 1) == 0 ? quantity::tangent : quantity::minusCotangent);
}

}  // namespace qsl_scalar
