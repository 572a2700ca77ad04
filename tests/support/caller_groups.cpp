#include "tests/support/caller_groups.h"

#include <tbb/task_group.h>

#include <stdexcept>

#include "frame/loops/task_order.h"

namespace zthalf::testing {

namespace {

struct disturbed : std::runtime_error {
  disturbed() : std::runtime_error("another task of the caller's") {}
};

template <class Condition>
void until(std::chrono::nanoseconds patience, Condition isMet) {
  const auto end = std::chrono::steady_clock::now() + patience;
  while (!isMet() && std::chrono::steady_clock::now() < end) {
  }
}

}  // namespace

void spin(std::chrono::nanoseconds time) {
  until(time, [] { return false; });
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
  tbb::task_group group;
  std::atomic<bool> hasBegun = false;
  try {
    half_utils::taskOrder order;
    group.run(order.inTask([&] {
      while (!hasBegun) {
      }
      spin(after);
      if (kind == disturbance::thrown) throw disturbed();
      group.cancel();
    }));
    group.run_and_wait(order.inTask([&] {
      hasBegun = true;
      call();
    }));
  } catch (disturbed const&) {
  }
}

// A third thread offers the tasks and takes none of them itself.
int waitingCall::tasksTakenDuring(anyCall call) {
  half_utils::taskOrder order;
  tbb::task_group group;
  caller_ = std::this_thread::get_id();
  group.run([&] {
    until(std::chrono::seconds(5), [&] { return callerWaits_ || isOver_; });
    for (int i = 0; i < 20; ++i) {
      group.run([&] { taken_ += !isOver_ && std::this_thread::get_id() == caller_; });
    }
    until(std::chrono::seconds(5), [&] { return isOver_.load(); });
  });
  order.inTask(call)();
  isOver_ = true;
  group.wait();
  return taken_;
}

void waitingCall::meet() {
  if (std::this_thread::get_id() == caller_) {
    until(std::chrono::milliseconds(200), [&] { return otherHasCome_.load(); });
    callerWaits_ = true;
  } else if (!otherHasCome_.exchange(true)) {
    until(std::chrono::milliseconds(100), [&] { return taken_ > 0; });
  }
}

}  // namespace zthalf::testing
