// ln(1 + x) in single precision.
#pragma once

namespace qsl_scalar {

// Within 1 ulp. -1 gives -infinity; anything below, and a NaN with its sign set, gives the negative NaN 0xFFC00000. A
// zero of either sign, +infinity and the other NaNs come back as they are.
float log1pSingle(float x);

}  // namespace qsl_scalar
