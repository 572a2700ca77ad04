// The logarithm to base 10 in single precision.
#pragma once

namespace qsl_scalar {

// Within 1.5 ulp. A zero gives -infinity, anything else with its sign set, a NaN too, the negative NaN 0xFFC00000;
// infinity and the other NaNs come back as they are.
float log10Single(float x);

}  // namespace qsl_scalar
