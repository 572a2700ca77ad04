// Hyperbolic sine and cosine in single precision.
// Internal: promises nothing to users of the library.
#pragma once

namespace qsl_scalar {

// Within 2 ulp for every float. Infinite beyond 89.41599, with the sign of x under sinhSingle. sinhSingle of a zero, an
// infinity or a NaN is that argument as it is; coshSingle of a NaN is that NaN made quiet.
float sinhSingle(float x);
float coshSingle(float x);

}  // namespace qsl_scalar
