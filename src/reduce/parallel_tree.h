// The fork under a reduction tree's upper levels.
#pragma once

#include "frame/loops/parallel_ranges.h"

namespace half_utils {

// Runs the root of a tree that forks by runBoth, on the calling thread, which while it waits for others takes tasks of
// this tree and nothing else. Said once at the root and not at each fork, so that the thread can help everywhere below.
void asForkingTree(bodyView<> root);

// Runs both, on two threads if one is free, and returns when both are done. An exception that leaves one of them is
// rethrown here.
void runBoth(bodyView<> first, bodyView<> second);

}  // namespace half_utils
