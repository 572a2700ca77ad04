#include "scalar/kernels/sincos_double.h"

#include "scalar/kernels/double_fields.h"
#include "scalar/kernels/rem_pio2_double.h"

namespace qsl_scalar {

namespace {

using zthalf::doubleOf;

// sin(a + b) for a pair whose b is small against a: a + a^3 (sine1 + sine2 z + ...) + b cos a, z = a^2, on |a| up to
// pi/4. The coefficients are near -1/3!, 1/5!, -1/7!, ... and fitted.
double sinPoly(double a, double b) {
  constexpr double sine1 = doubleOf(0xBFC5555555555549u);  // -0.16666666666666632
  constexpr double sine2 = doubleOf(0x3F8111111110F8A6u);  // 0.00833333333332249
  constexpr double sine3 = doubleOf(0xBF2A01A019C161D5u);  // -0.00019841269829857949
  constexpr double sine4 = doubleOf(0x3EC71DE357B1FE7Du);  // 2.7557313707070068e-06
  constexpr double sine5 = doubleOf(0xBE5AE5E68A2B9CEBu);  // -2.5050760253406863e-08
  constexpr double sine6 = doubleOf(0x3DE5D93A5ACFD57Cu);  // 1.58969099521155e-10
  const double z = a * a;
  const double v = a * z;
  const double r = z * (z * (z * (z * sine6 + sine5) + sine4) + sine3) + sine2;
  return a - ((z * (b * 0.5 - v * r) - b) - v * sine1);
}

// cos(a + b) = 1 - z/2 + z^2 (cosine1 + cosine2 z + ...) - a b: 1 - z/2 first, and what its rounding dropped after.
double cosPoly(double a, double b) {
  constexpr double cosine1 = doubleOf(0x3FA555555555554Cu);  // 0.0416666666666666
  constexpr double cosine2 = doubleOf(0xBF56C16C16C15177u);  // -0.001388888888887411
  constexpr double cosine3 = doubleOf(0x3EFA01A019CB1590u);  // 2.480158728947673e-05
  constexpr double cosine4 = doubleOf(0xBE927E4F809C52ADu);  // -2.7557314351390663e-07
  constexpr double cosine5 = doubleOf(0x3E21EE9EBDB4B1C4u);  // 2.087572321298175e-09
  constexpr double cosine6 = doubleOf(0xBDA8FAE9BE8838D4u);  // -1.1359647557788195e-11
  const double z = a * a;
  const double r = z * (z * (z * (z * (z * (z * cosine6 + cosine5) + cosine4) + cosine3) + cosine2) + cosine1);
  const double h = z * 0.5;
  const double w = 1.0 - h;
  return w + (((1.0 - w) - h) + (z * r - a * b));
}

}  // namespace

// As in single precision: up to pi/4 directly, above by the quarter turn that the angle is in.
sineAndCosine<double> sincosDouble(double x) {
  constexpr double quarterPi = doubleOf(0x3FE921FB54442D18u);  // 0.7853981633974483
  const double magnitude = doubles::magnitudeOf(x);
  if (!(magnitude <= doubles::largestFinite)) return {doubles::domainNaN, doubles::domainNaN};
  if (magnitude < 0x1p-27) return {x, 1.0};
  if (magnitude <= quarterPi) return {sinPoly(x, 0.0), cosPoly(x, 0.0)};

  const reducedAngleDouble y = remPio2Double(x);
  const double sine = sinPoly(y.upper, y.lower);
  const double cosine = cosPoly(y.upper, y.lower);
  switch (y.n & 3) {
    case 0:
      return {sine, cosine};
    case 1:
      return {cosine, -sine};
    case 2:
      return {-sine, -cosine};
    default:
      return {-cosine, sine};
  }
}

}  // namespace qsl_scalar
