#include "scalar/kernels/cplx_pow.h"

#include "scalar/kernels/cplx_exp.h"
#include "scalar/kernels/cplx_log.h"
#include "scalar/kernels/cplx_multiply.h"
#include "scalar/kernels/cplx_sqrt.h"

namespace qsl_scalar {

namespace {

complexOf<float> exponential(complexOf<float> z) { return cplxExpSingle(z); }
complexOf<double> exponential(complexOf<double> z) { return cplxExpDouble(z); }
complexOf<float> root(complexOf<float> z) { return cplxSqrtSingle(z); }
complexOf<double> root(complexOf<double> z) { return cplxSqrtDouble(z); }
// y = -0 counts as +0.
complexOf<float> logarithmOf(complexOf<float> z) { return cplxLogSingle({z.re, z.im + 0.0f}); }
complexOf<double> logarithmOf(complexOf<double> z) { return cplxLogDouble({z.re, z.im + 0.0}); }

template <class Wide>
bool isWhole(Wide x) {
  return x == std::trunc(x);
}

// n modulo 2, for a whole n that is not negative. From 2^p on, with p the places of Wide, every number is even.
template <class Wide>
bool isOdd(Wide n) {
  return n != 2 * std::trunc(n * Wide(0.5));
}

// Whether the real kernel has the answer: both are real, and z is not a negative number to a finite power that is not
// an integer. -infinity to a negative such power is a zero, though.
template <class Wide>
bool isRealPower(complexOf<Wide> z, complexOf<Wide> w) {
  if (!(z.im == 0 && w.im == 0)) return false;
  const bool leavesTheLine = z.re < 0 && isFiniteNumber(w.re) && !isWhole(w.re);
  return !leavesTheLine || (w.re < 0 && !isFiniteNumber(z.re));
}

template <class Unit, class Wide>
complexOf<Wide> byLogarithm(complexOf<Wide> z, complexOf<Wide> w) {
  using kernels = realKernels<Wide>;
  const auto [c, d] = w;
  const complexOf<Wide> logarithm = logarithmOf(z);
  const auto [length, angle] = logarithm;
  const bool isZero = length < 0 && !isFiniteNumber(length);
  const bool isTurnedForever = !isNaN(d) && !isFiniteNumber(d);
  const bool isPlusInfinity = c > 0 && !isFiniteNumber(c);
  if (!isPlusInfinity && isZero && isTurnedForever) return {kernels::nan, kernels::nan};
  if (d == 0 && angle == 0) return exponential(complexOf<Wide>{Unit::product(length, c), 0});
  return exponential(recovered<Unit>(logarithm, w,
                                     {Unit::difference(Unit::product(length, c), Unit::product(angle, d)),
                                      Unit::sum(Unit::product(length, d), Unit::product(angle, c))}));
}

// z to the power n, whole and not negative.
template <class Unit, class Wide>
complexOf<Wide> wholePower(complexOf<Wide> z, Wide n) {
  complexOf<Wide> result = {1, 0};
  while (n > 0) {
    if (isOdd(n)) result = cmul<Unit>(result, z);
    n = std::trunc(n * Wide(0.5));
    if (n > 0) z = csquare<Unit>(z);
  }
  return result;
}

// z to a power between 0 and 1.
template <class Unit, class Wide>
complexOf<Wide> fractionalPower(complexOf<Wide> z, Wide power) {
  if (power == Wide(0.5)) return root(z);
  const complexOf<Wide> logarithm = logarithmOf(z);
  return exponential(cmul<Unit>(logarithm, complexOf<Wide>{power, 0}));
}

// 1 / z by the quotient t of its smaller part and its larger one. A NaN part ends in the branch of |re| < |im|.
template <class Unit, class Wide>
complexOf<Wide> reciprocal(complexOf<Wide> z) {
  const auto [re, im] = z;
  const Wide one = 1;
  if (im == 0) return {Unit::quotient(one, re), 0};
  if (re == 0) return {0, Unit::quotient(-one, im)};
  const Wide p = zthalf::withoutSign(re);
  const Wide q = zthalf::withoutSign(im);
  if (p > q) {
    const Wide t = Unit::quotient(im, re);
    const Wide e = Unit::sum(re, Unit::product(im, t));
    return {Unit::quotient(one, e), Unit::quotient(zthalf::withSignFlipped(t), e)};
  }
  if (p == q) {
    return {Unit::quotient(withSignOf(Wide(0.5), re), p), Unit::quotient(-withSignOf(Wide(0.5), im), p)};
  }
  const Wide t = Unit::quotient(re, im);
  const Wide e = Unit::sum(im, Unit::product(re, t));
  return {Unit::quotient(t, e), Unit::quotient(-one, e)};
}

// w = n + f with the sign of w taken away first.
template <class Unit, class Wide>
complexOf<Wide> byParts(complexOf<Wide> z, Wide w) {
  const Wide power = zthalf::withoutSign(w);
  const Wide n = std::trunc(power);
  const Wide fraction = power - n;
  complexOf<Wide> result = wholePower<Unit>(z, n);
  if (fraction != 0) result = cmul<Unit>(result, fractionalPower<Unit>(z, fraction));
  return w < 0 ? reciprocal<Unit>(result) : result;
}

template <class Unit, class Wide>
complexOf<Wide> cplxPow(complexOf<Wide> z, complexOf<Wide> w) {
  using kernels = realKernels<Wide>;
  if (w.re == 2 && w.im == 0) return csquare<Unit>(z);
  if (isRealPower(z, w)) return {kernels::pow(z.re, w.re), 0};
  if (w.im != 0 || !isFiniteNumber(w.re)) return byLogarithm<Unit>(z, w);
  if (w.re == 0) {
    if (zthalf::hasNaN(z)) return {kernels::nan, kernels::nan};
    return {1, 0};
  }
  return byParts<Unit>(z, w.re);
}

}  // namespace

complexOf<float> cplxPowSingle(complexOf<float> z, complexOf<float> w) {
  return zthalf::onCalledUnit([=]<class Unit>(Unit) { return cplxPow<Unit>(z, w); });
}
complexOf<double> cplxPowDouble(complexOf<double> z, complexOf<double> w) {
  return zthalf::onCalledUnit([=]<class Unit>(Unit) { return cplxPow<Unit>(z, w); });
}

}  // namespace qsl_scalar
