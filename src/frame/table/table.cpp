// The table's variables, filled statically: no code runs to make them.
#include "zthalf/detail/entries.h"
#include "zthalf/half_ops.h"
#include "zthalf/half_ptr.h"
#include "zthalf/half_reductions.h"

namespace half_ptr {

namespace element = half::element;  // named by rows of functions with one type

#define ZTHALF_ROW(entry, signature, ...) signature* entry##Ptr = &half::__VA_ARGS__;
ZTHALF_TABLE
#undef ZTHALF_ROW

}  // namespace half_ptr
