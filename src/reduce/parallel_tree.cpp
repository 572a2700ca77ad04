#include "reduce/parallel_tree.h"

#include <tbb/parallel_invoke.h>

#include "frame/loops/fork.h"
#include "frame/loops/lost_threads.h"
#include "frame/loops/task_order.h"

namespace half_utils {

void asForkingTree(bodyView<> root) { threadsAreLost() ? root() : whileTakingOnlyOwnTasks(root); }

void runBoth(bodyView<> first, bodyView<> second) {
  if (threadsAreLost()) {
    first();
    second();
    return;
  }
  tbb::task_group_context context = forkContext();
  taskOrder order;
  // The last one is run here, the other one is offered to other threads.
  tbb::parallel_invoke(order.inTask(second), order.inTask(first), context);
}

}  // namespace half_utils
