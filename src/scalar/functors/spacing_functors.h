// Functors of spacing: eps, and the distance in units in the last place.
#pragma once

#include <algorithm>
#include <complex>

#include "scalar/complex/magnitude.h"
#include "scalar/functors/operands.h"
#include "scalar/spacing.h"
#include "zthalf/half_t.h"

namespace half::scalar::emulated {

struct epsFtor {
  static constexpr unsigned long grain = 256;
  ZTHALF_INLINE fp16binary_t operator()(fp16binary_t x) const { return {zthalf::epsOf(x.bits)}; }
  ZTHALF_INLINE fp16binary_t operator()(std::complex<fp16binary_t> z) const { return {zthalf::epsOf(plainOperand(z))}; }
};

// The distance in units in the last place; of complex values the larger one of the two parts.
struct ulpFtor {
  static constexpr unsigned long grain = 128;
  static constexpr bool baseOnly = true;  // a chain of tests
  // There are loops over two arrays alone.
  template <class A, class B>
  static constexpr bool repeatsSinglesFor = true;

  template <class A, class B>
  double operator()(A a, B b) const {
    return zthalf::ulpDistance(plainOperand(a), plainOperand(b));
  }

  template <class A, class B>
  double operator()(std::complex<A> a, std::complex<B> b) const {
    return std::max((*this)(a.real(), b.real()), (*this)(a.imag(), b.imag()));
  }

  // A real operand has an imaginary part of plus zero.
  template <class A, class B>
  double operator()(std::complex<A> a, B b) const {
    return (*this)(a, std::complex<B>(b, B{}));
  }

  template <class A, class B>
  double operator()(A a, std::complex<B> b) const {
    return (*this)(std::complex<A>(a, A{}), b);
  }
};

}  // namespace half::scalar::emulated
