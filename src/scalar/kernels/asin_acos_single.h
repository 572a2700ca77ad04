// Arc sine and arc cosine in single precision.
#pragma once

namespace qsl_scalar {

// Within 1 ulp. Outside [-1, 1], and for a NaN of either sign, the negative NaN 0xFFC00000. asinSingle of a zero is
// that zero; acosSingle of 1 is plus zero.
float asinSingle(float x);
float acosSingle(float x);

}  // namespace qsl_scalar
