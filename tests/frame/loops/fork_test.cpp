// The forks themselves, inside of what a caller does with oneTBB.
#include <gtest/gtest.h>

#include <atomic>
#include <cfenv>
#include <stdexcept>
#include <vector>

#include "reduce/tree.h"
#include "tests/reduce/traced_fold.h"
#include "tests/support/caller_groups.h"

namespace zthalf {
namespace {

using namespace zthalf::testing;
using half_utils::cancellableIndices;
using std::chrono::microseconds;

using visits = std::vector<std::atomic<int>>;

// Every kind of fork as a loop that calls body(index) for each index below n. A tree does so for each of its elements.
struct forkKind {
  char const* name;
  void (*run)(unsigned long n, half_utils::bodyView<unsigned long> body);
};

void runTree(unsigned long begin, unsigned long end, half_utils::bodyView<unsigned long> body) {
  if (end - begin == 1) return body(begin);
  const unsigned long middle = begin + (end - begin) / 2;
  half_utils::runBoth([&] { runTree(begin, middle, body); }, [&] { runTree(middle, end, body); });
}

const forkKind forkKinds[] = {
    {"affine ranges",
     [](unsigned long n, auto body) {
       half_utils::forAffineRanges(n, 1, [&](unsigned long begin, unsigned long end) {
         for (unsigned long i = begin; i < end; ++i) body(i);
       });
     }},
    {"ranges",
     [](unsigned long n, auto body) {
       half_utils::forRanges(n, 1, [&](unsigned long begin, unsigned long end) {
         for (unsigned long i = begin; i < end; ++i) body(i);
       });
     }},
    {"cancellable ranges",
     [](unsigned long n, auto body) {
       EXPECT_TRUE(half_utils::forRangesUntilCancelled(n, 1, [&](cancellableIndices const& r) {
         for (unsigned long i = r.begin(); i < r.end(); ++i) body(i);
       }));
     }},
    {"a tree", [](unsigned long n, auto body) { half_utils::asForkingTree([&] { runTree(0, n, body); }); }}};

TEST(Forks, RunInFullInsideOfAGroupThatIsCancelled) {
  for (auto const& kind : forkKinds) {
    expectUndisturbed(kind.name, [&] {
      visits seen(200);
      kind.run(seen.size(), [&](unsigned long i) {
        spin(microseconds(1));
        ++seen[i];
      });
      return std::vector<int>(seen.begin(), seen.end());
    });
    onThreads(2, [&] {
      visits seen(200);
      inCancelledGroup([&] { kind.run(seen.size(), [&](unsigned long i) { ++seen[i]; }); });
      for (auto const& count : seen) ASSERT_EQ(count, 1) << kind.name;
    });
  }
}

struct bodyFailure : std::runtime_error {
  using std::runtime_error::runtime_error;
};

TEST(Forks, RethrowWhatLeavesABodyInsideOfACancelledGroupToo) {
  for (auto const& kind : forkKinds) {
    onEachThreadCount([&](int) {
      int caught = 0;
      inCancelledGroup([&] {
        try {
          kind.run(100, [](unsigned long i) {
            if (i == 77) throw bodyFailure("77");
          });
        } catch (bodyFailure const&) {
          ++caught;
        }
      });
      EXPECT_EQ(caught, 1) << kind.name;
    });
  }
}

// A caller may hold a lock that its other tasks want: they must not come to this thread while it waits in the library.
template <class Call>
void expectNoTaskTaken(char const* name, Call call) {
  onThreads(3, [&] {
    for (int attempt = 0; attempt < 50; ++attempt) {
      waitingCall waiting;
      EXPECT_EQ(waiting.tasksTakenDuring([&] { call(waiting); }), 0) << name;
      if (waiting.hasMet()) return;
    }
    ADD_FAILURE() << name << " was never done by two threads";
  });
}

TEST(Forks, TakeNoTaskOfTheCallersWhileTheyWait) {
  for (auto const& kind : forkKinds) {
    expectNoTaskTaken(kind.name, [&](waitingCall& waiting) { kind.run(2, [&](unsigned long) { waiting.meet(); }); });
  }
}

struct meetingFold : tracedFold {
  static inline waitingCall* waiting = nullptr;
  static void leaves(half_utils::leafSpan<source> const* leaves, unsigned count, trace* results) {
    waiting->meet();
    tracedFold::leaves(leaves, count, results);
  }
};

TEST(Forks, OfReductionsTakeNoTaskOfTheCallersEither) {
  const std::vector<std::uint32_t> x(100'000);
  expectNoTaskTaken("a reduction", [&](waitingCall& waiting) {
    meetingFold::waiting = &waiting;
    half_utils::reducedTree<meetingFold>(x.data(), x.size());
  });
}

// The rounding direction stands for the rest of the environment; it can be asked for anywhere.
TEST(Forks, RunTheirTasksInTheFloatingPointEnvironmentOfTheCall) {
  for (auto const& kind : forkKinds) {
    onThreads(4, [&] {
      const auto directions = [&] {
        std::vector<int> seen(200);
        kind.run(seen.size(), [&](unsigned long i) {
          spin(microseconds(3));
          seen[i] = std::fegetround();
        });
        return seen;
      };
      EXPECT_EQ(directions(), std::vector<int>(200, FE_TONEAREST)) << kind.name;
      std::fesetround(FE_UPWARD);
      const std::vector<int> upward = directions();
      const int after = std::fegetround();
      std::fesetround(FE_TONEAREST);
      EXPECT_EQ(upward, std::vector<int>(200, FE_UPWARD)) << kind.name;
      EXPECT_EQ(after, FE_UPWARD) << kind.name;
    });
  }
}

}  // namespace
}  // namespace zthalf
