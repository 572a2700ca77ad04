#include "elementwise/expanding.h"
#include "scalar/functors/hypot_functors.h"

namespace half {

ZTHALF_EXPANDING(atan2, scalar::emulated::atan2Ftor)

ZTHALF_ANGLE_ENTRIES(ZTHALF_BINARY_ROW)

}  // namespace half
