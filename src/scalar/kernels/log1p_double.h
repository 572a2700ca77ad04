// ln(1 + x) in double precision.
#pragma once

namespace qsl_scalar {

// Within 1 ulp. -1 gives -infinity; below, and for a NaN with its sign set, the negative NaN 0xFFF8000000000000;
// zeros, +infinity and the other NaNs come back as they are.
double log1pDouble(double x);

}  // namespace qsl_scalar
