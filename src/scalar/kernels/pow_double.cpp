#include "scalar/kernels/pow_double.h"

#include <cmath>
#include <cstdint>

#include "core/bits.h"
#include "scalar/kernels/double_fields.h"
#include "scalar/kernels/square_root.h"

namespace qsl_scalar {

namespace {

using namespace doubles;
using zthalf::doubleOf;

// A number as the sum of two doubles. Where an upper part has a low word of zero, its products with others of that kind
// are exact.
struct split {
  double upper;
  double lower;
};

// From 2^53 on every double is an even integer.
bool isOdd(double whole) { return whole < 0x1p53 && (static_cast<std::int64_t>(whole) & 1) != 0; }

bool isWhole(double magnitude) {
  return magnitude >= 0x1p52 || magnitude == static_cast<double>(static_cast<std::int64_t>(magnitude));
}

// |x| = 1 keeps its magnitude, a smaller one goes to zero and a larger one to infinity, and the reverse for y < 0.
double powerToInfinity(double magnitude, double y) {
  if (magnitude == 1.0) return 1.0;
  return (magnitude > 1.0) == (y > 0.0) ? infinity : 0.0;
}

// |x| = 0, 1 or infinity. A power that is not an integer leaves minus zero positive and, where it is negative,
// -infinity as well.
double powerOfEdge(double x, double magnitude, double y, bool powerIsWhole) {
  const double r = y < 0.0 ? 1.0 / magnitude : magnitude;
  if (!hasSign(x)) return r;
  if (powerIsWhole) return isOdd(magnitudeOf(y)) ? -r : r;
  if (x == -1.0 || (x == -infinity && y > 0.0)) return domainNaN;
  return r;
}

// log2(x) for x within 2^-20 of 1: with t = x - 1, exact,
// log2 x = (t - (t^2/2 - t^3/3 + t^4/4)) / ln 2, and the product of t and 1/ln 2 is carried in two parts.
split logarithmNearOne(double x) {
  constexpr double third = doubleOf(0x3FD5555555555555u);            // 0.3333333333333333
  constexpr double minusInverseLn2 = doubleOf(0xBFF71547652B82FEu);  // -1.4426950408889634
  constexpr double inverseLn2Upper = doubleOf(0x3FF7154760000000u);  // 1.4426950216293335
  constexpr double inverseLn2Lower = doubleOf(0x3E54AE0BF85DDF44u);  // 1.9259629911266175e-08
  const double t = x + -1.0;
  const double w = (t * t) * (0.5 - t * (t * -0.25 + third));
  const double u = t * inverseLn2Upper;
  const double v = t * inverseLn2Lower + w * minusInverseLn2;
  const double upper = upperHalf(u + v);
  return {upper, v - (upper - u)};
}

// s^4 (3/5 + 3/7 s^2 + 3/9 s^4 + ...), with the coefficients fitted for |s| up to 0.1011.
double tailOfLogarithm(double square) {
  double p = doubleOf(0x3FCA7E284A454EEFu);        // 0.20697501780033842
  p = p * square + doubleOf(0x3FCD864A93C9DB65u);  // 0.23066074577556175
  p = p * square + doubleOf(0x3FD17460A91D4101u);  // 0.272728123808534
  p = p * square + doubleOf(0x3FD55555518F264Du);  // 0.33333332981837743
  p = p * square + doubleOf(0x3FDB6DB6DB6FABFFu);  // 0.4285714285785502
  p = p * square + doubleOf(0x3FE3333333333303u);  // 0.5999999999999946
  return (square * square) * p;
}

// x = 2^n a with a in [0.866, 1.732), and a = base (1 + s) / (1 - s) with base 1 below 1.2247 and 1.5 from there, so
// that |s| = |(a - base) / (a + base)| stays below 0.1011. Then
//   log2 x = n + log2(base) + 2/(3 ln 2) s (3 + s^2 + r),   r = s^4 (3/5 + 3/7 s^2 + ...).
// s, the bracket and their product are each carried in two parts; what s leaves out enters r as (s + S)(s - S), S its
// upper half, since the bracket's s^2 is S^2.
split logarithm(double x) {
  constexpr double factor = doubleOf(0x3FEEC709DC3A03FDu);       // 0.9617966939259756, 2/(3 ln 2)
  constexpr double factorUpper = doubleOf(0x3FEEC709E0000000u);  // 0.9617967009544373
  constexpr double factorLower = doubleOf(0xBE3E2FE0145B01F5u);  // -7.028461650952758e-09
  constexpr split log2Of1Point5{doubleOf(0x3FE2B80340000000u),   // 0.5849624872207642
                                doubleOf(0x3E4CFDEB43CFD006u)};  // 1.350039202129749e-08
  constexpr std::int32_t fieldOfOne = 0x3FF00000;
  constexpr std::int32_t fieldOfHalf = 0x3FE00000;
  constexpr std::int32_t rootOfThreeHalves = 0x3988E;  // leading fraction bits of 1.2247
  constexpr std::int32_t rootOfThree = 0xBB67A;        // of 1.7320

  std::int32_t n = -1023;
  if (highWordOf(x) < exponentStep) {
    x = x * 0x1p53;
    n = -1076;
  }
  n += highWordOf(x) >> 20;
  const std::int32_t fraction = highWordOf(x) & (exponentStep - 1);
  const bool aboveOne = fraction >= rootOfThreeHalves && fraction < rootOfThree;
  if (fraction >= rootOfThree) n += 1;
  const std::int32_t word = fraction | (fraction >= rootOfThree ? fieldOfHalf : fieldOfOne);
  const double a = fromWords(word, lowWordOf(x));
  const double base = aboveOne ? 1.5 : 1.0;
  const split logarithmOfBase = aboveOne ? log2Of1Point5 : split{0.0, 0.0};

  const double difference = a - base;
  const double reciprocal = 1.0 / (base + a);
  const double s = difference * reciprocal;
  const double sUpper = upperHalf(s);
  // a + base in two parts; the upper one is formed from the high word of a.
  const double sumUpper = fromHighWord((aboveOne ? 0x40000 : 0) + (word >> 1) + 0x20080000);
  const double sumLower = a - (sumUpper - base);
  const double sLower = reciprocal * ((difference - sumUpper * sUpper) - sumLower * sUpper);

  const double r = (s + sUpper) * sLower + tailOfLogarithm(s * s);
  const double squareUpper = sUpper * sUpper;
  const double bracketUpper = upperHalf((squareUpper + 3.0) + r);
  const double bracketLower = r - ((bracketUpper + -3.0) - squareUpper);

  const double u = sUpper * bracketUpper;
  const double v = sLower * bracketUpper + s * bracketLower;
  const double productUpper = upperHalf(u + v);
  const double productLower = v - (productUpper - u);

  const double z = productUpper * factorUpper;
  const double zLower = logarithmOfBase.lower + (productUpper * factorLower + productLower * factor);
  const auto exponent = static_cast<double>(n);
  const double upper = upperHalf((logarithmOfBase.upper + (z + zLower)) + exponent);
  return {upper, zLower - (((upper - exponent) - logarithmOfBase.upper) - z)};
}

// z - z^2/6 + z^4/360 - ..., fitted for |z| up to 0.35: the t of exp(z) = 1 + z - z t / (t - 2).
double seriesOfExponential(double z) {
  const double square = z * z;
  double p = doubleOf(0x3E66376972BEA4D0u);        // 4.1381367970572385e-08
  p = p * square + doubleOf(0xBEBBBD41C5D26BF1u);  // -1.6533902205465252e-06
  p = p * square + doubleOf(0x3F11566AAF25DE2Cu);  // 6.613756321437934e-05
  p = p * square + doubleOf(0xBF66C16C16BEBD93u);  // -0.0027777777777015593
  p = p * square + doubleOf(0x3FC555555555553Eu);  // 0.16666666666666602
  return z - square * p;
}

// 2^(upper + lower), for a sum in [-1075, 1024]. The nearest integer m of the sum goes into the exponent. For the rest,
// with z = rest * ln 2 in two parts z + w, exp(z) = 1 + (z - (z t / (t - 2) - (w + z w))).
double exponential(split p, double sum) {
  constexpr double ln2 = doubleOf(0x3FE62E42FEFA39EFu);       // 0.6931471805599453
  constexpr double ln2Upper = doubleOf(0x3FE62E4300000000u);  // 0.6931471824645996
  constexpr double ln2Lower = doubleOf(0xBE205C610CA86C39u);  // -1.904654299957768e-09

  const std::int32_t word = highWordOf(sum);
  const std::int32_t magnitude = highWordOfMagnitude(sum);
  std::int32_t m = 0;
  if (magnitude > 0x3FE00000) {  // above 0.5
    // A half is added in the place of its bit, and what stands below the point is cut off.
    const std::int32_t rounded = word + (exponentStep >> ((magnitude >> 20) - 1022));
    const std::int32_t field = (rounded & 0x7FFFFFFF) >> 20;
    const std::int32_t abovePoint = -exponentStep >> (field - 1023);
    m = ((rounded & (exponentStep - 1)) | exponentStep) >> (1043 - field);
    if (word < 0) m = -m;
    p.upper = p.upper - fromHighWord(rounded & abovePoint);
  }
  const double t = upperHalf(p.lower + p.upper);
  const double u = t * ln2Upper;
  const double v = (p.lower - (t - p.upper)) * ln2 + t * ln2Lower;
  const double z = u + v;
  const double w = v - (z - u);
  const double series = seriesOfExponential(z);
  const double r = (z * series) / (series + -2.0) - (w + z * w);
  const double result = (z - r) + 1.0;
  const std::int32_t scaled = highWordOf(result) + m * exponentStep;
  return scaled >= exponentStep ? fromWords(scaled, lowWordOf(result)) : std::scalbn(result, m);
}

// x^y = 2^(y log2 x) for a finite positive x that is not 1, times sign. y is split as well, so that the leading product
// is exact. At the two ends of the exponent range the lower part decides: the sum 1024 still overflows only if what was
// lost in it points up, and the sum -1075 still gives a zero unless it does.
//
// A huge |y| leaves a result of its own only to an x next to 1; other x overflow or vanish. Between 2^31 and 2^64 these
// ends do not look at the sign, though y may be odd there.
double signedPower(double x, double y, double sign) {
  constexpr double hugePower = 0x1p31;
  constexpr double extremePower = 0x1p64;
  constexpr double nextBelowOne = doubleOf(0x3FEFFFFF00000000u);  // 0.9999995231628418
  constexpr double nextAboveOne = doubleOf(0x3FF00000FFFFFFFFu);  // 1.0000009536743162
  constexpr std::int32_t top = 0x40900000;                        // 1024
  constexpr std::int32_t bottom = 0x4090CC00;                     // 1075
  constexpr double margin = doubleOf(0x3C971547652B82FEu);  // 8.008566259537294e-17, from 1024 to the rounding limit

  const double power = magnitudeOf(y);
  if (power > extremePower) return sign * ((x < 1.0) == (y < 0.0) ? infinity : 0.0);
  const bool isHuge = power > hugePower;
  if (isHuge && x < nextBelowOne) return y < 0.0 ? infinity : 0.0;
  if (isHuge && x > nextAboveOne) return y > 0.0 ? infinity : 0.0;
  const split log2X = isHuge ? logarithmNearOne(x) : logarithm(x);

  const double yUpper = upperHalf(y);
  const double lower = log2X.lower * y + (y - yUpper) * log2X.upper;
  const double upper = log2X.upper * yUpper;
  const double sum = upper + lower;
  const std::int32_t word = highWordOf(sum);
  const bool isBare = lowWordOf(sum) == 0;
  if (word >= top) {
    if (word > top || !isBare || lower + margin > sum - upper) return sign * infinity;
  } else if ((word & 0x7FFFFC00) >= bottom) {
    const bool staysAboveZero = word == (bottom | INT32_MIN) && isBare && lower > sum - upper;
    if (!staysAboveZero) return sign * 0.0;
  }
  return exponential({upper, lower}, sum) * sign;
}

}  // namespace

// The order of the cases decides where two of them meet, as in NaN^0 or (-infinity)^0.5.
double powDouble(double x, double y) {
  if (y == 2.0) return x * x;
  if (y == 1.0) return x;
  if (y == 0.0) return x != x ? domainNaN : 1.0;
  if (y == -1.0) return 1.0 / x;
  if (y == 0.5) return squareRoot(x + 0.0);
  if (x != x || y != y) return domainNaN;

  const double magnitude = magnitudeOf(x);
  const double power = magnitudeOf(y);
  if (power == infinity) return powerToInfinity(magnitude, y);
  const bool powerIsWhole = isWhole(power);
  if (magnitude == infinity || magnitude == 0.0 || magnitude == 1.0) {
    return powerOfEdge(x, magnitude, y, powerIsWhole);
  }
  if (x < 0.0 && !powerIsWhole) return domainNaN;
  return signedPower(magnitude, y, x < 0.0 && isOdd(power) ? -1.0 : 1.0);
}

}  // namespace qsl_scalar
