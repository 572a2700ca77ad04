#include "reduce/extremum_reductions.h"

namespace half {

ZTHALF_REDUCTIONS_OF(max)

ZTHALF_MAX_REDUCTION_ENTRIES(ZTHALF_EXTREMUM_ROW)

}  // namespace half
