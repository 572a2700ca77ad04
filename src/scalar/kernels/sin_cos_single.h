// Sine and cosine in single precision.
#pragma once

namespace qsl_scalar {

// Within 1 ulp for every float, but for some hundred next to multiples of pi/2 below 50, where the error reaches 1.3.
// A zero gives itself under sinSingle; infinities and NaNs of either sign give the negative NaN 0xFFC00000.
float sinSingle(float x);
float cosSingle(float x);

}  // namespace qsl_scalar
