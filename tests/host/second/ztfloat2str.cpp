// The second host's numbers: as many digits as it takes, never fewer than nine, and no exponent for large ones.
#include <cstdio>

#include "zthalf/host/float_text.h"

void getFloatValueStr(char* buffer, float value) { std::snprintf(buffer, 32, "%.9g", static_cast<double>(value)); }
void getDoubleValueStr(char* buffer, double value) { std::snprintf(buffer, 32, "%.17g", value); }
