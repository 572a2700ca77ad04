// How the library forks: apart from what oneTBB does for the caller. For the sources that instantiate its templates.
#pragma once

#include <tbb/task_arena.h>
#include <tbb/task_group.h>

namespace half_utils {

// What the tasks of one fork have in common.
//
// isolated: a caller's task group can be cancelled while one of its tasks is in the library, because another task threw
// or because the caller wants no more. A loop bound to that group would return with its work undone, and the call would
// go on with what was never written. Our loops end early only if one of our own bodies throws.
//
// fp_settings: tasks take the floating-point environment of the forking thread, as the same call does that needs no
// second thread. Otherwise they would take the one that was in force when the thread entered its arena.
inline tbb::task_group_context forkContext() {
  using group = tbb::task_group_context;
  return group(group::isolated, group::fp_settings);
}

// Runs the loop so that a thread which waits in it takes no task of the caller's meanwhile: that task might want a lock
// that the caller of the library holds.
template <class Loop>
void whileTakingOnlyOwnTasks(Loop loop) {
  tbb::this_task_arena::isolate(loop);
}

}  // namespace half_utils
