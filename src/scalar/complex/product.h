// Products with a complex operand.
//
// A part that is zero takes no part in the arithmetic: a real or imaginary number times anything leaves no spurious
// NaN, as infinity times the zero part would. A term with a zero part is never computed, so it
// makes no NaN.
#pragma once

#include "scalar/complex/complex_value.h"
#include "scalar/multiply_add.h"
#include "scalar/nudged_sum.h"

namespace zthalf {

// The sum of two products of four numbers that are not zero, ready for its rounding to half. The three ways differ in
// what they guard against.

// Exact products: of halves in float, of halves and floats in double. The rounding to half drops so many bits.
template <int dropped>
struct exactProducts {
  template <class Unit, class Wide>
  ZTHALF_INLINE static Wide sumOfProducts(Unit, Wide p, Wide r, Wide q, Wide s) {
    const Wide first = Unit::product(p, r);
    const Wide second = Unit::product(q, s);
    const Wide sum = nudgedSum<dropped>(first, second);
    return Unit::settles ? settled(sum, first, second) : sum;
  }
};
using exactInSingle = exactProducts<13>;
using exactInDouble = exactProducts<42>;

// Doubles and halves: the second product is rounded, the first is fused with the sum.
struct fusedInDouble {
  template <class Unit>
  static double sumOfProducts(Unit, double p, double r, double q, double s) {
    return fusedMultiplyAdd(p, r, Unit::product(q, s));
  }
};

// A complex z times a real x. In which order they were written does not matter.
template <class Unit, class Wide>
ZTHALF_INLINE complexOf<Wide> timesReal(Unit, complexOf<Wide> z, Wide x) {
  const Wide re = Unit::product(z.re, x);
  if (z.im == 0) return {re, 0};
  const Wide im = Unit::product(z.im, x);
  return {z.re == 0 ? 0 : re, im};
}

// x times y in Wide; Way sums the products where there are two.
template <class Way, class Unit, class Wide>
ZTHALF_INLINE complexOf<Wide> timesComplex(Unit unit, complexOf<Wide> x, complexOf<Wide> y) {
  if (x.im == 0) return timesReal(unit, y, x.re);
  if (y.im == 0) return timesReal(unit, x, y.re);
  if (x.re != 0 && y.re != 0) {
    return {Way::sumOfProducts(unit, x.re, y.re, x.im, withSignFlipped(y.im)),
            Way::sumOfProducts(unit, x.re, y.im, x.im, y.re)};
  }
  const Wide re = withSignFlipped(Unit::product(x.im, y.im));
  if (y.re != 0) return {re, Unit::product(x.im, y.re)};
  if (x.re != 0) return {re, Unit::product(x.re, y.im)};
  return {re, 0};
}

// A complex half z times a real half x, without a branch.
ZTHALF_INLINE complexHalf timesRealHalf(complexHalf z, std::uint16_t x) {
  const float factor = widen<float>(x);
  const std::uint16_t re = settled(widen<float>(z.re) * factor, z.re, x);
  const std::uint16_t im = settled(widen<float>(z.im) * factor, z.im, x);
  const auto noIm = maskOf<std::uint16_t>(pattern::isZero(z.im));
  const auto noRe = maskOf<std::uint16_t>(pattern::isZero(z.re));
  return {static_cast<std::uint16_t>(re & ~(noRe & ~noIm)), static_cast<std::uint16_t>(im & ~noIm)};
}

// The product of two complex operands, or of a complex and a real one.
template <class A, class B>
requires hasComplexOperand<A, B> ZTHALF_INLINE complexHalf productOf(A x, B y) {
  if constexpr (isComplexOperand<A> && isComplexOperand<B>) {
    using part =
        std::conditional_t<isHalfOperand<typename partOf<A>::type>, typename partOf<B>::type, typename partOf<A>::type>;
    using way = std::conditional_t<isHalfOperand<part>, exactInSingle,
                                   std::conditional_t<std::is_same_v<part, float>, exactInDouble, fusedInDouble>>;
    using wide = std::conditional_t<isHalfOperand<part>, float, double>;
    return narrowed(
        onDefinedUnit([&](auto unit) { return timesComplex<way>(unit, exactly<wide>(x), exactly<wide>(y)); }));
  } else if constexpr (areMadeOfHalves<A, B>) {
    if constexpr (isComplexOperand<A>) {
      return timesRealHalf(x, y);
    } else {
      return timesRealHalf(y, x);
    }
  } else {
    using wide = workingTypeOf<A, B>;
    return narrowed(onDefinedUnit([&](auto unit) {
      if constexpr (isComplexOperand<A>) {
        return timesReal(unit, exactly<wide>(x), exactly<wide>(y));
      } else {
        return timesReal(unit, exactly<wide>(y), exactly<wide>(x));
      }
    }));
  }
}

}  // namespace zthalf
