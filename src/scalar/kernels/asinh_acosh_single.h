// Inverse hyperbolic sine and cosine in single precision.
#pragma once

namespace qsl_scalar {

// asinhSingle, within 1.8 ulp: a zero or an infinity gives itself, a NaN itself made quiet.
float asinhSingle(float x);

// acoshSingle, within 2.1 ulp: plus zero for 1; below 1, and for a NaN with its sign set, the negative NaN 0xFFC00000;
// infinity and the other NaNs come back as they are.
float acoshSingle(float x);

}  // namespace qsl_scalar
