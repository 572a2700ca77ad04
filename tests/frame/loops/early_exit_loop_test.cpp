// The loops that stop, as templates, over functors and conditions of the tests' own.
#include "frame/loops/early_exit_loop.h"

#include <gtest/gtest.h>

#include <optional>
#include <stdexcept>
#include <vector>

#include "tests/support/loops.h"
#include "tests/support/threads.h"

namespace zthalf {
namespace {

using namespace zthalf::testing;
using namespace half::templates::emulated;

static_assert(earlyExitGrain == 256);

constexpr unsigned short stopper = 0xDEAD;

struct isStopper {
  ZTHALF_INLINE bool operator()(unsigned short x) const { return x == stopper; }
};

// Met by a part of all values, so that what a loop has written can stop it too.
template <unsigned Divisor>
struct isMultipleOf {
  template <class In>
  ZTHALF_INLINE bool operator()(In x) const {
    return static_cast<unsigned long long>(x) % Divisor == 0;
  }
};

template <class Out>
struct scrambleFtor {
  static constexpr unsigned long grain = 256;
  template <class In>
  ZTHALF_INLINE Out operator()(In x) const {
    const std::uint64_t product = (static_cast<std::uint64_t>(x) + 0x9E37) * 0xBF58476D1CE4E5B9u;
    return static_cast<Out>(product >> (64 - 8 * sizeof(Out)));
  }
};

template <class Pred, class Out>
auto stoppingElement() {
  return [](auto x) { return Pred{}(x) ? std::nullopt : std::optional<Out>(scrambleFtor<Out>{}(x)); };
}

template <class In, class Out, class Pred>
bool runLoop(In* src, Out* dst, unsigned long n) {
  return halfUnarySimpleLoopWithEarlyExit(src, dst, n, scrambleFtor<Out>{}, Pred{});
}

template <class In, class Out>
void checkStoppingLoop() {
  checkLoop<In, Out>(&runLoop<In, Out, isMultipleOf<97>>, stoppingElement<isMultipleOf<97>, Out>());
  checkLoop<In, Out>(&runLoop<In, Out, isMultipleOf<1021>>, stoppingElement<isMultipleOf<1021>, Out>());
}

TEST(UnaryEarlyExitLoop, StopsWhereTheAscendingPassDoesForEveryPairOfSizes) {
  checkStoppingLoop<unsigned short, unsigned short>();
  checkStoppingLoop<unsigned short, unsigned char>();
  checkStoppingLoop<unsigned short, unsigned int>();
  checkStoppingLoop<unsigned int, unsigned short>();
  checkStoppingLoop<unsigned long long, unsigned short>();
}

constexpr unsigned long blocks = 3 * scanBlock + 1;

// Distinct values in which only chosen elements stop a loop.
std::vector<unsigned short> goodValues(unsigned long n) {
  std::vector<unsigned short> values(n);
  for (unsigned long i = 0; i < n; ++i) values[i] = static_cast<unsigned short>(i * 7 + 3);
  return values;
}

// The outcome that the loop promises: finished before the stopping element, untouched from it on.
void expectStopAt(std::vector<unsigned short> const& source, std::vector<unsigned short> const& result,
                  std::vector<unsigned short> const& before, unsigned long stop) {
  for (unsigned long i = 0; i < result.size(); ++i) {
    const unsigned short expected = i < stop ? scrambleFtor<unsigned short>{}(source[i]) : before[i];
    ASSERT_EQ(result[i], expected) << "element " << i << ", the loop stopping at " << stop;
  }
}

TEST(UnaryEarlyExitLoop, StopsAtEveryPositionOfSeveralBlocks) {
  std::vector<unsigned short> source = goodValues(blocks);
  const std::vector<unsigned short> sentinels(blocks, 0x5EED);
  for (unsigned long stop = 0; stop <= blocks; ++stop) {
    auto stopping = source;
    if (stop < blocks) stopping[stop] = stopper;
    if (stop + 300 < blocks) stopping[stop + 300] = stopper;
    auto apart = sentinels;
    EXPECT_EQ((runLoop<unsigned short, unsigned short, isStopper>(stopping.data(), apart.data(), blocks)),
              stop == blocks);
    expectStopAt(source, apart, sentinels, stop);
    auto inPlace = stopping;
    EXPECT_EQ((runLoop<unsigned short, unsigned short, isStopper>(inPlace.data(), inPlace.data(), blocks)),
              stop == blocks);
    expectStopAt(source, inPlace, stopping, stop);
    if (HasFailure()) return;
  }
}

TEST(UnaryEarlyExitLoop, EndsBeforeAStopperThatStandsBehindTheArray) {
  std::vector<unsigned short> source = goodValues(blocks + 1);
  for (unsigned long n = 0; n <= blocks; ++n) {
    auto fenced = source;
    fenced[n] = stopper;
    std::vector<unsigned short> result(blocks + 1, 0x5EED);
    const auto before = result;
    EXPECT_TRUE((runLoop<unsigned short, unsigned short, isStopper>(fenced.data(), result.data(), n)));
    expectStopAt(source, result, before, n);
    if (HasFailure()) return;
  }
}

// A destination one element ahead hands each result to the next element, also across blocks.
TEST(UnaryEarlyExitLoop, StopsAtAValueThatItWroteItself) {
  unsigned stoppedInALaterBlock = 0;
  for (unsigned short start = 1; start < 100; ++start) {
    std::vector<unsigned short> chain(blocks + 1, start);
    auto expected = chain;
    unsigned long stop = 0;
    while (stop < blocks && !isMultipleOf<1021>{}(expected[stop])) {
      expected[stop + 1] = scrambleFtor<unsigned short>{}(expected[stop]);
      ++stop;
    }
    EXPECT_EQ((runLoop<unsigned short, unsigned short, isMultipleOf<1021>>(chain.data(), chain.data() + 1, blocks)),
              stop == blocks);
    EXPECT_EQ(chain, expected);
    if (stop > scanBlock && stop < blocks) ++stoppedInALaterBlock;
  }
  EXPECT_GT(stoppedInALaterBlock, 0u);
}

TEST(UnaryEarlyExitLoop, IsTrueForAnEmptyArrayAndTouchesNothing) {
  EXPECT_TRUE((runLoop<unsigned short, unsigned short, isStopper>(nullptr, nullptr, 0)));
}

TEST(UnaryEarlyExitParallel, GivesTheBitsOfTheSerialLoopWhereNothingStops) {
  for (const unsigned long n : {0UL, 1UL, 256UL, 257UL, blocks, 50'000UL}) {
    auto source = goodValues(n);
    for (auto& x : source) x = x == stopper ? 1 : x;
    std::vector<unsigned int> serial(n + 1, 9);
    EXPECT_TRUE((runLoop<unsigned short, unsigned int, isStopper>(source.data(), serial.data(), n)));
    onEachThreadCount([&](int threads) {
      std::vector<unsigned int> parallel(n + 1, 9);
      EXPECT_TRUE(
          unaryWithEarlyExitParallel(source.data(), parallel.data(), n, scrambleFtor<unsigned int>{}, isStopper{}));
      EXPECT_EQ(parallel, serial) << n << " elements on " << threads << " threads";
    });
  }
}

TEST(UnaryEarlyExitParallel, IsFalseForAStopperAnywhereAndWritesNothingButResults) {
  constexpr unsigned long n = 20'000;
  auto source = goodValues(n);
  for (auto& x : source) x = x == stopper ? 1 : x;
  onEachThreadCount([&](int) {
    for (unsigned long stop = 0; stop < n; stop += 499) {
      auto stopping = source;
      stopping[stop] = stopper;
      std::vector<unsigned int> result(n, 9);
      EXPECT_FALSE(
          unaryWithEarlyExitParallel(stopping.data(), result.data(), n, scrambleFtor<unsigned int>{}, isStopper{}));
      EXPECT_EQ(result[stop], 9u);
      for (unsigned long i = 0; i < n; ++i) {
        ASSERT_TRUE(result[i] == 9 || result[i] == scrambleFtor<unsigned int>{}(source[i])) << "element " << i;
      }
    }
  });
}

struct isNever {
  bool operator()(int) const { return false; }
};

struct refusingFtor {
  static constexpr unsigned long grain = 256;
  int operator()(int x) const { return x == 4321 ? throw std::domain_error("4321") : x; }
};

TEST(UnaryEarlyExitLoop, LetsAnExceptionOfTheFunctorOut) {
  std::vector<int> source(10'000), result(10'000);
  for (int i = 0; i < 10'000; ++i) source[static_cast<std::size_t>(i)] = i;
  EXPECT_THROW(halfUnarySimpleLoopWithEarlyExit(source.data(), result.data(), source.size(), refusingFtor{}, isNever{}),
               std::domain_error);
  onEachThreadCount([&](int) {
    EXPECT_THROW(unaryWithEarlyExitParallel(source.data(), result.data(), source.size(), refusingFtor{}, isNever{}),
                 std::domain_error);
  });
}

threadWitness witness;

struct witnessFtor {
  static constexpr unsigned long grain = 256;
  unsigned short operator()(unsigned short x) const {
    witness.called();
    return x;
  }
};
struct witnessPred {
  bool operator()(unsigned short) const {
    witness.called();
    return false;
  }
};

TEST(UnaryEarlyExitLoop, RunsAMillionElementsOnTheCallingThread) {
  constexpr unsigned long million = 1'000'000;
  std::vector<unsigned short> source(million, 1), result(million);
  onThreads(4, [&] {
    witness.expectOnlyThisThread();
    EXPECT_TRUE(halfUnarySimpleLoopWithEarlyExit(source.data(), result.data(), million, witnessFtor{}, witnessPred{}));
    EXPECT_GE(witness.calls(), 2 * million);
    EXPECT_EQ(witness.strangers(), 0u);
  });
}

}  // namespace
}  // namespace zthalf
