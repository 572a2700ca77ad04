#include "scalar/kernels/tanh_single.h"

#include "scalar/kernels/expm1_single.h"
#include "scalar/kernels/float_fields.h"

namespace qsl_scalar {

namespace {

// a - a^3/3 + 2 a^5/15 - 17 a^7/315, the first terms of the Taylor series, nested as
//   a (1 - z/3 (1 + z/5 (17 z/21 - 2))), z = a^2.
// The divisions are divisions: a product with a rounded third would not give the same bits.
float series(float a) {
  const float z = a * a;
  const float inner = z * 17.0f / 21.0f + -2.0f;
  const float middle = z * inner / 5.0f + 1.0f;
  return (z * middle / 3.0f + -1.0f) * -a;
}

float tanhOfMagnitude(float a) {
  if (a < 0.125f) return series(a);
  if (a < 1.0f) {
    const float t = expm1Single(a * -2.0f);
    return -t / (t + 2.0f);
  }
  if (a < 9.125f) return 1.0f - 2.0f / (expm1Single(a + a) + 2.0f);
  return 1.0f;
}

}  // namespace

// With t = exp(-2a) - 1, tanh a = -t / (t + 2) where t is small, and with t = exp(2a) - 1, 1 - 2 / (t + 2) where it is
// large. From 9.125 on the result rounds to 1.
//
// The NaN is the positive one, by definition and unlike that of the other functions here.
float tanhSingle(float x) {
  if (x != x) return floatOf(0x7FC00000u);
  const float a = magnitudeOf(x);
  if (a < 0x1p-55f) return x;
  const float r = tanhOfMagnitude(a);
  return x > 0.0f ? r : -r;
}

}  // namespace qsl_scalar
