// Complex powers in single and double precision.
#pragma once

#include "scalar/complex/complex_value.h"

namespace qsl_scalar {

// z^w. The order of the cases decides, as for the real power:
//   w = 2                              z z
//   both real                          the real power with an imaginary part of +0; but a negative z to a finite power
//                                      that is not an integer has a complex one, -infinity to a positive such power too
//   w not real, infinite or a NaN      exp(w ln z); the negative NaN twice where ln z is -infinity, im w infinite, and
//                                      re w not +infinity
//   w = 0                              1, but of a NaN the negative NaN twice
//   w real                             the whole part by repeated squaring, times z to the fractional part; turned
//                                      round for a negative w
//
// exp(w ln z) multiplies the error of ln z by w, and repeated squaring doubles it each time: for bases and powers up to
// 4 the whole value is within 40 units in the last place of its larger part.
zthalf::complexOf<float> cplxPowSingle(zthalf::complexOf<float> z, zthalf::complexOf<float> w);
zthalf::complexOf<double> cplxPowDouble(zthalf::complexOf<double> z, zthalf::complexOf<double> w);

}  // namespace qsl_scalar
