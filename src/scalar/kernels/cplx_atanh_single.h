// The complex inverse hyperbolic tangent in single precision.
#pragma once

#include "scalar/complex/complex_value.h"

namespace qsl_scalar {

// The principal value. On the real axis within [-1, 1], and for a real NaN, the real function and +0. Beyond, the
// imaginary part is pi/2 with the sign of x for a y of either zero. Infinities give +-pi/2 as imaginary part; a NaN
// beside a y that is not zero gives the negative NaN twice.
//
// Each part within 4 ulp for parts of z up to 4. An imaginary part far from the real one is biased by 2^-62.
zthalf::complexOf<float> cplxAtanhSingle(zthalf::complexOf<float> z);

}  // namespace qsl_scalar
