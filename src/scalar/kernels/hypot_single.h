// The length of a vector of two parts in single precision.
#pragma once

namespace qsl_scalar {

// sqrt(u^2 + v^2), within 1 ulp, without overflow or underflow on the way. With an infinity or a NaN the result is |u|
// + |v|, so an infinity does not outrank a NaN; NaN results are positive.
float hypotSingle(float u, float v);

}  // namespace qsl_scalar
