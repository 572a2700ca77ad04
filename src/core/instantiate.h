// How a source that defines operations of the table makes the instances of its rows: a family's list with its shape's
// macro, such as ZTHALF_TWENTY_PAIRS(ZTHALF_BINARY_ROW, plus), in namespace half.
#pragma once

#include "zthalf/detail/element_types.h"
#include "zthalf/detail/entries.h"
#include "zthalf/detail/entry_shapes.h"

#define ZTHALF_ROW(entry, signature, ...) template signature __VA_ARGS__;
