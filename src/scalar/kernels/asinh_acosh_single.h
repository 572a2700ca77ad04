// Inverse hyperbolic sine and cosine in single precision.
// Internal: promises nothing to users of the library.
#pragma once

namespace qsl_scalar {

// asinhSingle: a zero or an infinity gives itself, a NaN itself made quiet.
float asinhSingle(float x);

// acoshSingle: plus zero for 1; below 1, and for a NaN with its sign set, the negative NaN 0xFFC00000; infinity and the
// other NaNs come back as they are.
float acoshSingle(float x);

}  // namespace qsl_scalar
