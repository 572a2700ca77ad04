#include "scalar/kernels/cplx_tan_single.h"

#include "scalar/kernels/real_kernels.h"
#include "scalar/kernels/tan_single.h"
#include "scalar/kernels/tanh_single.h"

namespace qsl_scalar {

namespace {

// (p + i q) / (1 + i w) for w = -p q under the tangent, (p + i q) / (1 + i w) for w = p q under the hyperbolic one: the
// real and the imaginary part of a result whose own parts have the tangents p and q.
//
//   w = 0     p + i q, with +0 beside a part of zero
//   |w| < 1   d = 1 + w^2:               (p + w q) / d,     (q - p w) / d
//   |w| = 1   d = 2:                     p/2 +- q/2,        q/2 -+ p/2
//   |w| > 1   divided by w, r = 1/w, so that w^2 does not overflow:
//             e = w + r:                 (q + p r) / e,     (q r - p) / e
//
// A NaN goes the last way.
template <class Unit>
complexOf<float> tangentOfSum(float p, float q, float w) {
  if (w == 0.0f) return {q != 0.0f && p == 0.0f ? 0.0f : p, q == 0.0f ? 0.0f : q};
  const float magnitude = magnitudeOf(w);
  if (magnitude < 1.0f) {
    const float d = w * w + 1.0f;
    return {(p + w * q) / d, (q - p * w) / d};
  }
  if (magnitude == 1.0f) {
    const float half = withSignOf(0.5f, w);
    return {p * 0.5f + half * q, q * 0.5f - p * half};
  }
  const float r = Unit::quotient(1.0f, w);
  const float e = Unit::sum(w, r);
  return {Unit::quotient(Unit::sum(q, Unit::product(p, r)), e),
          Unit::quotient(Unit::difference(Unit::product(q, r), p), e)};
}

}  // namespace

complexOf<float> cplxTanSingle(complexOf<float> z) {
  const float tangent = tanSingle(z.re);
  if (z.im == 0.0f) return {tangent, 0.0f};
  const float hyperbolic = tanhSingle(z.im);
  return zthalf::onCalledUnit([=]<class Unit>(Unit) {
    const float w = Unit::product(hyperbolic, zthalf::withSignFlipped(tangent));
    return tangentOfSum<Unit>(tangent, hyperbolic, w);
  });
}

complexOf<float> cplxTanhSingle(complexOf<float> z) {
  const float hyperbolic = tanhSingle(z.re);
  if (z.im == 0.0f) return {hyperbolic, 0.0f};
  const float tangent = tanSingle(z.im);
  return zthalf::onCalledUnit(
      [=]<class Unit>(Unit) { return tangentOfSum<Unit>(hyperbolic, tangent, Unit::product(tangent, hyperbolic)); });
}

}  // namespace qsl_scalar
