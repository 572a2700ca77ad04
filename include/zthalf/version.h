// Which zthalf this is: of the headers as macros, of the library in use as a function. For C and C++.
#pragma once

#include "zthalf/detail/export.h"

/// The version of these headers. The build reads it here: this is where it is written down.
#define ZTHALF_VERSION_MAJOR 0
#define ZTHALF_VERSION_MINOR 1
#define ZTHALF_VERSION_PATCH 0

/// One number to compare with, in #if too: 100 for 0.1.0, 10203 for 1.2.3.
#define ZTHALF_VERSION (ZTHALF_VERSION_MAJOR * 10000 + ZTHALF_VERSION_MINOR * 100 + ZTHALF_VERSION_PATCH)

/// The same as text: "0.1.0".
#define ZTHALF_VERSION_STRING               \
  ZTHALF_VERSION_TEXT(ZTHALF_VERSION_MAJOR) \
  "." ZTHALF_VERSION_TEXT(ZTHALF_VERSION_MINOR) "." ZTHALF_VERSION_TEXT(ZTHALF_VERSION_PATCH)
#define ZTHALF_VERSION_TEXT(number) ZTHALF_VERSION_TEXT_AS_IT_STANDS(number)
#define ZTHALF_VERSION_TEXT_AS_IT_STANDS(number) #number

#ifdef __cplusplus
extern "C" {
#endif

/// ZTHALF_VERSION of the library that the program runs with. It may be greater than that of the headers the program was
/// compiled with: a shared library can be exchanged for a later one of the same SONAME.
ZTHALF_API int zthalf_version(void);

#ifdef __cplusplus
}
#endif
