// The hyperbolic tangent in single precision.
#pragma once

namespace qsl_scalar {

// Within 2.2 ulp for every float. A zero gives itself, an infinity 1 with its sign, and every NaN the positive NaN
// 0x7FC00000.
float tanhSingle(float x);

}  // namespace qsl_scalar
