// Hyperbolic sine and cosine in single precision.
#pragma once

namespace qsl_scalar {

// Within 2 ulp, and between 88.72 and 89.42, where the result is a product of two roundings, within 2.6. Infinite
// beyond 89.415985, with the sign of x under sinhSingle. sinhSingle of a zero, an infinity or a NaN is that argument as
// it is; coshSingle of a NaN is that NaN made quiet.
float sinhSingle(float x);
float coshSingle(float x);

}  // namespace qsl_scalar
