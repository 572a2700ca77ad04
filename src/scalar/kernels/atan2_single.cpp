#include "scalar/kernels/atan2_single.h"

#include <cstdint>

#include "scalar/kernels/atan_single.h"
#include "scalar/kernels/float_fields.h"
#include "scalar/kernels/pi_constants.h"

namespace qsl_scalar {

// In the right half plane the angle is +-atan|y/x|; in the left one it is pi less that, with pi in two parts. Where the
// quotient is beyond 2^60 the angle is pi/2 to the last place, and in the left half plane one below 2^-60 vanishes
// beside pi; neither is divided.
//
// The order of the special cases matters where several hold: a NaN before all, then x = 1, where the quotient is y
// itself, then a zero y, then the infinities, and last a zero x.
float atan2Single(float y, float x) {
  constexpr float threeQuartersPi = floatOf(0x4016CBE4u);  // 2.356194496154785
  constexpr std::int32_t from2To61 = 0x1E800000;           // differences of the patterns
  constexpr std::int32_t below2ToMinus60 = -0x1E000000;

  if (x != x || y != y) return domainNaN;
  if (x == 1.0f) return atanSingle(y);

  const bool isBelow = hasSign(y);
  const bool isLeft = hasSign(x);
  if (y == 0.0f) {
    if (x == 0.0f) return 0.0f;
    if (!isLeft) return y;
    return isBelow ? -piUpper : piUpper;
  }
  const float magnitudeX = magnitudeOf(x);
  const float magnitudeY = magnitudeOf(y);
  if (magnitudeX == infinity) {
    float angle = isLeft ? piUpper : 0.0f;
    if (magnitudeY == infinity) angle = isLeft ? threeQuartersPi : quarterPiUpper;
    return isBelow ? -angle : angle;
  }
  if (x == 0.0f || magnitudeY == infinity) return isBelow ? -halfPiUpper : halfPiUpper;

  const std::int32_t distance = signedBitsOf(magnitudeY) - signedBitsOf(magnitudeX);
  float angle;
  if (distance >= from2To61) {
    angle = halfPiUpper;
  } else if (isLeft && distance < below2ToMinus60) {
    angle = 0.0f;
  } else {
    angle = atanSingle(magnitudeOf(y / x));
  }
  if (!isLeft) return isBelow ? -angle : angle;
  return isBelow ? (angle - piLower) + -piUpper : piUpper - (angle - piLower);
}

}  // namespace qsl_scalar
