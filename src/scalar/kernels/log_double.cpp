#include "scalar/kernels/log_double.h"

#include "scalar/kernels/double_fields.h"
#include "scalar/kernels/logarithm_double_constants.h"

namespace qsl_scalar {

// x = 2^k (1 + f) with 1 + f in about [0.707, 1.414), so that f is exact, and ln x = k ln 2 + ln(1 + f). With
// s = f / (2 + f), h = f^2 / 2 and the even series R(s), ln(1 + f) = f - (h - s (h + R)). k ln 2 enters in two parts,
// the exact upper one last. A subnormal is scaled by 2^54 first.
double logDouble(double x) {
  using namespace doubles;
  constexpr std::int32_t fractionOfRootTwo = 0x6A09E;  // the 20 leading fraction bits of 1.41421
  if (magnitudeOf(x) == 0.0) return -infinity;
  if (hasSign(x)) return domainNaN;
  if (!(x <= largestFinite)) return x;

  const bool isSubnormal = highWordOf(x) < exponentStep;
  const double v = isSubnormal ? x * 0x1p54 : x;
  const std::int32_t high = highWordOf(v);
  const bool isUpper = (high & 0xFFFFF) > fractionOfRootTwo;
  const std::int32_t field = (high >> 20) + isUpper;
  const double k = field - (isSubnormal ? 1077 : 1023);
  const double f = highWordRaised(v, (1023 - field) * exponentStep) - 1.0;
  if (f == 0.0) return k * ln2Upper + k * ln2Lower;

  const double s = f / (f + 2.0);
  const double halfSquare = f * (f * 0.5);
  const double product = s * (halfSquare + logarithmSeries(s * s));
  return k * ln2Upper - ((halfSquare - (product + k * ln2Lower)) - f);
}

}  // namespace qsl_scalar
