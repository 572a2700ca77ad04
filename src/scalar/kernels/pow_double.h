// x to the power y in double precision.
#pragma once

namespace qsl_scalar {

// Within 1 ulp for |y| up to 2^31; beyond, the short logarithm leaves up to 640 ulp, by its constants.
//
// Not the power of IEEE 754 in its special cases: a NaN to the power 0 is the negative NaN 0xFFF8000000000000, 1 to the
// power NaN is too, -infinity to a positive power that is not an integer is the same NaN unless the power is 0.5, where
// it is the square root's NaN, positive. A negative base needs an integer power. From |y| above 2^31 on, a negative
// base that is not next to -1 gives +infinity or +0 also for an odd power.
double powDouble(double x, double y);

}  // namespace qsl_scalar
