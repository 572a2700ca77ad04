#include "frame/loops/cancellable_range.h"

#include <gtest/gtest.h>
#include <tbb/blocked_range.h>
#include <tbb/parallel_for.h>

#include <array>
#include <atomic>
#include <cstdint>
#include <cstring>
#include <type_traits>
#include <vector>

#include "tests/support/threads.h"

namespace zthalf {
namespace {

using range = half::cancellable_range<unsigned long>;

struct bounds {
  unsigned long begin, end, grain;
};

const bounds examples[] = {{0, 0, 1},         {5, 5, 1},    {7, 3, 1},       {0, 1, 1},
                           {0, 2, 1},         {0, 2, 2},    {3, 10, 2},      {3, 10, 6},
                           {3, 10, 7},        {3, 10, 8},   {0, 257, 256},   {0, 256, 256},
                           {1000, 5096, 256}, {0, -1UL, 3}, {-9UL, -1UL, 3}, {1UL << 63, -1UL, 256}};

TEST(CancellableRange, HoldsEndBeginGrainAndFlagInThisOrder) {
  bool flag = false;
  const range r(11, 47, 5, &flag);
  static_assert(std::is_standard_layout_v<range> && std::is_trivially_copyable_v<range>);
  std::array<std::uint64_t, 4> fields;
  static_assert(sizeof fields == sizeof r);
  std::memcpy(&fields, &r, sizeof r);
  EXPECT_EQ(fields[0], 47u);
  EXPECT_EQ(fields[1], 11u);
  EXPECT_EQ(fields[2], 5u);
  EXPECT_EQ(fields[3], reinterpret_cast<std::uintptr_t>(&flag));
}

TEST(CancellableRange, BehavesAsABlockedRangeWhileNotCancelled) {
  for (const auto [begin, end, grain] : examples) {
    bool flag = false;
    const range r(begin, end, grain, &flag);
    const tbb::blocked_range<unsigned long> peer(begin, end, grain);
    EXPECT_EQ(r.begin(), peer.begin());
    EXPECT_EQ(r.end(), peer.end());
    EXPECT_EQ(r.grainsize(), peer.grainsize());
    EXPECT_EQ(r.empty(), peer.empty()) << begin << " to " << end;
    if (begin > end) continue;
    EXPECT_EQ(r.is_divisible(), grain < end - begin) << begin << " to " << end << " by " << grain;
  }
}

TEST(CancellableRange, OnceCancelledIsEmptyEndsAtItsBeginAndSplitsNoMore) {
  for (const auto [begin, end, grain] : examples) {
    bool flag = false;
    const range r(begin, end, grain, &flag);
    flag = true;
    EXPECT_TRUE(r.empty());
    EXPECT_FALSE(r.is_divisible());
    EXPECT_EQ(r.begin(), begin);
    EXPECT_EQ(r.end(), begin);
    flag = false;
    EXPECT_EQ(r.end(), end);
  }
}

TEST(CancellableRange, SplitsWhereABlockedRangeDoes) {
  for (const auto [begin, end, grain] : examples) {
    if (begin >= end || end - begin <= grain) continue;
    bool flag = false;
    range left(begin, end, grain, &flag);
    range right(left, tbb::split());
    tbb::blocked_range<unsigned long> peerLeft(begin, end, grain);
    tbb::blocked_range<unsigned long> peerRight(peerLeft, tbb::split());
    EXPECT_EQ(right.begin(), begin + (end - begin) / 2);
    EXPECT_EQ(right.begin(), peerRight.begin());
    EXPECT_EQ(left.begin(), peerLeft.begin());
    EXPECT_EQ(left.end(), peerLeft.end());
    EXPECT_EQ(right.end(), peerRight.end());
    EXPECT_EQ(left.grainsize(), grain);
    EXPECT_EQ(right.grainsize(), grain);
    right.cancel();
    EXPECT_TRUE(flag);
    EXPECT_TRUE(left.empty());
  }
}

// A flag that is set while a piece splits must not shorten the pieces for good: they only stop.
TEST(CancellableRange, SplittingACancelledRangeKeepsItsBounds) {
  bool flag = true;
  range left(100, 200, 10, &flag);
  const range right(left, tbb::split());
  flag = false;
  EXPECT_EQ(left.begin(), 100u);
  EXPECT_EQ(left.end(), 150u);
  EXPECT_EQ(right.begin(), 150u);
  EXPECT_EQ(right.end(), 200u);
}

TEST(CancellableRange, CancelReachesEveryPieceAndCopy) {
  bool flag = false;
  range left(0, 4096, 256, &flag);
  const range right(left, tbb::split());
  const range copy = left;
  copy.cancel();
  EXPECT_TRUE(flag);
  EXPECT_TRUE(left.empty() && right.empty() && copy.empty());
}

TEST(CancellableRange, ABodyThatAsksForTheEndAtEachStepStopsAtOnce) {
  bool flag = false;
  const range r(10, 1000, 1, &flag);
  unsigned long visited = 0;
  for (unsigned long i = r.begin(); i < r.end(); ++i) {
    ++visited;
    if (i == 42) r.cancel();
  }
  EXPECT_EQ(visited, 33u);
}

TEST(CancellableRange, IsARangeThatVisitsEachIndexOnce) {
  testing::onEachThreadCount([](int) {
    bool flag = false;
    std::vector<std::atomic<int>> visits(10'000);
    tbb::parallel_for(range(0, visits.size(), 16, &flag), [&](range const& r) {
      for (unsigned long i = r.begin(); i < r.end(); ++i) ++visits[i];
    });
    for (auto const& count : visits) EXPECT_EQ(count, 1);
    EXPECT_FALSE(flag);
  });
}

}  // namespace
}  // namespace zthalf
