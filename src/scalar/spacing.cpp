#include "scalar/spacing.h"

#include "zthalf/half_scalar.h"

namespace half_scalar {

half_t eps(half_t x) { return {zthalf::epsOf(x.bits)}; }
half_t nextafter(half_t x, half_t y) { return {zthalf::neighbourOf(x.bits, y.bits)}; }

double ulp(half_t a, half_t b) { return zthalf::ulpDistance(a.bits, b.bits); }
double ulp(half_t a, float b) { return zthalf::ulpDistance(a.bits, b); }
double ulp(half_t a, double b) { return zthalf::ulpDistance(a.bits, b); }
double ulp(float a, half_t b) { return zthalf::ulpDistance(a, b.bits); }
double ulp(double a, half_t b) { return zthalf::ulpDistance(a, b.bits); }

}  // namespace half_scalar
