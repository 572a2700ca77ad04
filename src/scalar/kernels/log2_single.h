// The logarithm to base 2 in single precision.
#pragma once

namespace qsl_scalar {

// Within 1.5 ulp; powers of two are exact. A zero gives -infinity, a negative number the negative NaN 0xFFC00000;
// infinity and every NaN come back as they are.
float log2Single(float x);

}  // namespace qsl_scalar
