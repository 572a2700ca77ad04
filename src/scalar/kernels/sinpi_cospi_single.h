// sin(pi x) and cos(pi x) in single precision.
#pragma once

#include "scalar/kernels/sincos_single.h"

namespace qsl_scalar {

// Exact for multiples of 1/2, correctly rounded for those of 1/4, and within 1.5 ulp elsewhere, but that a float next
// to another multiple of 1/12 gets that multiple's result, which may be 4.1 ulp away. The sine of an integer is a zero
// with the sign of x modulo 2, held in [-1, 1], and the cosine of an odd multiple of 1/2 is plus zero. Infinities and
// NaNs of either sign give the negative NaN 0xFFC00000.
float sinpiSingle(float x);
float cospiSingle(float x);

// Both from one reduction, with the same bits.
sineAndCosine<float> sincospiSingle(float x);

}  // namespace qsl_scalar
