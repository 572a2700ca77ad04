// sumOf, differenceOf, productOf and quotientOf for operands of any two types, one of them made of halves.
//
// An operand is a half pattern, a float, a double, or a complexOf one of these. The operation runs in the wider part
// type, at least float, on operands taken there exactly, and is rounded to half once. The order in settled() is that of
// the operands, but with two halves (half_arithmetic.h) that of half_t's operators.
#pragma once

#include "scalar/complex/complex_value.h"
#include "scalar/complex/product.h"
#include "scalar/complex/quotient.h"
#include "scalar/half_arithmetic.h"

namespace zthalf {

// Real operands, not both halves.

template <class A, class B>
ZTHALF_INLINE std::uint16_t sumOf(A x, B y) {
  const auto a = exactly<widestOf<A, B>>(x), b = exactly<widestOf<A, B>>(y);
  return narrow(settled(a + b, a, b));
}

template <class A, class B>
ZTHALF_INLINE std::uint16_t differenceOf(A x, B y) {
  const auto a = exactly<widestOf<A, B>>(x), b = exactly<widestOf<A, B>>(y);
  return narrow(settled(a - b, a, b));
}

template <class A, class B>
ZTHALF_INLINE std::uint16_t productOf(A x, B y) {
  const auto a = exactly<widestOf<A, B>>(x), b = exactly<widestOf<A, B>>(y);
  return narrow(settled(a * b, a, b));
}

template <class A, class B>
ZTHALF_INLINE std::uint16_t quotientOf(A x, B y) {
  const auto a = exactly<widestOf<A, B>>(x), b = exactly<widestOf<A, B>>(y);
  return narrow(settled(a / b, a, b));
}

// Complex sums and differences go part by part. They treat an absent imaginary part differently, on purpose: a sum adds
// plus zero, which a minus zero does not survive; a difference leaves the left operand's imaginary part alone, and
// takes the right one's from plus zero.

template <class A, class B>
ZTHALF_INLINE complexHalf sumOf(complexOf<A> x, complexOf<B> y) {
  return {sumOf(x.re, y.re), sumOf(x.im, y.im)};
}
template <class A, class B>
ZTHALF_INLINE complexHalf sumOf(complexOf<A> x, B y) {
  return {sumOf(x.re, y), sumOf(x.im, B{0})};
}
template <class A, class B>
ZTHALF_INLINE complexHalf sumOf(A x, complexOf<B> y) {
  return {sumOf(x, y.re), sumOf(y.im, A{0})};
}

template <class A, class B>
ZTHALF_INLINE complexHalf differenceOf(complexOf<A> x, complexOf<B> y) {
  return {differenceOf(x.re, y.re), differenceOf(x.im, y.im)};
}
template <class A, class B>
ZTHALF_INLINE complexHalf differenceOf(complexOf<A> x, B y) {
  return {differenceOf(x.re, y), asHalf(x.im)};
}
template <class A, class B>
ZTHALF_INLINE complexHalf differenceOf(A x, complexOf<B> y) {
  return {differenceOf(x, y.re), differenceOf(A{0}, y.im)};
}

// Products and quotients with a complex operand: complex/product.h and complex/quotient.h.

}  // namespace zthalf
