// The tree against oneTBB's own deterministic reduction with a grain of 256, and independent of threads.
#include "reduce/tree.h"

#include <gtest/gtest.h>
#include <tbb/blocked_range.h>
#include <tbb/parallel_reduce.h>
#include <tbb/partitioner.h>

#include <numeric>
#include <vector>

#include "tests/reduce/traced_fold.h"
#include "tests/support/threads.h"

namespace zthalf {
namespace {

using namespace zthalf::testing;

struct schedulerBody {
  explicit schedulerBody(std::uint32_t const* src) : source(src) {}
  schedulerBody(schedulerBody const& other, tbb::split) : source(other.source) {}
  void operator()(tbb::blocked_range<unsigned long> const& r) {
    for (unsigned long i = r.begin(); i < r.end(); ++i) value = stepped(value, source[i]);
  }
  void join(schedulerBody const& right) { value = joined(value, right.value); }

  std::uint32_t const* source;
  trace value = 17;
};

trace byTheScheduler(std::vector<std::uint32_t> const& x, unsigned long n) {
  schedulerBody body(x.data());
  onThreads(1, [&] {
    tbb::parallel_deterministic_reduce(tbb::blocked_range<unsigned long>(0, n, 256), body, tbb::simple_partitioner());
  });
  return body.value;
}

std::vector<std::uint32_t> numbered(unsigned long n) {
  std::vector<std::uint32_t> x(n);
  std::iota(x.begin(), x.end(), 1);
  return x;
}

void expectTheSchedulersTree(std::vector<std::uint32_t> const& x, unsigned long n) {
  ASSERT_EQ(half_utils::reducedTree<tracedFold>(x.data(), n), byTheScheduler(x, n)) << n << " elements";
}

TEST(Tree, IsTheSchedulersForEverySmallCount) {
  const auto x = numbered(2200);
  for (unsigned long n = 0; n <= x.size(); ++n) expectTheSchedulersTree(x, n);
}

TEST(Tree, IsTheSchedulersAroundPowersOfTwo) {
  const auto x = numbered((1UL << 18) + 300);
  for (int power = 11; power <= 18; ++power) {
    for (const long distance : {-257L, -2L, -1L, 0L, 1L, 2L, 15L, 16L, 129L, 257L})
      expectTheSchedulersTree(x, static_cast<unsigned long>((1L << power) + distance));
  }
}

// Where some leaves lie one level deeper than others: 256 and 257 elements side by side.
TEST(Tree, IsTheSchedulersWhereLeavesLieAtTwoDepths) {
  const auto x = numbered(257 * 256 + 2);
  for (const unsigned long leaves : {2UL, 16UL, 32UL, 64UL, 256UL}) {
    for (unsigned long n = leaves * 256 - 1; n <= leaves * 257 + 1; n += 1 + leaves / 9) expectTheSchedulersTree(x, n);
  }
}

TEST(Tree, IsTheSameOnAnyNumberOfThreads) {
  const auto x = numbered((1UL << 20) + 12345);
  for (const unsigned long n : {100UL, 32768UL, 32769UL, 100003UL, x.size()}) {
    const trace expected = byTheScheduler(x, n);
    for (const int threads : {1, 2, 3, 4, 8, 16, 64}) {
      onThreads(threads, [&] {
        for (int repeat = 0; repeat < 3; ++repeat)
          EXPECT_EQ(half_utils::reducedTree<tracedFold>(x.data(), n), expected) << n << " on " << threads;
      });
    }
  }
}

struct scattered : tracedFold {
  static inline threadWitness witness;
  static void leaves(half_utils::leafSpan<source> const* leaves, unsigned count, trace* results) {
    witness.called();
    tracedFold::leaves(leaves, count, results);
  }
};

TEST(Tree, OfASmallArrayStaysOnTheCallingThread) {
  const auto x = numbered(32768);
  scattered::witness.expectOnlyThisThread();
  for (int repeat = 0; repeat < 100; ++repeat) half_utils::reducedTree<scattered>(x.data(), x.size());
  EXPECT_EQ(scattered::witness.strangers(), 0u);
  EXPECT_EQ(scattered::witness.calls(), 400u);
}

TEST(Tree, ManyTreesAtOnceAreThoseOfEachAlone) {
  const auto x = numbered(40 * 300);
  for (const unsigned long n : {0UL, 1UL, 7UL, 255UL, 256UL, 257UL, 300UL}) {
    const unsigned long trees = half_utils::treesAtOnce(n);
    trace results[half_utils::batchLeaves];
    half_utils::reduceTrees<tracedFold>(x.data(), n, trees, results);
    for (unsigned long t = 0; t < trees; ++t)
      EXPECT_EQ(results[t], half_utils::reducedTree<tracedFold>(x.data() + t * n, n)) << t << " of " << n;
  }
}

TEST(Tree, HoldsOneBatchOfLeavesUpToItsNumberOfElements) {
  for (unsigned long n = 1; n <= half_utils::batchElements; ++n)
    ASSERT_LE(half_utils::leavesOf(n), half_utils::batchLeaves) << n;
}

}  // namespace
}  // namespace zthalf
