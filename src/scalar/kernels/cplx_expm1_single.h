// exp(z) - 1 of a complex number in single precision.
#pragma once

#include "scalar/complex/complex_value.h"

namespace qsl_scalar {

// The whole value is within 6 units in the last place of its larger part; the real part, a difference, may be worse
// in its own. With y = 0 of
// either sign the real part is expm1Single(x) and the imaginary one +0. NaNs as in cplxExpSingle.
zthalf::complexOf<float> cplxExpm1Single(zthalf::complexOf<float> z);

}  // namespace qsl_scalar
