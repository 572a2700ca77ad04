// The square root of a complex half.
#pragma once

#include "scalar/complex/complex_value.h"

namespace zthalf {

// With a real part that is not negative. An imaginary part of -0 counts as +0. A real argument that is no negative
// number has the real root; otherwise a NaN gives 0x7E00 twice, and an infinite imaginary part is kept beside infinity.
complexHalf sqrtOf(complexHalf z);

ZTHALF_INLINE complexHalf complexSqrtOf(std::uint16_t x) { return sqrtOf(complexHalf{x, 0}); }

}  // namespace zthalf
