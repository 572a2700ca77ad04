// Several threads whose tasks run in an environment that flushes subnormals.
#pragma once

#include <tbb/blocked_range.h>
#include <tbb/global_control.h>
#include <tbb/parallel_for.h>
#include <tbb/partitioner.h>
#include <tbb/task_arena.h>

#include <atomic>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <thread>

#include "tests/support/flushed.h"
#include "tests/support/level.h"

namespace zthalf::testing {

inline constexpr int flushingThreads = 4;

// Ends the program unless workers run tasks, and flush in them. A task here waits until one has run elsewhere.
inline void requireFlushingWorkers() {
  const auto caller = std::this_thread::get_id();
  const auto deadline = std::chrono::steady_clock::now() + std::chrono::seconds(20);
  std::atomic<int> elsewhere = 0, notFlushed = 0;
  tbb::parallel_for(
      tbb::blocked_range<int>(0, 64, 1),
      [&](tbb::blocked_range<int> const&) {
        if (!flushes()) ++notFlushed;
        if (std::this_thread::get_id() != caller) ++elsewhere;
        while (elsewhere == 0 && std::chrono::steady_clock::now() < deadline) std::this_thread::yield();
      },
      tbb::simple_partitioner());
  if (elsewhere > 0 && notFlushed == 0) return;
  std::fprintf(stderr, "tasks on workers: %d; tasks that do not flush: %d\n", elsewhere.load(), notFlushed.load());
  std::exit(1);
}

// body() where tasks flush. body() itself runs in the ordinary environment, which its thread leaves for a call. oneTBB
// gives the tasks of an arena the float environment of the thread that made it.
template <class Body>
void onFlushingThreads(Body body) {
  if (!canFlush) {
    std::printf("this processor's float environment is not known here\n");
    std::exit(skipped);
  }
  const tbb::global_control limit(tbb::global_control::max_allowed_parallelism, flushingThreads);
  tbb::task_arena arena(flushingThreads);
  {
    const flushedScope during;
    arena.initialize();
    arena.execute(requireFlushingWorkers);
  }
  arena.execute([&] {
    const flushedScope notHere(false);
    body();
  });
}

}  // namespace zthalf::testing
