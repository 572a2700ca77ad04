#include "scalar/kernels/cplx_expm1_single.h"

#include "scalar/kernels/cplx_exp.h"
#include "scalar/kernels/cplx_log.h"
#include "scalar/kernels/cplx_multiply.h"
#include "scalar/kernels/expm1_single.h"

namespace qsl_scalar {

namespace {

// ln(1 + w), w = u + v i, for a small w: from |1 + w|^2 = 1 + (2u + u^2 + v^2) without the rounding of 1 + u. On the
// real axis from -1 on it is the real logarithm.
template <class Unit>
complexOf<float> logOfOnePlus(float u, float v) {
  if (u >= -1.0f && v == 0.0f) return {log1pSingle(u), 0.0f};
  const float above = Unit::sum(Unit::sum(Unit::sum(u, u), Unit::product(u, u)), Unit::product(v, v));
  return {Unit::product(log1pSingle(above), 0.5f), logAngle(complexOf<float>{u + 1.0f, v})};
}

// z / w, for a w that may be real or imaginary: then, and for x = 0, one term only stands in each part. Otherwise by
// the quotient t of the smaller part of w and the larger one, which is no more than 1; for equal magnitudes it is 1 or
// -1.
template <class Unit>
complexOf<float> quotient(complexOf<float> z, complexOf<float> w) {
  const auto [x, y] = z;
  const auto [c, d] = w;
  if (d == 0.0f) return {x == 0.0f ? 0.0f : Unit::quotient(x, c), Unit::quotient(y, c)};
  if (c == 0.0f) return {Unit::quotient(y, d), x == 0.0f ? 0.0f : Unit::quotient(zthalf::withSignFlipped(x), d)};

  const float magnitudeC = magnitudeOf(c);
  const float magnitudeD = magnitudeOf(d);
  if (magnitudeC > magnitudeD) {
    const float t = Unit::quotient(d, c);
    const float e = Unit::sum(c, Unit::product(d, t));
    return {Unit::quotient(Unit::sum(Unit::product(t, y), x), e),
            Unit::quotient(Unit::difference(y, Unit::product(t, x)), e)};
  }
  if (magnitudeC == magnitudeD) {
    const float p = withSignOf(0.5f, c);
    const float q = withSignOf(0.5f, d);
    return {Unit::quotient(Unit::sum(Unit::product(p, x), Unit::product(q, y)), magnitudeC),
            Unit::quotient(Unit::difference(Unit::product(p, y), Unit::product(q, x)), magnitudeC)};
  }
  const float t = Unit::quotient(c, d);
  const float e = Unit::sum(d, Unit::product(c, t));
  return {Unit::quotient(Unit::sum(Unit::product(t, x), y), e),
          Unit::quotient(Unit::difference(Unit::product(t, y), x), e)};
}

// With w = exp(z) - 1 as rounded, exp(z) - 1 = w z / ln(1 + w) to first order: the error of w is in the denominator
// too. Where |re w| is 0.5 or more nothing cancelled, and beyond y = pi/2 the logarithm is not z.
template <class Unit>
complexOf<float> cplxExpm1(complexOf<float> z) {
  const auto [x, y] = z;
  if (y == 0.0f) return {expm1Single(x), 0.0f};
  const complexOf<float> exponential = cplxExpSingle(z);
  const complexOf<float> w = {Unit::sum(exponential.re, -1.0f), exponential.im};
  if (magnitudeOf(w.re) >= 0.5f || magnitudeOf(y) > halfPiUpper) return w;
  const complexOf<float> logarithm = logOfOnePlus<Unit>(w.re, Unit::sum(w.im, 0.0f));
  return cmul<Unit>(w, quotient<Unit>(z, logarithm));
}

}  // namespace

complexOf<float> cplxExpm1Single(complexOf<float> z) {
  return zthalf::onCalledUnit([=]<class Unit>(Unit) { return cplxExpm1<Unit>(z); });
}

}  // namespace qsl_scalar
