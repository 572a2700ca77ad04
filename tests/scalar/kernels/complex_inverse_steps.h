// The complex tangents and inverse functions as the steps they are defined by: see complex_steps.h.
#pragma once

#include "tests/scalar/kernels/complex_steps.h"

namespace zthalf::testing::complex_steps {

inline num<float> unary(steps::step (*function)(steps::step), num<float> x) { return function(x.value()).value(); }

inline pair<float> tan(num<float> x, num<float> y) {
  using n = num<float>;
  const n zero = 0.0f, half = 0.5f, one = 1.0f;
  const n t = unary(steps::tan, x);
  if (y.isZero()) return {t, zero};
  const n th = unary(steps::tanh, y);
  const n w = th * -t;
  if (w.isZero()) {
    if (th.isZero()) return {t, zero};
    if (t.isZero()) return {zero, th};
    return {t, th};
  }
  if (w.magnitude() < one) {
    const n d = w * w + one;
    return {(t + w * th) / d, (th - t * w) / d};
  }
  if (w.magnitude() == one) {
    const n p = signedAs(0.5f, w);
    return {t * half + p * th, th * half - t * p};
  }
  const n q = one / w, e = w + q;
  return {(th + t * q) / e, (th * q - t) / e};
}

inline pair<float> tanh(num<float> x, num<float> y) {
  using n = num<float>;
  const n zero = 0.0f, half = 0.5f, one = 1.0f;
  const n th = unary(steps::tanh, x);
  if (y.isZero()) return {th, zero};
  const n t = unary(steps::tan, y);
  const n w = t * th;
  if (w.isZero()) {
    if (t.isZero()) return {th, zero};
    if (th.isZero()) return {zero, t};
    return {th, t};
  }
  if (w.magnitude() < one) {
    const n d = w * w + one;
    return {(th + t * w) / d, (t - th * w) / d};
  }
  if (w.magnitude() == one) {
    const n p = signedAs(0.5f, w);
    return {th * half + t * p, t * half - th * p};
  }
  const n q = one / w, e = w + q;
  return {(t + th * q) / e, (t * q - th) / e};
}

inline pair<float> asin(num<float> x, num<float> y) {
  using n = num<float>;
  const n zero = 0.0f, one = 1.0f;
  if (y.isZero() && !(x.magnitude() > one)) return {unary(steps::asin, x), zero};
  const auto [pr, pi] = sqrt<float>(x + one, y + zero);
  const auto [qr, qi] = sqrt<float>(one - x, zero - y);
  n re2 = zero;
  if (qi.isZero() && pi.isZero()) {
    re2 = qr * pr;
  } else {
    n im = qi * pr + qr * pi;
    re2 = qr * pr - qi * pi;
    if (!finite(re2) || !finite(im)) recover(qr, qi, pr, pi, re2, im);
  }
  const n qq = zero - qi;
  n im2 = zero;
  if (!(qq.isZero() && pi.isZero())) {
    n re = qr * pr - qq * pi;
    im2 = qq * pr + qr * pi;
    if (!finite(re) || !finite(im2)) recover(qr, qq, pr, pi, re, im2);
  }
  return {real<float>::atan2(x, re2), unary(steps::asinh, im2)};
}

inline pair<float> acos(num<float> x, num<float> y) {
  using n = num<float>;
  const n zero = 0.0f, one = 1.0f;
  if (y.isZero() && !(x.magnitude() > one)) return {unary(steps::acos, x), zero};
  const auto [pr, pi] = sqrt<float>(x + one, y + zero);
  const auto [qr, qi] = sqrt<float>(one - x, zero - y);
  const n g = real<float>::atan2(qr, pr);
  return {g + g, unary(steps::asinh, qi * pr - qr * pi)};
}

inline pair<float> acosh(num<float> x, num<float> y) {
  using n = num<float>;
  const n zero = 0.0f, one = 1.0f;
  if (!(x < one) && y.isZero()) return {unary(steps::acosh, x), zero};
  const auto [pr, pi] = sqrt<float>(x + one, y + zero);
  const auto [qr, qi] = sqrt<float>(x + -one, y + zero);
  const n g = real<float>::atan2(qi, pr);
  return {unary(steps::asinh, qr * pr + qi * pi), g + g};
}

inline pair<float> atanh(num<float> x, num<float> y) {
  using n = num<float>;
  const n zero = 0.0f, half = 0.5f, one = 1.0f, four = 4.0f;
  const n a = x.magnitude(), e = one - a, ay = y.magnitude();
  if (y.isZero() && !(a > one)) return {unary(steps::atanh, x), zero};
  if (x.isNaN() || y.isNaN()) return {real<float>::nan(), real<float>::nan()};
  const bool neg = x < zero;
  n re = zero, im = zero;
  const n limit = wordOf(0x5E7FFFFF);
  if (!(a > limit) && !(ay > limit)) {
    const n t = ay + wordOf(0x20800000);
    if (a == one) {
      re = real<float>::log(root(root((y * y + four) + zero)) / root(t + zero));
      im = unary(steps::atan, t * half) * half + wordOf(0x3F490FDB);
    } else {
      re = real<float>::log1p((a * four) / (e * e + t * t)) * n(0.25f);
      im = real<float>::atan2(ay + ay, e * (a + one) - t * t) * half;
    }
  } else {
    im = real<float>::halfPi();
    if (y.isZero()) {
      re = one / a;
    } else if (x.isZero()) {
      re = zero;
    } else if (a > ay) {
      re = one / (a + ay * (ay / a));
    } else if (a == ay) {
      re = half / a;
    } else {
      re = (a / ay) / (ay + a * (a / ay));
    }
  }
  if (neg) re = -re;
  if (y < zero || (neg && y.isZero())) im = -im;
  return {re, im};
}

}  // namespace zthalf::testing::complex_steps
