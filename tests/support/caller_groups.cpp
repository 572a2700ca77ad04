#include "tests/support/caller_groups.h"

#include <tbb/parallel_for.h>
#include <tbb/partitioner.h>
#include <tbb/task_group.h>

#include <atomic>
#include <stdexcept>

#include "frame/task_order.h"

namespace zthalf::testing {

namespace {

struct disturbed : std::runtime_error {
  disturbed() : std::runtime_error("another task of the caller's") {}
};

}  // namespace

void spin(std::chrono::nanoseconds time) {
  const auto end = std::chrono::steady_clock::now() + time;
  while (std::chrono::steady_clock::now() < end) {
  }
}

void inCancelledGroup(anyCall call) {
  half_utils::taskOrder order;
  tbb::task_group group;
  group.run_and_wait(order.inTask([&] {
    group.cancel();
    call();
  }));
}

// The other task begins to count when the call does. It may have to wait for a thread, and comes too late then.
void besideDisturbance(disturbance kind, std::chrono::nanoseconds after, anyCall call) {
  half_utils::taskOrder order;
  tbb::task_group group;
  std::atomic<bool> hasBegun = false;
  group.run([&] {
    while (!hasBegun) {
    }
    spin(after);
    if (kind == disturbance::thrown) throw disturbed();
    group.cancel();
  });
  try {
    group.run_and_wait(order.inTask([&] {
      hasBegun = true;
      call();
    }));
  } catch (disturbed const&) {
  }
}

void asPiecesOfALoop(int pieces, anyCall call) {
  half_utils::taskOrder order;
  tbb::parallel_for(0, pieces, order.inTask([&](int) { call(); }), tbb::simple_partitioner());
}

}  // namespace zthalf::testing
