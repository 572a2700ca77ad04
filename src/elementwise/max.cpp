#include "elementwise/expanding.h"
#include "scalar/functors/extremum_functors.h"

namespace half {

ZTHALF_EXPANDING(max, scalar::emulated::maxFtor)
ZTHALF_EXPANDING(maxOmitNaN, scalar::emulated::maxOmitNaNFtor)

ZTHALF_MAX_ENTRIES(ZTHALF_BINARY_ROW)

}  // namespace half
