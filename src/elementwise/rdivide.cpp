#include "elementwise/expanding.h"
#include "scalar/functors/arithmetic_functors.h"

namespace half {

ZTHALF_EXPANDING(rdivide, scalar::emulated::rdivideFtor)

ZTHALF_TWENTY_PAIRS(ZTHALF_BINARY_ROW, rdivide)

}  // namespace half
