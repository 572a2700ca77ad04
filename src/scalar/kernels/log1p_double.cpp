#include "scalar/kernels/log1p_double.h"

#include "scalar/kernels/double_fields.h"
#include "scalar/kernels/logarithm_double_constants.h"

namespace qsl_scalar {

// As in single precision: u = 1 + x = 2^k (1 + f), and what the rounding of u lost, relative to u, is added to the
// lower part of k ln 2. Between sqrt(1/2) - 1 and sqrt(2) - 1 nothing is rounded: k = 0 and f = x. Below 2^-29 the
// first two terms are the result, below 2^-54 the first. From 2^53 on 1 + x is x.
double log1pDouble(double x) {
  using namespace doubles;
  constexpr std::int32_t fractionOfRootTwo = 0x6A09E;  // the 20 leading fraction bits of 1.41421
  if (x == infinity || (x != x && !hasSign(x))) return x;
  if (!(x > -1.0)) return x == -1.0 ? -infinity : domainNaN;

  const double magnitude = magnitudeOf(x);
  if (magnitude < 0x1p-54) return x;
  if (magnitude < 0x1p-29) return x - (x * x) * 0.5;

  double k = 0.0;
  double f = x;
  double lost = 0.0;
  if (x < -0.29289 || x > 0.41421) {
    const double u = x < 0x1p53 ? 1.0 + x : x;
    if (x < 0x1p53) lost = (x > 1.0 ? 1.0 - (u - x) : x - (u - 1.0)) / u;
    const std::int32_t high = highWordOf(u);
    const std::int32_t field = (high >> 20) + ((high & 0xFFFFF) > fractionOfRootTwo);
    k = field - 1023;
    f = highWordRaised(u, (1023 - field) * exponentStep) - 1.0;
    if (f == 0.0) return k * ln2Upper + (lost + k * ln2Lower);
  }
  const double s = f / (f + 2.0);
  const double halfSquare = f * (f * 0.5);
  const double product = s * (halfSquare + logarithmSeries(s * s));
  return k * ln2Upper - ((halfSquare - ((lost + k * ln2Lower) + product)) - f);
}

}  // namespace qsl_scalar
