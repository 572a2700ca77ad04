// The entry list for a public header, up to entries_end.h.
// Without a guard: each header that reads the list borrows it for itself.

#ifndef ZTHALF_UNARY_ENTRIES
#define ZTHALF_ENTRIES_ARE_BORROWED
#include "zthalf/detail/entries.h"
#endif
