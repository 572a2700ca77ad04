#include "elementwise/comparison.h"

namespace half {
ZTHALF_COMPARING(ge, getFirstArgFtor)
}
