// The tangent in single precision.
// Internal: promises nothing to users of the library.
#pragma once

namespace qsl_scalar {

// Within 1 ulp for every float. A zero gives itself; infinities and NaNs of either sign give the negative NaN
// 0xFFC00000.
float tanSingle(float x);

}  // namespace qsl_scalar
