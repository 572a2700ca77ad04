#include "elementwise/expanding.h"
#include "scalar/functors/hypot_functors.h"

namespace half {

ZTHALF_EXPANDING(hypot, scalar::emulated::hypotFtor)

ZTHALF_HYPOT_ENTRIES(ZTHALF_BINARY_ROW)

}  // namespace half
