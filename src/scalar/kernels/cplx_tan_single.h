// The complex tangent and hyperbolic tangent in single precision.
#pragma once

#include "scalar/complex/complex_value.h"

namespace qsl_scalar {

// The whole value is within 5 units in the last place of its larger part, and so is each part in its own, but the one
// that vanishes at multiples of pi/4: the real part of the tangent, the imaginary part of the hyperbolic one. On the
// real axis, and for a tangent of zero, one part is the real function and the other +0.
zthalf::complexOf<float> cplxTanSingle(zthalf::complexOf<float> z);
zthalf::complexOf<float> cplxTanhSingle(zthalf::complexOf<float> z);

}  // namespace qsl_scalar
