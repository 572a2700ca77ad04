#include "elementwise/comparison.h"

namespace half {
ZTHALF_COMPARING(eq, boolAndFtor)
}
