// Calls from inside of task groups of oneTBB that their owner uses for other things too.
#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <atomic>
#include <chrono>
#include <string>
#include <thread>

#include "frame/loops/parallel_ranges.h"
#include "tests/support/drawn_values.h"
#include "tests/support/threads.h"

namespace zthalf::testing {

using anyCall = half_utils::bodyView<>;

// In a task of a group that has been cancelled.
void inCancelledGroup(anyCall call);

// In a task of a group beside another task, which this long after the call began throws, or cancels the group.
enum class disturbance { thrown, cancelled };
void besideDisturbance(disturbance, std::chrono::nanoseconds after, anyCall call);

// A call on this thread that waits for work on another one while there are tasks of the caller's to be taken.
class waitingCall {
 public:
  // Makes the call, whose bodies are to call meet(). How many tasks of the caller's this thread took meanwhile.
  int tasksTakenDuring(anyCall call);

  // Holds the calling thread until another one has come to meet it, and the other one then for a while.
  void meet();
  // Whether another one came: oneTBB does not promise it, and now and then wakes none.
  bool hasMet() const { return otherHasCome_; }

 private:
  std::thread::id caller_;
  std::atomic<bool> otherHasCome_ = false, callerWaits_ = false, isOver_ = false;
  std::atomic<int> taken_ = 0;
};

// Lets so much time pass on this thread.
void spin(std::chrono::nanoseconds time);

// Expects of a call what it returns alone, whatever becomes of the group that it is made in. The moments of the
// disturbances are spread over the time that the call takes.
template <class Call>
void expectUndisturbed(std::string const& name, Call call, int rounds = 5) {
  onThreads(4, [&] {
    const auto alone = call();
    using clock = std::chrono::steady_clock;
    const auto begin = clock::now();
    auto result = call();
    const std::chrono::nanoseconds usual = clock::now() - begin;
    EXPECT_TRUE(result == alone) << name << " a second time";
    inCancelledGroup([&] { result = call(); });
    EXPECT_TRUE(result == alone) << name << " in a cancelled group";
    bitSource bits(51);
    for (int round = 0; round < rounds; ++round) {
      for (const disturbance kind : {disturbance::thrown, disturbance::cancelled}) {
        const std::chrono::nanoseconds after(bits() % static_cast<unsigned long>(std::max(usual.count(), 1L)));
        besideDisturbance(kind, after, [&] { result = call(); });
        EXPECT_TRUE(result == alone) << name << ", disturbed after " << after.count() << " of some " << usual.count()
                                     << " ns";
      }
      if (::testing::Test::HasFailure()) return;
    }
  });
}

}  // namespace zthalf::testing
