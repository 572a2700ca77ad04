// The complex exponential in single and double precision.
#pragma once

#include "scalar/kernels/real_kernels.h"

namespace qsl_scalar {

// Each part within 2.5 ulp, and within 4 where x is above 88 (709 in double), unless it is subnormal. An infinity or a
// NaN as y gives the negative NaN twice, beside any x but -infinity; so does a NaN x beside a y that is not zero.
complexOf<float> cplxExpSingle(complexOf<float> z);
complexOf<double> cplxExpDouble(complexOf<double> z);

}  // namespace qsl_scalar
