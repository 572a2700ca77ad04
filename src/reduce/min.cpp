#include "reduce/extremum_reductions.h"

namespace half {

ZTHALF_REDUCTIONS_OF(min)

ZTHALF_MIN_REDUCTION_ENTRIES(ZTHALF_EXTREMUM_ROW)

}  // namespace half
