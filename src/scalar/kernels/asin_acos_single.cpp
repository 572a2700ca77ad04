#include "scalar/kernels/asin_acos_single.h"

#include "scalar/kernels/float_fields.h"
#include "scalar/kernels/pi_constants.h"
#include "scalar/kernels/square_root.h"

namespace qsl_scalar {

namespace {

// asin x = x + x r(x^2) on |x| up to 1/2: r as a quotient of two polynomials, fitted.
float series(float z) {
  constexpr float p1 = floatOf(0x3E2AAAABu);  // 0.16666667, near 1/6
  constexpr float p2 = floatOf(0xBDF4B1CBu);  // -0.11947974
  constexpr float p3 = floatOf(0x3BB30EBCu);  // 0.005464403
  constexpr float q1 = floatOf(0xBF955C3Eu);  // -1.1668775
  constexpr float q2 = floatOf(0x3E947AD3u);  // 0.28999957
  const float p = z * (z * (z * p3 + p2) + p1);
  const float q = z * (z * q2 + q1) + 1.0f;
  return p / q;
}

// A square root as root + rest, where root has 12 significant bits, so that root * root is exact.
struct splitRoot {
  float rounded;
  float root;
  float rest;
};

splitRoot splitRootOf(float square) {
  const float rounded = squareRoot(square);
  const float root = upperHalf(rounded);
  return {rounded, root, (square - root * root) / (rounded + root)};
}

// From 1/2 on: asin x = pi/2 - 2 asin s with s = sqrt((1 - x) / 2), which is at most 1/2 again. Close to 1 the angle
// 2 asin s is small beside pi/2 and is subtracted as it is; below 0.975 its leading part is taken from pi/4 first, and
// pi/4 is added last.
float asinOfUpperHalf(float magnitude) {
  const float square = (1.0f - magnitude) * 0.5f;
  const auto [s, root, rest] = splitRootOf(square);
  const float r = series(square);
  if (magnitude < floatOf(0x3F79999Au)) {  // 0.975
    const float correction = (s + s) * r - (-halfPiExcess - (rest + rest));
    return ((quarterPiUpper - (root + root)) - correction) + quarterPiUpper;
  }
  const float angle = s + s * r;
  return halfPiUpper - ((angle + angle) + halfPiExcess);
}

}  // namespace

float asinSingle(float x) {
  const float magnitude = magnitudeOf(x);
  if (exponentFieldOf(x) >= 127) {  // 1.0 and above, infinities and NaNs
    return magnitude == 1.0f ? x * halfPiUpper + x * -halfPiExcess : domainNaN;
  }
  if (magnitude >= 0.5f) {
    const float angle = asinOfUpperHalf(magnitude);
    return hasSign(x) ? -angle : angle;
  }
  if (magnitude >= 0x1p-27f) return x + x * series(x * x);
  return x;
}

// Three parts by the value of x, each adding to an angle that is known exactly the smaller one that the series gives:
//   |x| up to 1/2   acos x = pi/2 - (x + x r(x^2))
//   below -1/2      acos x = pi - 2 asin s, s = sqrt((1 + x) / 2)
//   above 1/2       acos x = 2 asin s, s = sqrt((1 - x) / 2); nothing is added, so the root's rounding is made good.
float acosSingle(float x) {
  const float magnitude = magnitudeOf(x);
  if (magnitude <= 0.5f) {
    if (magnitude < 0x1p-57f) return halfPiUpper;
    return ((-halfPiExcess - x * series(x * x)) - x) + halfPiUpper;
  }
  if (magnitude < 1.0f && x < 0.0f) {
    const float square = (x + 1.0f) * 0.5f;
    const float s = squareRoot(square);
    const float angle = s + (s * series(square) + halfPiExcess);
    return piUpper - (angle + angle);
  }
  if (magnitude < 1.0f) {
    const float square = (1.0f - x) * 0.5f;
    const auto [s, root, rest] = splitRootOf(square);
    const float angle = (s * series(square) + rest) + root;
    return angle + angle;
  }
  if (x == 1.0f) return 0.0f;
  return x == -1.0f ? piUpper : domainNaN;
}

}  // namespace qsl_scalar
