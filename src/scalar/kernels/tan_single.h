// The tangent in single precision.
#pragma once

namespace qsl_scalar {

// Within 1 ulp for every float, but for some 300 next to multiples of pi/2 below 50, where the error reaches 2.1.
// A zero gives itself; infinities and NaNs of either sign give the negative NaN 0xFFC00000.
float tanSingle(float x);

}  // namespace qsl_scalar
