// Complex powers of two operands, halves, floats or doubles, real or complex.
#pragma once

#include <cmath>

#include "scalar/complex/complex_value.h"
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

// By the kernel of the precision, each part rounded to half once.
complexHalf powerOfComplex(complexOf<float> z, complexOf<float> w);
complexHalf powerOfComplex(complexOf<double> z, complexOf<double> w);

// Whether x^y is no real number: a negative number to a power that is not an integer. A NaN counts as such a power, an
// infinity does not.
template <class Wide>
ZTHALF_INLINE bool leavesTheRealLine(Wide x, Wide y) {
  return x < 0 && !(std::trunc(y) == y);
}

// In float, in double if an operand is made of doubles; each part rounded to half once. Of two real operands the real
// power, with an imaginary part of +0, wherever there is one.
template <class A, class B>
complexHalf complexPowerOf(A x, B y) {
  using wide = workingTypeOf<A, B>;
  if constexpr (!isComplexOperand<A> && !isComplexOperand<B>) {
    if (!leavesTheRealLine(exactly<wide>(x), exactly<wide>(y))) return {powerOf(x, y), pattern::zero};
  }
  return powerOfComplex(asComplex<wide>(x), asComplex<wide>(y));
}

}  // namespace zthalf
