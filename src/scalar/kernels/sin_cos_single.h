// Sine and cosine in single precision.
// Internal: promises nothing to users of the library.
#pragma once

namespace qsl_scalar {

// Within 1 ulp for every float. A zero gives itself under sinSingle; infinities and NaNs of either sign give the
// negative NaN 0xFFC00000.
float sinSingle(float x);
float cosSingle(float x);

}  // namespace qsl_scalar
