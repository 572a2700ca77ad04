#include "scalar/kernels/asinh_acosh_single.h"

#include "scalar/kernels/float_fields.h"
#include "scalar/kernels/log1p_single.h"
#include "scalar/kernels/log_single.h"
#include "scalar/kernels/logarithm_constants.h"
#include "scalar/kernels/square_root.h"

namespace qsl_scalar {

namespace {

// asinh a = ln(a + sqrt(a^2 + 1)).
//   above 2^15   ln 2a: the one under the root is lost
//   above 2      ln(2a + 1 / (a + sqrt(a^2 + 1)))
//   below        ln(1 + a + a^2 / (1 + sqrt(a^2 + 1))): a is small beside the one, and log1p adds it
float asinhOfMagnitude(float a) {
  if (a > 32768.0f) return logSingle(a) + ln2;
  const float square = a * a;
  const float s = squareRoot(square + 1.0f);
  if (a > 2.0f) return logSingle((a + a) + 1.0f / (a + s));
  return log1pSingle(a + square / (s + 1.0f));
}

}  // namespace

float asinhSingle(float x) {
  const float magnitude = magnitudeOf(x);
  if (magnitudeBitsOf(x) >= exponentBits) return x + x;
  if (magnitude < 0x1p-15f) return x;  // x^3/6 is below the last place of x
  const float result = asinhOfMagnitude(magnitude);
  return hasSign(x) ? -result : result;
}

// acosh x = ln(x + sqrt(x^2 - 1)).
//   from 2^28 on   ln 2x
//   above 2        ln(2x - 1 / (x + sqrt(x^2 - 1)))
//   below          ln(1 + t + sqrt(2t + t^2)), t = x - 1, which is exact
// The first test is on the pattern as an integer: it takes in all that has its sign set.
float acoshSingle(float x) {
  if (signedBitsOf(x) < signedBitsOf(1.0f)) return domainNaN;
  if (exponentFieldOf(x) == 255) return x;
  if (x >= 0x1p28f) return logSingle(x) + ln2;
  if (x == 1.0f) return 0.0f;
  if (x > 2.0f) return logSingle((x + x) + -1.0f / (x + squareRoot(x * x + -1.0f)));
  const float t = x + -1.0f;
  return log1pSingle(t + squareRoot((t + t) + t * t));
}

}  // namespace qsl_scalar
