// The inverse hyperbolic tangent in single precision.
// Internal: promises nothing to users of the library.
#pragma once

namespace qsl_scalar {

// A zero gives itself, 1 and -1 an infinity with the sign of x. Beyond them, and for a NaN of either sign, the negative
// NaN 0xFFC00000.
float atanhSingle(float x);

}  // namespace qsl_scalar
