// Sign, class, rounding and spacing of single halves.
#include "scalar/rounding.h"
#include "scalar/sign_and_class.h"
#include "scalar/spacing.h"
#include "zthalf/half_scalar.h"

namespace half_scalar {

half_t abs(half_t x) { return {zthalf::pattern::magnitudeOf(x.bits)}; }
half_t sign(half_t x) { return {zthalf::signumOf(x.bits)}; }

bool isnan(half_t x) { return zthalf::pattern::isNaN(x.bits); }
bool isinf(half_t x) { return zthalf::pattern::isInfinite(x.bits); }
bool isfinite(half_t x) { return zthalf::pattern::isFinite(x.bits); }

half_t ceil(half_t x) { return {zthalf::ceilOf(x.bits)}; }
half_t floor(half_t x) { return {zthalf::floorOf(x.bits)}; }
half_t fix(half_t x) { return {zthalf::fixOf(x.bits)}; }
half_t round(half_t x) { return {zthalf::roundOf(x.bits)}; }

half_t eps(half_t x) { return {zthalf::epsOf(x.bits)}; }
half_t nextafter(half_t x, half_t y) { return {zthalf::neighbourOf(x.bits, y.bits)}; }

double ulp(half_t a, half_t b) { return zthalf::ulpDistance(a.bits, b.bits); }
double ulp(half_t a, float b) { return zthalf::ulpDistance(a.bits, b); }
double ulp(half_t a, double b) { return zthalf::ulpDistance(a.bits, b); }
double ulp(float a, half_t b) { return zthalf::ulpDistance(a, b.bits); }
double ulp(double a, half_t b) { return zthalf::ulpDistance(a, b.bits); }

}  // namespace half_scalar
