// Exponentials and powers of complex halves.
#pragma once

#include "scalar/complex/complex_value.h"

namespace zthalf {

complexHalf expOf(complexHalf z);
complexHalf expm1Of(complexHalf z);
complexHalf pow2Of(complexHalf z);
complexHalf pow10Of(complexHalf z);

}  // namespace zthalf
