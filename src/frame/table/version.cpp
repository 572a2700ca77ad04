#include "zthalf/version.h"

int zthalf_version() { return ZTHALF_VERSION; }
