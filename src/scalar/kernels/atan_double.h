// The arc tangent in double precision.
#pragma once

namespace qsl_scalar {

// Within 1 ulp. An infinity gives pi/2 with its sign, and every NaN the negative NaN 0xFFF8000000000000. Magnitudes
// below 2^-29 come back as they are, zeros of either sign included.
double atanDouble(double x);

}  // namespace qsl_scalar
