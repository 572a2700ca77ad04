#include "elementwise/comparison.h"

namespace half {
ZTHALF_COMPARING(ne, boolOrFtor)
}
