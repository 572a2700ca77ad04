// The text that a host writes for a number, for generated source code.
#pragma once

#include "zthalf/detail/export.h"

/// Writes the value as decimal text with a terminating zero: 31 characters at most. The text reads back to the value. A
/// whole number may have no point; a text with an exponent has one before it.
ZTHALF_API void getFloatValueStr(char* buffer, float value);
ZTHALF_API void getDoubleValueStr(char* buffer, double value);
