// Marks what the library exports.
#pragma once

#if defined(__GNUC__)
#define ZTHALF_API __attribute__((visibility("default")))
#else
#error "zthalf is built and used with GCC or clang"
#endif
