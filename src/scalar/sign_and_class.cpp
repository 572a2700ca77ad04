#include "scalar/sign_and_class.h"

#include "zthalf/half_scalar.h"

namespace half_scalar {

half_t abs(half_t x) { return {zthalf::pattern::magnitudeOf(x.bits)}; }
half_t sign(half_t x) { return {zthalf::signumOf(x.bits)}; }

bool isnan(half_t x) { return zthalf::pattern::isNaN(x.bits); }
bool isinf(half_t x) { return zthalf::pattern::isInfinite(x.bits); }
bool isfinite(half_t x) { return zthalf::pattern::isFinite(x.bits); }

}  // namespace half_scalar
