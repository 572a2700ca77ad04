// hypot with a complex operand of any type: its magnitude takes part.
#pragma once

#include "scalar/complex/magnitude.h"
#include "scalar/hypot.h"

namespace zthalf {

// The magnitude in the type of the parts: of floats the exactly summed root in double, rounded to float; of doubles by
// the double kernel.
ZTHALF_INLINE float magnitudeOf(complexOf<float> z) {
  return static_cast<float>(
      rootOfSquares<formatOf<float>::fractionWidth>(static_cast<double>(z.re), static_cast<double>(z.im)));
}
inline double magnitudeOf(complexOf<double> z) { return qsl_scalar::hypotDouble(z.re, z.im); }

template <class T>
ZTHALF_INLINE T asReal(T x) {
  return x;
}
template <class T>
ZTHALF_INLINE T asReal(complexOf<T> z) {
  return magnitudeOf(z);
}

// Complex, with an imaginary part of plus zero.
template <class A, class B>
requires hasComplexOperand<A, B> ZTHALF_INLINE complexHalf hypotOf(A x, B y) {
  return {hypotOf(asReal(x), asReal(y)), pattern::zero};
}

}  // namespace zthalf
