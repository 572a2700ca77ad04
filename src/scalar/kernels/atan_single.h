// The arc tangent in single precision.
// Internal: promises nothing to users of the library.
#pragma once

namespace qsl_scalar {

// Within 1 ulp for every float. A zero gives itself, an infinity half pi with its sign, a NaN of either sign the
// negative NaN 0xFFC00000.
float atanSingle(float x);

}  // namespace qsl_scalar
