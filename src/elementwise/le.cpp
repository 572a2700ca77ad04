#include "elementwise/comparison.h"

namespace half {
ZTHALF_COMPARING(le, getFirstArgFtor)
}
