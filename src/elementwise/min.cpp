#include "elementwise/expanding.h"
#include "scalar/functors/extremum_functors.h"

namespace half {

ZTHALF_EXPANDING(min, scalar::emulated::minFtor)
ZTHALF_EXPANDING(minOmitNaN, scalar::emulated::minOmitNaNFtor)

ZTHALF_MIN_ENTRIES(ZTHALF_BINARY_ROW)

}  // namespace half
