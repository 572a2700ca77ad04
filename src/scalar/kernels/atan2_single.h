// The angle of a point in single precision.
// Internal: promises nothing to users of the library.
#pragma once

namespace qsl_scalar {

// The angle of (x, y), from -pi to pi; the ordinate comes first. Two zeros give plus zero, whatever their signs, and a
// NaN gives the negative NaN 0xFFC00000.
float atan2Single(float y, float x);

}  // namespace qsl_scalar
