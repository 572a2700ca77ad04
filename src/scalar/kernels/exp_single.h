// The exponential in single precision.
#pragma once

namespace qsl_scalar {

// Within 1 ulp. Infinity above 88.722832, plus zero below -103.27893 and for -infinity; a NaN of either sign gives the
// negative NaN 0xFFC00000.
float expSingle(float x);

}  // namespace qsl_scalar
