// Quotients with a complex operand.
//
// As in the product, a part that is zero takes no part. Otherwise a quotient is the textbook one, (x conj y) / |y|^2,
// where the squares do not overflow, and Smith's form where they do; divisors on the diagonals need neither.
#pragma once

#include <cmath>
#include <limits>

#include "scalar/complex/complex_value.h"

namespace zthalf {

template <class Wide>
ZTHALF_INLINE bool isInfinite(Wide x) {
  return withoutSign(x) == std::numeric_limits<Wide>::infinity();
}

// A complex dividend and a real divisor; a divisor of zero makes infinities only where the dividend has something.
template <class Unit, class Wide>
ZTHALF_INLINE complexOf<Wide> byReal(Unit, complexOf<Wide> x, Wide b) {
  const bool byZero = b == 0;
  return {byZero && x.im != 0 && x.re == 0 ? 0 : Unit::quotient(x.re, b),
          byZero && x.im == 0 ? 0 : Unit::quotient(x.im, b)};
}

// On the diagonals |y|^2 is 2 c^2, and the 2 goes to the dividend, where halving it cannot overflow.
template <class Unit, class Wide>
complexOf<Wide> byDiagonal(Unit, complexOf<Wide> x, complexOf<Wide> y) {
  const Wide a = Unit::product(x.re, Wide(0.5));
  const Wide b = Unit::product(x.im, Wide(0.5));
  if (y.re == y.im) return {Unit::quotient(Unit::sum(a, b), y.re), Unit::quotient(Unit::difference(b, a), y.re)};
  return {Unit::quotient(Unit::difference(a, b), y.re), Unit::quotient(Unit::sum(a, b), y.re)};
}

// The divisor is i d, with d not zero.
template <class Unit, class Wide>
complexOf<Wide> byImaginary(Unit, complexOf<Wide> x, Wide d) {
  return {x.re != 0 && x.im == 0 ? 0 : Unit::quotient(x.im, d),
          x.re == 0 ? 0 : withSignFlipped(Unit::quotient(x.re, d))};
}

// Two complex halves, in float: the squares of halves do not overflow, so Smith's form is left for infinite parts.
template <class Unit>
complexOf<float> quotientOfComplexHalves(Unit unit, complexOf<float> x, complexOf<float> y) {
  const auto [a, b] = x;
  const auto [c, d] = y;
  if (d == 0) return {a == 0 && b != 0 ? 0 : Unit::quotient(a, c), b == 0 ? 0 : Unit::quotient(b, c)};
  if (c == 0) return byImaginary(unit, x, d);
  if (withoutSign(c) == withoutSign(d)) return byDiagonal(unit, x, y);
  const float s = Unit::sum(Unit::product(c, c), Unit::product(d, d));
  if (!isInfinite(s)) {
    return {Unit::quotient(Unit::sum(Unit::product(a, c), Unit::product(b, d)), s),
            Unit::quotient(Unit::difference(Unit::product(c, b), Unit::product(a, d)), s)};
  }
  if (withoutSign(c) > withoutSign(d)) {
    const float r = Unit::quotient(d, c);
    const float t = Unit::sum(c, Unit::product(d, r));
    return {Unit::quotient(Unit::sum(a, Unit::product(b, r)), t),
            Unit::quotient(Unit::difference(b, Unit::product(r, a)), t)};
  }
  const float r = Unit::quotient(c, d);
  const float t = Unit::sum(d, Unit::product(c, r));
  return {Unit::quotient(Unit::sum(b, Unit::product(a, r)), t),
          Unit::quotient(Unit::difference(Unit::product(r, b), a), t)};
}

// A complex dividend and a complex divisor with floats or doubles among their parts.
template <class Unit, class Wide>
complexOf<Wide> quotientOfComplex(Unit unit, complexOf<Wide> x, complexOf<Wide> y) {
  if (y.im == 0) {
    const complexOf<Wide> quotient = byReal(unit, x, y.re);
    return {quotient.re, x.im == 0 ? 0 : quotient.im};
  }
  if (y.re == 0) return byImaginary(unit, x, y.im);
  if (withoutSign(y.re) == withoutSign(y.im)) return byDiagonal(unit, x, y);
  const Wide d = Unit::sum(Unit::product(y.re, y.re), Unit::product(y.im, y.im));
  if (!isInfinite(d)) {
    return {Unit::quotient(Unit::sum(Unit::product(x.re, y.re), Unit::product(x.im, y.im)), d),
            Unit::quotient(Unit::difference(Unit::product(x.im, y.re), Unit::product(x.re, y.im)), d)};
  }
  if (withoutSign(y.re) > withoutSign(y.im)) {
    const Wide t = Unit::quotient(y.im, y.re);
    const Wide e = Unit::sum(y.re, Unit::product(y.im, t));
    return {Unit::quotient(Unit::sum(x.re, Unit::product(t, x.im)), e),
            Unit::quotient(Unit::difference(x.im, Unit::product(t, x.re)), e)};
  }
  const Wide t = Unit::quotient(y.re, y.im);
  const Wide e = Unit::sum(y.im, Unit::product(y.re, t));
  return {Unit::quotient(Unit::sum(Unit::product(t, x.re), x.im), e),
          Unit::quotient(Unit::difference(Unit::product(t, x.im), x.re), e)};
}

// A real dividend and a complex divisor. Its own form of Smith's method has one denominator for each part, and is taken
// where a product with the dividend would overflow as well.
template <class Unit, class Wide>
complexOf<Wide> quotientOfReal(Unit unit, Wide a, complexOf<Wide> y) {
  const auto [c, d] = y;
  if (d == 0) return {Unit::quotient(a, c), 0};
  if (c == 0) {
    // Zero over d, with the sign of d; the one NaN of this quotient that does not take the sign of an operand.
    const Wide zero = d == d ? std::copysign(Wide(0), d) : defaultNaN<Wide>;
    return {zero, withSignFlipped(Unit::quotient(a, d))};
  }
  if (withoutSign(c) == withoutSign(d)) return byDiagonal(unit, {a, 0}, y);
  const Wide s = Unit::sum(Unit::product(c, c), Unit::product(d, d));
  const Wide alongC = Unit::product(c, a);
  const Wide alongD = Unit::product(d, a);
  if (!isInfinite(s) && !isInfinite(alongC) && !isInfinite(alongD)) {
    return {Unit::quotient(alongC, s), Unit::quotient(withSignFlipped(alongD), s)};
  }
  const Wide first = isInfinite(c) ? c : Unit::sum(c, Unit::product(d, Unit::quotient(d, c)));
  const Wide second = isInfinite(d) ? d : Unit::sum(d, Unit::product(c, Unit::quotient(c, d)));
  return {Unit::quotient(a, first), Unit::quotient(withSignFlipped(a), second)};
}

// x / y where either operand or both are complex.
template <class A, class B>
requires hasComplexOperand<A, B> complexHalf quotientOf(A x, B y) {
  using wide = workingTypeOf<A, B>;
  return narrowed(onDefinedUnit([&](auto unit) {
    if constexpr (!isComplexOperand<B>) {
      return byReal(unit, exactly<wide>(x), exactly<wide>(y));
    } else if constexpr (!isComplexOperand<A>) {
      return quotientOfReal(unit, exactly<wide>(x), exactly<wide>(y));
    } else if constexpr (areMadeOfHalves<A, B>) {
      return quotientOfComplexHalves(unit, exactly<wide>(x), exactly<wide>(y));
    } else {
      return quotientOfComplex(unit, exactly<wide>(x), exactly<wide>(y));
    }
  }));
}

}  // namespace zthalf
