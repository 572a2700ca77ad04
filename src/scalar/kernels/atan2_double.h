// The angle of a point in double precision.
#pragma once

namespace qsl_scalar {

// The angle of (x, y), from -pi to pi, within 1.5 ulp; the ordinate comes first. Two zeros give plus zero, whatever
// their signs, and a NaN gives the negative NaN 0xFFF8000000000000.
double atan2Double(double y, double x);

}  // namespace qsl_scalar
