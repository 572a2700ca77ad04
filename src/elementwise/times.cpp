#include "elementwise/expanding.h"
#include "scalar/functors/arithmetic_functors.h"

namespace half {

ZTHALF_EXPANDING(times, scalar::emulated::timesFtor)

ZTHALF_TWENTY_PAIRS(ZTHALF_BINARY_ROW, times)

}  // namespace half
