#include "reduce/parallel_tree.h"

#include <tbb/parallel_invoke.h>

#include "frame/task_order.h"

namespace half_utils {

void runBoth(bodyView<> first, bodyView<> second) {
  taskOrder order;
  tbb::parallel_invoke(order.inTask(first), order.inTask(second));
}

}  // namespace half_utils
