#include "scalar/kernels/atan2_double.h"

#include <cstdint>

#include "core/bits.h"
#include "scalar/kernels/atan_double.h"
#include "scalar/kernels/double_fields.h"

namespace qsl_scalar {

// In the right half plane the angle is +-atan|y/x|; in the left one it is pi less that, with pi in two parts. Where the
// quotient is beyond 2^60 the angle is pi/2 to the last place, and in the left half plane one below 2^-60 vanishes
// beside pi; neither is divided.
//
// The order of the special cases matters where several hold: a NaN before all, then x = 1, where the quotient is y
// itself, then a zero y, then the infinities, and last a zero x.
double atan2Double(double y, double x) {
  using namespace doubles;
  using zthalf::doubleOf;
  constexpr double pi = doubleOf(0x400921FB54442D18u);               // 3.141592653589793
  constexpr double halfPi = doubleOf(0x3FF921FB54442D18u);           // 1.5707963267948966
  constexpr double quarterPi = doubleOf(0x3FE921FB54442D18u);        // 0.7853981633974483
  constexpr double threeQuartersPi = doubleOf(0x4002D97C7F3321D2u);  // 2.356194490192345
  constexpr double minusPiLower = doubleOf(0xBCA1A62633145C07u);     // -1.2246467991473532e-16, pi's double less pi
  constexpr std::int32_t from2To61 = 0x3D00000;                      // differences of the high words
  constexpr std::int32_t below2ToMinus60 = -0x3C00000;

  if (x != x || y != y) return domainNaN;
  if (x == 1.0) return atanDouble(y);

  const bool isBelow = hasSign(y);
  const bool isLeft = hasSign(x);
  if (y == 0.0) {
    if (x == 0.0) return 0.0;
    if (!isLeft) return y;
    return isBelow ? -pi : pi;
  }
  const double magnitudeX = magnitudeOf(x);
  const double magnitudeY = magnitudeOf(y);
  if (magnitudeX == infinity) {
    double angle = isLeft ? pi : 0.0;
    if (magnitudeY == infinity) angle = isLeft ? threeQuartersPi : quarterPi;
    return isBelow ? -angle : angle;
  }
  if (x == 0.0 || magnitudeY == infinity) return isBelow ? -halfPi : halfPi;

  const std::int32_t distance = highWordOf(magnitudeY) - highWordOf(magnitudeX);
  double angle;
  if (distance >= from2To61) {
    angle = halfPi;
  } else if (isLeft && distance < below2ToMinus60) {
    angle = 0.0;
  } else {
    angle = atanDouble(magnitudeOf(y / x));
  }
  if (!isLeft) return isBelow ? -angle : angle;
  return isBelow ? (angle + minusPiLower) + -pi : pi - (angle + minusPiLower);
}

}  // namespace qsl_scalar
