// The square root, with the NaN of the defining float unit.
#pragma once

#include <cmath>

#include "core/nan_policy.h"

namespace qsl_scalar {

// Correctly rounded. A negative number gives the positive default NaN, minus zero gives minus zero, and a NaN comes
// back quiet with its sign.
ZTHALF_INLINE float squareRoot(float x) { return zthalf::settled(std::sqrt(x), x); }
ZTHALF_INLINE double squareRoot(double x) { return zthalf::settled(std::sqrt(x), x); }

}  // namespace qsl_scalar
