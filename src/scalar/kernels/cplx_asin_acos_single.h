// The complex arc sine, arc cosine and inverse hyperbolic cosine in single precision.
#pragma once

#include "scalar/complex/complex_value.h"

namespace qsl_scalar {

// The principal values. On the part of the real axis where the real function has a value, NaN included, they are that
// value and +0; beyond it a cut, on which an imaginary part of -0 counts as +0: the imaginary part of a result there
// has the sign of the side from above.
//
// Each part is within 5 ulp for parts of z up to 4, the whole value within 4 units in the last place of its larger
// part.
zthalf::complexOf<float> cplxAsinSingle(zthalf::complexOf<float> z);
zthalf::complexOf<float> cplxAcosSingle(zthalf::complexOf<float> z);
zthalf::complexOf<float> cplxAcoshSingle(zthalf::complexOf<float> z);

}  // namespace qsl_scalar
