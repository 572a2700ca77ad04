#include "elementwise/expanding.h"
#include "scalar/functors/arithmetic_functors.h"

namespace half {

ZTHALF_EXPANDING(minus, scalar::emulated::minusFtor)

ZTHALF_TWENTY_PAIRS(ZTHALF_BINARY_ROW, minus)

}  // namespace half
