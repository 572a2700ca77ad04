#include "frame/loops/parallel_ranges.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <atomic>
#include <memory>
#include <stdexcept>
#include <vector>

#include "tests/support/threads.h"

namespace zthalf {
namespace {

using half_utils::cancellableIndices;
using testing::onEachThreadCount;
using testing::onThreads;

struct loopSize {
  unsigned long n, grain;
};

const loopSize sizes[] = {{0, 1},     {0, 128},   {1, 1},      {1, 128},   {7, 1},         {127, 128},
                          {128, 128}, {129, 128}, {1283, 128}, {4097, 64}, {100'003, 256}, {100'003, 4096}};

class visitCounts {
 public:
  explicit visitCounts(unsigned long n) : counts_(n) {}
  void visit(unsigned long begin, unsigned long end) {
    ++pieces_;
    for (unsigned long i = begin; i < end; ++i) counts_.at(i).fetch_add(1, std::memory_order_relaxed);
  }
  void expectOnceEach() const {
    for (unsigned long i = 0; i < counts_.size(); ++i) ASSERT_EQ(counts_[i], 1) << "index " << i;
  }
  unsigned long pieces() const { return pieces_; }

 private:
  std::vector<std::atomic<int>> counts_;
  std::atomic<unsigned long> pieces_ = 0;
};

template <class Loop>
void checkVisits(Loop loop) {
  onEachThreadCount([&](int) {
    for (const auto [n, grain] : sizes) {
      visitCounts counts(n);
      loop(n, grain, counts);
      counts.expectOnceEach();
      const unsigned long fewest = n == 0 ? 0 : 1;
      const unsigned long most = n <= grain ? fewest : n;
      EXPECT_THAT(counts.pieces(), ::testing::AllOf(::testing::Ge(fewest), ::testing::Le(most)))
          << n << " by " << grain;
    }
  });
}

TEST(ForAffineRanges, VisitsEveryIndexOnceAndCutsNothingUpToTheGrain) {
  checkVisits([](unsigned long n, unsigned long grain, visitCounts& counts) {
    half_utils::forAffineRanges(n, grain, [&](unsigned long begin, unsigned long end) { counts.visit(begin, end); });
  });
}

TEST(ForRanges, VisitsEveryIndexOnceAndCutsNothingUpToTheGrain) {
  checkVisits([](unsigned long n, unsigned long grain, visitCounts& counts) {
    half_utils::forRanges(n, grain, [&](unsigned long begin, unsigned long end) { counts.visit(begin, end); });
  });
}

TEST(ForRanges, NeverCutsAPieceBelowHalfTheGrain) {
  onEachThreadCount([](int) {
    std::atomic<unsigned long> least = -1UL;
    half_utils::forRanges(100'003, 256, [&](unsigned long begin, unsigned long end) {
      unsigned long seen = least;
      while (end - begin < seen && !least.compare_exchange_weak(seen, end - begin)) {
      }
    });
    EXPECT_GE(least, 128u);
  });
}

TEST(ForRangesUntilCancelled, VisitsEveryIndexOnceAndIsTrueWhenNobodyCancels) {
  checkVisits([](unsigned long n, unsigned long grain, visitCounts& counts) {
    EXPECT_TRUE(half_utils::forRangesUntilCancelled(
        n, grain, [&](cancellableIndices const& r) { counts.visit(r.begin(), r.end()); }));
  });
}

TEST(ForRangesUntilCancelled, IsFalseWhenABodyCancels) {
  onEachThreadCount([](int) {
    for (const unsigned long cancelling : {0UL, 1UL, 4999UL, 9999UL}) {
      std::vector<std::atomic<int>> visits(10'000);
      EXPECT_FALSE(half_utils::forRangesUntilCancelled(10'000, 64, [&](cancellableIndices const& r) {
        for (unsigned long i = r.begin(); i < r.end(); ++i) {
          ++visits[i];
          if (i == cancelling) r.cancel();
        }
      }));
      EXPECT_EQ(visits[cancelling], 1);
      for (auto const& count : visits) EXPECT_LE(count, 1);
    }
  });
}

// Pieces that were cut before may still reach the body, but there is nothing left in them, and no more are cut.
TEST(ForRangesUntilCancelled, HasNoWorkLeftOnceCancelled) {
  onThreads(1, [] {
    unsigned long pieces = 0, elements = 0;
    EXPECT_FALSE(half_utils::forRangesUntilCancelled(1'000'000, 256, [&](cancellableIndices const& r) {
      ++pieces;
      for (unsigned long i = r.begin(); i < r.end(); ++i) {
        ++elements;
        r.cancel();
      }
    }));
    EXPECT_EQ(elements, 1u);
    EXPECT_LT(pieces, 1'000'000u / 256 / 10);
  });
}

struct bodyFailure : std::runtime_error {
  using std::runtime_error::runtime_error;
};

template <class Loop>
void expectRethrown(Loop loop) {
  onEachThreadCount([&](int threads) {
    for (const unsigned long failing : {0UL, 777UL, 9'999UL}) {
      const auto body = [&](auto begin, auto end) {
        for (auto i = begin; i < end; ++i) {
          if (i == failing) throw bodyFailure(std::to_string(i));
        }
      };
      try {
        loop(10'000UL, 64UL, body);
        ADD_FAILURE() << "nothing was thrown on " << threads << " threads";
      } catch (bodyFailure const& failure) {
        EXPECT_EQ(failure.what(), std::to_string(failing));
      }
    }
  });
}

TEST(ForAffineRanges, RethrowsWhatLeavesABody) {
  expectRethrown([](auto n, auto grain, auto const& body) { half_utils::forAffineRanges(n, grain, body); });
}

TEST(ForRanges, RethrowsWhatLeavesABody) {
  expectRethrown([](auto n, auto grain, auto const& body) { half_utils::forRanges(n, grain, body); });
}

TEST(ForRangesUntilCancelled, RethrowsWhatLeavesABody) {
  expectRethrown([](auto n, auto grain, auto const& body) {
    half_utils::forRangesUntilCancelled(n, grain, [&](cancellableIndices const& r) { body(r.begin(), r.end()); });
  });
}

TEST(BodyView, CallsTheObjectItWasMadeFromAndNoCopy) {
  struct onlyOne {
    onlyOne() = default;
    onlyOne(onlyOne const&) = delete;
    unsigned long sum = 0;
    void operator()(unsigned long a, unsigned long b) { sum += 10 * a + b; }
  } body;
  const half_utils::rangeBody view(body);
  const half_utils::rangeBody another = view;
  view(4, 2);
  another(1, 7);
  EXPECT_EQ(body.sum, 59u);
}

TEST(BodyView, PassesReferencesThrough) {
  bool cancelled = false;
  const cancellableIndices range(3, 9, 1, &cancelled);
  cancellableIndices const* seen = nullptr;
  const auto body = [&](cancellableIndices const& r) { seen = &r; };
  half_utils::cancellableBody{body}(range);
  EXPECT_EQ(seen, &range);
}

}  // namespace
}  // namespace zthalf
