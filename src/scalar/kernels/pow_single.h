// x to the power y in single precision.
#pragma once

namespace qsl_scalar {

// Within 1 ulp for bases that are powers of two. Of other bases the logarithm's constants leave up to 98 ulp at large
// powers; the results of halves depend on it.
//
// Not the power of IEEE 754 in its special cases: a NaN to the power 0 is the negative NaN 0xFFC00000, 1 to the power
// NaN is too, -infinity to a positive power that is not an integer is the same NaN unless the power is 0.5, where it
// is the square root's NaN, positive. A negative base needs an integer power.
float powSingle(float x, float y);

}  // namespace qsl_scalar
