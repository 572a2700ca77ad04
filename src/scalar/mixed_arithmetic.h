// Sums, differences, products and quotients of operands of any two types, one of them made of halves.
// Internal: promises nothing to users of the library.
//
// An operand is a half pattern, a float, a double, or a complexOf one of these. The operation runs in the wider part
// type, at least float, on operands taken there exactly, and is rounded to half once. The order in settled() is that of
// the operands, but with two halves that of half_t's operators.
#pragma once

#include "scalar/complex/complex_value.h"
#include "scalar/complex/product.h"
#include "scalar/complex/quotient.h"
#include "scalar/half_arithmetic.h"

namespace zthalf {

// Real operands.

template <class A, class B>
ZTHALF_INLINE std::uint16_t realSum(A x, B y) {
  if constexpr (areMadeOfHalves<A, B>) {
    return sumOf(x, y);
  } else {
    const auto a = exactly<widestOf<A, B>>(x), b = exactly<widestOf<A, B>>(y);
    return narrow(settled(a + b, a, b));
  }
}

template <class A, class B>
ZTHALF_INLINE std::uint16_t realDifference(A x, B y) {
  if constexpr (areMadeOfHalves<A, B>) {
    return differenceOf(x, y);
  } else {
    const auto a = exactly<widestOf<A, B>>(x), b = exactly<widestOf<A, B>>(y);
    return narrow(settled(a - b, a, b));
  }
}

template <class A, class B>
ZTHALF_INLINE std::uint16_t realProduct(A x, B y) {
  if constexpr (areMadeOfHalves<A, B>) {
    return productOf(x, y);
  } else {
    const auto a = exactly<widestOf<A, B>>(x), b = exactly<widestOf<A, B>>(y);
    return narrow(settled(a * b, a, b));
  }
}

template <class A, class B>
ZTHALF_INLINE std::uint16_t realQuotient(A x, B y) {
  if constexpr (areMadeOfHalves<A, B>) {
    return quotientOf(x, y);
  } else {
    const auto a = exactly<widestOf<A, B>>(x), b = exactly<widestOf<A, B>>(y);
    return narrow(settled(a / b, a, b));
  }
}

// Complex sums and differences go part by part. They treat an absent imaginary part differently, on purpose: a sum adds
// plus zero, which a minus zero does not survive; a difference leaves the left operand's imaginary part alone, and
// takes the right one's from plus zero.

template <class A, class B>
ZTHALF_INLINE complexHalf complexSum(complexOf<A> x, complexOf<B> y) {
  return {realSum(x.re, y.re), realSum(x.im, y.im)};
}
template <class A, class B>
ZTHALF_INLINE complexHalf complexSum(complexOf<A> x, B y) {
  return {realSum(x.re, y), realSum(x.im, B{0})};
}
template <class A, class B>
ZTHALF_INLINE complexHalf complexSum(A x, complexOf<B> y) {
  return {realSum(x, y.re), realSum(y.im, A{0})};
}

template <class A, class B>
ZTHALF_INLINE complexHalf complexDifference(complexOf<A> x, complexOf<B> y) {
  return {realDifference(x.re, y.re), realDifference(x.im, y.im)};
}
template <class A, class B>
ZTHALF_INLINE complexHalf complexDifference(complexOf<A> x, B y) {
  return {realDifference(x.re, y), partAsHalf(x.im)};
}
template <class A, class B>
ZTHALF_INLINE complexHalf complexDifference(A x, complexOf<B> y) {
  return {realDifference(x, y.re), realDifference(A{0}, y.im)};
}

// Every pair of operands.

template <class A, class B>
ZTHALF_INLINE auto anySum(A x, B y) {
  if constexpr (isComplexOperand<A> || isComplexOperand<B>) {
    return complexSum(x, y);
  } else {
    return realSum(x, y);
  }
}

template <class A, class B>
ZTHALF_INLINE auto anyDifference(A x, B y) {
  if constexpr (isComplexOperand<A> || isComplexOperand<B>) {
    return complexDifference(x, y);
  } else {
    return realDifference(x, y);
  }
}

template <class A, class B>
ZTHALF_INLINE auto anyProduct(A x, B y) {
  if constexpr (isComplexOperand<A> || isComplexOperand<B>) {
    return complexProduct(x, y);
  } else {
    return realProduct(x, y);
  }
}

template <class A, class B>
ZTHALF_INLINE auto anyQuotient(A x, B y) {
  if constexpr (isComplexOperand<A> || isComplexOperand<B>) {
    return complexQuotient(x, y);
  } else {
    return realQuotient(x, y);
  }
}

}  // namespace zthalf
