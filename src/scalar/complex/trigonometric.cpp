#include "scalar/complex/trigonometric.h"

#include "scalar/complex/called_unit.h"
#include "scalar/kernels/cplx_tan_single.h"
#include "scalar/kernels/pi_constants.h"
#include "scalar/kernels/sin_cos_single.h"
#include "scalar/kernels/sincos_single.h"
#include "scalar/kernels/sinh_cosh_single.h"
#include "scalar/kernels/sinpi_cospi_single.h"

namespace zthalf {

namespace {

using qsl_scalar::coshSingle;
using qsl_scalar::sinhSingle;

// (p1 p2, q1 q2): products of a trigonometric and a hyperbolic factor, with the NaN of the defining unit.
complexHalf products(float p1, float p2, float q1, float q2) {
  return narrowed(onCalledUnit([=]<class Unit>(Unit) -> complexOf<float> {
    return {Unit::product(p1, p2), Unit::product(q1, q2)};
  }));
}

// Multiplied unless it is a zero, which stays exact beside an infinite hyperbolic factor.
template <class Unit>
float productUnlessZero(float hyperbolic, float trigonometric) {
  return trigonometric == 0.0f ? trigonometric : Unit::product(hyperbolic, trigonometric);
}

}  // namespace

// The addition theorems. On an axis where one part vanishes it is +0, and no product with an infinity makes a NaN of
// it.

complexHalf sinOf(complexHalf z) {
  const auto [x, y] = exactly<float>(z);
  if (y == 0.0f) return {narrow(qsl_scalar::sinSingle(x)), 0};
  if (x == 0.0f) return {0, narrow(sinhSingle(y))};
  const auto [sine, cosine] = qsl_scalar::sincosSingle(x);
  return products(coshSingle(y), sine, sinhSingle(y), cosine);
}

complexHalf cosOf(complexHalf z) {
  const auto [x, y] = exactly<float>(z);
  if (y == 0.0f) return {narrow(qsl_scalar::cosSingle(x)), 0};
  if (x == 0.0f) return {narrow(coshSingle(y)), 0};
  const auto [sine, cosine] = qsl_scalar::sincosSingle(x);
  return products(cosine, coshSingle(y), sine, withSignFlipped(sinhSingle(y)));
}

complexHalf sinhOf(complexHalf z) {
  const auto [x, y] = exactly<float>(z);
  if (y == 0.0f) return {narrow(sinhSingle(x)), 0};
  const auto [sine, cosine] = qsl_scalar::sincosSingle(y);
  return products(sinhSingle(x), cosine, coshSingle(x), sine);
}

complexHalf coshOf(complexHalf z) {
  const auto [x, y] = exactly<float>(z);
  if (y == 0.0f) return {narrow(coshSingle(x)), 0};
  const auto [sine, cosine] = qsl_scalar::sincosSingle(y);
  return products(cosine, coshSingle(x), sinhSingle(x), sine);
}

complexHalf sinpiOf(complexHalf z) {
  const auto [x, y] = exactly<float>(z);
  if (y == 0.0f) return {narrow(qsl_scalar::sinpiSingle(x)), 0};
  const auto [sine, cosine] = qsl_scalar::sincospiSingle(x);
  const float t = y * qsl_scalar::piUpper;
  return narrowed(onCalledUnit([=, s = sine, c = cosine]<class Unit>(Unit) -> complexOf<float> {
    return {productUnlessZero<Unit>(coshSingle(t), s), productUnlessZero<Unit>(sinhSingle(t), c)};
  }));
}

complexHalf cospiOf(complexHalf z) {
  const auto [x, y] = exactly<float>(z);
  if (y == 0.0f) return {narrow(qsl_scalar::cospiSingle(x)), 0};
  const auto [sine, cosine] = qsl_scalar::sincospiSingle(x);
  const float t = y * qsl_scalar::piUpper;
  return narrowed(onCalledUnit([=, s = sine, c = cosine]<class Unit>(Unit) -> complexOf<float> {
    const float downwards = withSignFlipped(sinhSingle(t));
    return {productUnlessZero<Unit>(coshSingle(t), c), s == 0.0f ? s : Unit::product(s, downwards)};
  }));
}

complexHalf tanOf(complexHalf z) { return narrowed(qsl_scalar::cplxTanSingle(exactly<float>(z))); }
complexHalf tanhOf(complexHalf z) { return narrowed(qsl_scalar::cplxTanhSingle(exactly<float>(z))); }

}  // namespace zthalf
