// sin(pi x) and cos(pi x) in single precision.
// Internal: promises nothing to users of the library.
#pragma once

namespace qsl_scalar {

// Exact for multiples of 1/2 and correctly rounded for multiples of 1/12; the sine of an integer is a zero with the
// sign of x modulo 2, held in [-1, 1], and the cosine of an odd multiple of 1/2 is plus zero. Infinities and NaNs of
// either sign give the negative NaN 0xFFC00000.
float sinpiSingle(float x);
float cospiSingle(float x);

}  // namespace qsl_scalar
