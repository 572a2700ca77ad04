// The exponential in double precision.
#pragma once

namespace qsl_scalar {

// Within 1 ulp. Infinity above 709.78271, plus zero below -745.13322 and for -infinity; a NaN of either sign gives the
// negative NaN 0xFFF8000000000000.
double expDouble(double x);

}  // namespace qsl_scalar
