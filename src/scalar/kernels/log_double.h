// The natural logarithm in double precision.
#pragma once

namespace qsl_scalar {

// Within 1 ulp. A zero gives -infinity; anything else with the sign bit set, a NaN and -infinity included, the negative
// NaN 0xFFF8000000000000; +infinity and the other NaNs come back as they are.
double logDouble(double x);

}  // namespace qsl_scalar
