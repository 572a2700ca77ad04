// The inverse hyperbolic tangent in single precision.
#pragma once

namespace qsl_scalar {

// Within 1.8 ulp. A zero gives itself, 1 and -1 an infinity with the sign of x. Beyond them, and for a NaN of either
// sign, the negative NaN 0xFFC00000.
float atanhSingle(float x);

}  // namespace qsl_scalar
