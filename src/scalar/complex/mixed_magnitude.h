// hypot of operands of any two types: of a complex operand its magnitude takes part.
// Internal: promises nothing to users of the library.
#pragma once

#include "scalar/complex/magnitude.h"
#include "scalar/two_argument.h"

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

// Real for two real operands, otherwise complex with an imaginary part of plus zero.
template <class A, class B>
ZTHALF_INLINE auto anyHypot(A x, B y) {
  const std::uint16_t length = hypotOf(asReal(x), asReal(y));
  if constexpr (isComplexOperand<A> || isComplexOperand<B>) {
    return complexHalf{length, pattern::zero};
  } else {
    return length;
  }
}

}  // namespace zthalf
