// Trigonometric and hyperbolic functions of a complex half.
#pragma once

#include "scalar/complex/complex_value.h"

namespace zthalf {

complexHalf sinOf(complexHalf z);
complexHalf cosOf(complexHalf z);
complexHalf tanOf(complexHalf z);
complexHalf sinpiOf(complexHalf z);
complexHalf cospiOf(complexHalf z);

complexHalf sinhOf(complexHalf z);
complexHalf coshOf(complexHalf z);
complexHalf tanhOf(complexHalf z);

}  // namespace zthalf
