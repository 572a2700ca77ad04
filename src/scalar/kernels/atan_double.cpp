#include "scalar/kernels/atan_double.h"

#include "core/bits.h"
#include "scalar/kernels/double_fields.h"

namespace qsl_scalar {

namespace {

using zthalf::doubleOf;

constexpr double halfPi = doubleOf(0x3FF921FB54442D18u);  // 1.5707963267948966

// The reference points atan(c) in two parts, the upper one rounded and the lower one its error.
struct referencePoint {
  double upper;
  double lower;
};
constexpr referencePoint atHalf = {doubleOf(0x3FDDAC670561BB4Fu),          // 0.4636476090008061
                                   doubleOf(0x3C7A2B7F222F65E2u)};         // 2.2698777452961687e-17
constexpr referencePoint atOne = {doubleOf(0x3FE921FB54442D18u),           // 0.7853981633974483
                                  doubleOf(0x3C81A62633145C07u)};          // 3.061616997868383e-17
constexpr referencePoint atThreeHalves = {doubleOf(0x3FEF730BD281F69Bu),   // 0.982793723247329
                                          doubleOf(0x3C7007887AF0CBBDu)};  // 1.3903311031230998e-17
constexpr referencePoint atInfinity = {halfPi,                             // 1.5707963267948966
                                       doubleOf(0x3C91A62633145C07u)};     // 6.123233995736766e-17

// a - atan(a) for |a| up to 7/16: a times a fitted polynomial in z = a^2 near z/3 - z^2/5 + z^3/7 - ..., its odd and
// even powers of z summed apart, so that the two chains run side by side.
double belowArgument(double a) {
  const double z = a * a;
  const double w = z * z;
  double odd = doubleOf(0x3F90AD3AE322DA11u);       // 0.016285820115365782
  odd = odd * w + doubleOf(0x3FA97B4B24760DEBu);    // 0.049768779946159324
  odd = odd * w + doubleOf(0x3FB10D66A0D03D51u);    // 0.06661073137387531
  odd = odd * w + doubleOf(0x3FB745CDC54C206Eu);    // 0.09090887133436507
  odd = odd * w + doubleOf(0x3FC24924920083FFu);    // 0.14285714272503466
  odd = odd * w + doubleOf(0x3FD555555555550Du);    // 0.3333333333333293
  double even = doubleOf(0xBFA2B4442C6A6C2Fu);      // -0.036531572744216916
  even = even * w + doubleOf(0xBFADDE2D52DEFD9Au);  // -0.058335701337905735
  even = even * w + doubleOf(0xBFB3B0F2AF749A6Du);  // -0.0769187620504483
  even = even * w + doubleOf(0xBFBC71C6FE231671u);  // -0.11111110405462356
  even = even * w + doubleOf(0xBFC999999998EBC4u);  // -0.19999999999876483
  return a * (w * even + z * odd);
}

}  // namespace

// With t = |x| and a reference point c, atan(t) = atan(c) + atan((t - c) / (1 + c t)):
//
//   t in [0, 7/16)        no reduction
//     [7/16, 11/16)       c = 1/2       a = (2t - 1) / (2 + t)
//     [11/16, 19/16)      c = 1         a = (t - 1) / (t + 1)
//     [19/16, 39/16)      c = 3/2       a = (t - 3/2) / (1 + 3t/2)
//     [39/16, 2^66)       c = infinity  a = -1/t
//
// so that the reduced argument is at most 7/16 in magnitude. From 2^66 on nothing is left of 1/x beside pi/2; below
// 2^-29 nothing of x^3/3 beside x.
double atanDouble(double x) {
  using namespace doubles;
  if (x != x) return domainNaN;
  const double t = magnitudeOf(x);
  if (t >= 0x1p66) return hasSign(x) ? -halfPi : halfPi;
  if (t < 0x1p-29) return x;
  if (t < 0.4375) return x - belowArgument(x);

  double a;
  referencePoint reference;
  if (t < 0.6875) {
    a = ((t + t) + -1.0) / (t + 2.0);
    reference = atHalf;
  } else if (t < 1.1875) {
    a = (t + -1.0) / (t + 1.0);
    reference = atOne;
  } else if (t < 2.4375) {
    a = (t + -1.5) / (t * 1.5 + 1.0);
    reference = atThreeHalves;
  } else {
    a = -1.0 / t;
    reference = atInfinity;
  }
  const double angle = reference.upper - ((belowArgument(a) - reference.lower) - a);
  return hasSign(x) ? -angle : angle;
}

}  // namespace qsl_scalar
