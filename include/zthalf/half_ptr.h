// The table: one writable function pointer for each array operation and pair of element types.
#pragma once

#include "zthalf/detail/element_types.h"
#include "zthalf/detail/entries_begin.h"
#include "zthalf/detail/entry_shapes.h"
#include "zthalf/detail/export.h"

/// The pointers through which every half_vector function jumps. `half_ptr::<entry>Ptr` is filled when the library is
/// loaded and is never null; the library itself never writes one. A program may store a function of the same signature
/// in an entry to replace that operation for the whole process; nothing guards such a store against calls running on
/// other threads.
namespace half_ptr {

#define ZTHALF_ROW(entry, signature, ...) extern ZTHALF_API signature* entry##Ptr;
ZTHALF_TABLE
#undef ZTHALF_ROW

/// 0 when the library is loaded, 1 from the first VLInitialize_half or CPU_Dispatch on. No operation reads it.
extern ZTHALF_API unsigned char initialized;

/// Whether `initialized` is set.
ZTHALF_API bool isInitialized();

/// The function named for choosing among implementations of the entries. There is one implementation of each, so it
/// changes no entry, whatever its argument: it sets `initialized` and returns 0.
ZTHALF_API int CPU_Dispatch(int);

}  // namespace half_ptr

#include "zthalf/detail/entries_end.h"
