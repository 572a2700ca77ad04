#include "scalar/kernels/hypot_double.h"

#include <cmath>
#include <cstdint>

#include "core/nan_policy.h"
#include "scalar/kernels/double_fields.h"

namespace qsl_scalar {

// Let a >= b be the magnitudes, scaled so that no square overflows or underflows. A plain sqrt(a^2 + b^2) loses up to
// one unit in the last place; here the large part of the sum under the root is exact, by splitting off 21 bits:
//
//   a > 2b:     a^2 + b^2 = A^2 + (b^2 + (a - A)(a + A))                         A: the upper half of a
//   otherwise:  a^2 + b^2 = 2a b + (a - b)^2
//                         = T B + ((a - b)^2 + (T (b - B) + b (2a - T)))         T: the upper half of 2a, B: that of b
//
// The products A^2 and T B are exact, and the root is correctly rounded.
//
// Scaling by 2^600 keeps both squares in range: downwards from a = 2^500 on, upwards for b below 2^-500. A subnormal b
// is scaled by 2^1022, and there the splits A, T and B are left at their unscaled values. They are tiny then, the exact
// products vanish, and the bracket carries all: still below one unit, and part of the defined result.
//
// From a/b = 2^60 on b no longer reaches the result, and the sum a + b is a.
double hypotDouble(double u, double v) {
  using namespace doubles;
  constexpr std::int32_t scalingSteps = 600 * exponentStep;
  constexpr std::int32_t above2To500 = 0x5F300001;
  constexpr std::int32_t from2ToMinus500 = 0x20B00000;
  constexpr std::int32_t beyond2To60 = 0x03C00001;
  constexpr double subnormalScale = zthalf::doubleOf(0x7FD0000000000000u);  // 2^1022
  constexpr double subnormalUnscale = 0x1p-1022;

  const double p = magnitudeOf(u);
  if (v == 0.0) return p;
  const double q = magnitudeOf(v);
  if (!(p <= largestFinite) || !(q <= largestFinite)) return zthalf::settled(p + q, p, q);

  double a = q > p ? q : p;
  double b = q > p ? p : q;
  std::int32_t highA = highWordOf(a);
  std::int32_t highB = highWordOf(b);
  if (highA - highB >= beyond2To60) return a + b;

  double unscale = 1.0;
  std::int32_t steps = 0;
  if (highA >= above2To500) {
    steps = -scalingSteps;
    unscale = 0x1p600;
  } else if (highB < from2ToMinus500 && highB >= exponentStep) {
    steps = scalingSteps;
    unscale = 0x1p-600;
  }
  if (steps != 0) {
    highA += steps;
    highB += steps;
    a = highWordRaised(a, steps);
    b = highWordRaised(b, steps);
  } else if (highB < exponentStep) {
    if (b == 0.0) return a;
    a *= subnormalScale;
    b *= subnormalScale;
    unscale = subnormalUnscale;
  }

  const double difference = a - b;
  double square;
  if (difference > b) {
    const double upperA = fromHighWord(highA);
    square = upperA * upperA - (b * -b - (a - upperA) * (a + upperA));
  } else {
    const double upperB = fromHighWord(highB);
    const double upperTwiceA = fromHighWord(highA + exponentStep);
    const double lowerTwiceA = (a + a) - upperTwiceA;
    const double cross = (b - upperB) * upperTwiceA + b * lowerTwiceA;
    square = upperB * upperTwiceA - (difference * -difference - cross);
  }
  return std::sqrt(square) * unscale;
}

}  // namespace qsl_scalar
