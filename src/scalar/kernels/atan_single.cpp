#include "scalar/kernels/atan_single.h"

#include "scalar/kernels/float_fields.h"
#include "scalar/kernels/pi_constants.h"

namespace qsl_scalar {

namespace {

// atan c for the centres c = 1/2, 1, 3/2 and infinity, in two parts.
struct centre {
  float upper;
  float lower;
};

constexpr centre half = {floatOf(0x3EED6000u), floatOf(0x37CE0AC3u)};         // 0.46362305, 2.4562125e-05
constexpr centre one = {floatOf(0x3F490000u), floatOf(0x397DAA22u)};          // 0.78515625, 0.0002419134
constexpr centre threeHalves = {floatOf(0x3F7B9000u), floatOf(0x3905E941u)};  // 0.982666, 0.00012770762
constexpr centre unbounded = {floatOf(0x3FC90000u), floatOf(0x39FDAA22u)};    // 1.5703125, 0.0004838268

// a - atan a = a R on |a| up to 0.4375, R = a^2/3 - a^4/5 + a^6/7 - ..., fitted, and split into its even and odd powers
// of z = a^2.
float tail(float a) {
  constexpr float a1 = floatOf(0x3EAAAAAAu);  // 0.3333333
  constexpr float a2 = floatOf(0xBE4CCB05u);  // -0.19999321
  constexpr float a3 = floatOf(0x3E11FCE2u);  // 0.14256623
  constexpr float a4 = floatOf(0xBDDA7B04u);  // -0.106679946
  constexpr float a5 = floatOf(0x3D7E7ADEu);  // 0.062128894
  const float z = a * a;
  const float w = z * z;
  return a * (w * (w * a4 + a2) + z * (w * (w * a5 + a3) + a1));
}

// atan t = atan c + atan a with a = (t - c) / (1 + c t).
float around(centre const& c, float a) { return c.upper - ((tail(a) - c.lower) - a); }

// For a magnitude of at least 0.4375: the nearest centre, so that |a| is at most 7/16.
float atanOfLarge(float t) {
  if (t < 0.6875f) return around(half, ((t + t) + -1.0f) / (t + 2.0f));
  if (t < 1.1875f) return around(one, (t + -1.0f) / (t + 1.0f));
  if (t < 2.4375f) return around(threeHalves, (t + -1.5f) / (t * 1.5f + 1.0f));
  return around(unbounded, -1.0f / t);
}

}  // namespace

// From 2^66 on nothing is left of 1/x beside pi/2; below 2^-29 nothing of x^3/3 beside x.
float atanSingle(float x) {
  const float magnitude = magnitudeOf(x);
  if (x != x) return domainNaN;
  if (magnitude >= 0x1p66f) return hasSign(x) ? -halfPiUpper : halfPiUpper;
  if (magnitude < 0.4375f) return magnitude < 0x1p-29f ? x : x - tail(x);
  const float angle = atanOfLarge(magnitude);
  return hasSign(x) ? -angle : angle;
}

}  // namespace qsl_scalar
