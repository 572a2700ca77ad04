// The remainder with the sign of the divisor, in single and double precision.
#pragma once

namespace qsl_scalar {

// x less the multiple of y that leaves a result between zero and y. Exact where the signs agree; where they differ the
// exact remainder is added to y with one rounding. By zero the result is x, and of two zeros the second one. An
// infinite or NaN x, and a NaN y, give a negative default NaN: 0xFFC00000, 0xFFF8000000000000. A zero result has the
// sign of y.
float modSingle(float x, float y);
double modDouble(double x, double y);

}  // namespace qsl_scalar
