// Sine and cosine of one angle in double precision.
#pragma once

#include "scalar/kernels/sincos_single.h"

namespace qsl_scalar {

// Each within 1 ulp, for every double. An infinity, or a NaN of either sign, gives the negative NaN 0xFFF8000000000000
// twice.
sineAndCosine<double> sincosDouble(double x);

}  // namespace qsl_scalar
