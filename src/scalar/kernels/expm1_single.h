// exp(x) - 1 in single precision.
#pragma once

namespace qsl_scalar {

// Within 1 ulp. A zero of either sign and every NaN come back as they are, +infinity gives itself and -infinity gives
// -1.
float expm1Single(float x);

}  // namespace qsl_scalar
