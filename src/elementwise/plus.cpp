#include "elementwise/expanding.h"
#include "scalar/functors/arithmetic_functors.h"

namespace half {

ZTHALF_EXPANDING(plus, scalar::emulated::plusFtor)

ZTHALF_TWENTY_PAIRS(ZTHALF_BINARY_ROW, plus)

}  // namespace half
