// Inverse trigonometric and hyperbolic functions of a complex half.
#pragma once

#include "scalar/complex/complex_value.h"

namespace zthalf {

complexHalf asinOf(complexHalf z);
complexHalf acosOf(complexHalf z);
complexHalf atanOf(complexHalf z);

complexHalf asinhOf(complexHalf z);
complexHalf acoshOf(complexHalf z);
complexHalf atanhOf(complexHalf z);

// Of a real number, inside or outside the domain of the real function.
ZTHALF_INLINE complexHalf complexAsinOf(std::uint16_t x) { return asinOf(complexHalf{x, 0}); }
ZTHALF_INLINE complexHalf complexAcosOf(std::uint16_t x) { return acosOf(complexHalf{x, 0}); }
ZTHALF_INLINE complexHalf complexAtanhOf(std::uint16_t x) { return atanhOf(complexHalf{x, 0}); }

}  // namespace zthalf
