// Running at a given number of threads, and seeing which threads took part.
#pragma once

#include <tbb/global_control.h>
#include <tbb/task_arena.h>

#include <atomic>
#include <thread>

namespace zthalf::testing {

inline constexpr int threadCounts[] = {1, 2, 4, 8};

// body() in an arena of this many threads, whatever the machine has.
template <class Body>
void onThreads(int count, Body body) {
  const tbb::global_control limit(tbb::global_control::max_allowed_parallelism, static_cast<std::size_t>(count));
  tbb::task_arena arena(count);
  arena.execute(body);
}

template <class Body>
void onEachThreadCount(Body body) {
  for (const int count : threadCounts) onThreads(count, [&] { body(count); });
}

// Counts the calls that come from another thread than the one that expects them.
class threadWitness {
 public:
  void expectOnlyThisThread() {
    expected_ = std::this_thread::get_id();
    strangers_ = 0;
    calls_ = 0;
  }
  void called() {
    calls_.fetch_add(1, std::memory_order_relaxed);
    if (std::this_thread::get_id() != expected_) strangers_.fetch_add(1, std::memory_order_relaxed);
  }
  unsigned long calls() const { return calls_; }
  unsigned long strangers() const { return strangers_; }

 private:
  std::thread::id expected_;
  std::atomic<unsigned long> calls_ = 0, strangers_ = 0;
};

}  // namespace zthalf::testing
