// Complex powers of two operands, halves, floats or doubles, real or complex.
#pragma once

#include <cmath>

#include "scalar/complex/complex_value.h"
#include "scalar/kernels/cplx_pow.h"
#include "scalar/power.h"

namespace zthalf {

// A real operand with an imaginary part of +0.
template <class Wide, class T>
ZTHALF_INLINE complexOf<Wide> asComplex(T x) {
  return {exactly<Wide>(x), 0};
}
template <class Wide, class T>
ZTHALF_INLINE complexOf<Wide> asComplex(complexOf<T> z) {
  return exactly<Wide>(z);
}

inline complexOf<float> powerOfComplex(complexOf<float> z, complexOf<float> w) {
  return qsl_scalar::cplxPowSingle(z, w);
}
inline complexOf<double> powerOfComplex(complexOf<double> z, complexOf<double> w) {
  return qsl_scalar::cplxPowDouble(z, w);
}

// Whether x^y is no real number: a negative number to a power that is not an integer. A NaN counts as such a power, an
// infinity does not.
template <class Wide>
ZTHALF_INLINE bool leavesTheRealLine(Wide x, Wide y) {
  return x < 0 && !(std::round(y) == y);
}

// In float, in double if an operand is made of doubles; each part rounded to half once. Of two real operands the real
// power, with an imaginary part of +0, wherever there is one.
template <class A, class B>
complexHalf complexPowerOf(A x, B y) {
  using wide = workingTypeOf<A, B>;
  if constexpr (!isComplexOperand<A> && !isComplexOperand<B>) {
    if (!leavesTheRealLine(exactly<wide>(x), exactly<wide>(y))) return {powerOf(x, y), pattern::zero};
  }
  return narrowed(powerOfComplex(asComplex<wide>(x), asComplex<wide>(y)));
}

}  // namespace zthalf
