// The stopping loop over two operands: how they are paired, and where it stops.
#include <gtest/gtest.h>

#include <limits>
#include <vector>

#include "frame/loops/early_exit_loop.h"
#include "tests/support/loops.h"
#include "tests/support/threads.h"

namespace zthalf {
namespace {

using namespace zthalf::testing;
using namespace half::templates::emulated;

// Shows both operands and their order.
struct packFtor {
  unsigned int operator()(unsigned short a, unsigned short b) const { return a * 0x10000u + b; }
};
struct mixFtor {
  unsigned short operator()(unsigned short a, unsigned short b) const {
    return static_cast<unsigned short>(a * 31u + b * 7u + 1);
  }
};

struct isNeverFor {
  bool operator()(unsigned short, unsigned short) const { return false; }
};
// Not symmetric: mistaking one side for the other shows.
struct isStoppingPair {
  bool operator()(unsigned short a, unsigned short b) const { return (a * 3u + b) % 61 == 60; }
};

template <class Ftor, class Pred, class Out>
bool simulate(std::byte* a, std::byte* b, std::byte* c, unsigned long divisor, unsigned long n) {
  for (unsigned long i = 0; i < n; ++i) {
    const auto left = load<unsigned short>(a + i / divisor * sizeof(unsigned short));
    const auto right = load<unsigned short>(b + i % divisor * sizeof(unsigned short));
    if (Pred{}(left, right)) return false;
    store<Out>(c + i * sizeof(Out), Ftor{}(left, right));
  }
  return true;
}

struct pairing {
  char const* name;
  unsigned long left, right, n;  // element counts
};

const pairing pairings[] = {{"scalar on the left", 1, 129, 129},
                            {"scalar on the right", 129, 1, 129},
                            {"one pair", 1, 1, 1},
                            {"row against column", 12, 11, 132},
                            {"column of one", 40, 3, 120},
                            {"equal sizes", 100, 100, 100},
                            {"output shorter than the product", 12, 11, 100}};

template <class Ftor, class Pred, class Out>
void checkPlaces(pairing const& p, std::vector<std::size_t> const& places, std::size_t size) {
  constexpr std::size_t left = 4096, right = 8192;
  stage on(size, 31);
  bitSource bits(32);
  drawInto<unsigned short>(on.initial(), size / sizeof(unsigned short), bits);
  for (const std::size_t at : places) {
    EXPECT_TRUE(on.agrees(
        [&](std::byte* bytes) {
          return halfBinarySimpleLoopWithEarlyExit(arrayAt<unsigned short>(bytes + left),
                                                   arrayAt<unsigned short>(bytes + right), arrayAt<Out>(bytes + at),
                                                   p.right, p.n, Ftor{}, Pred{});
        },
        [&](std::byte* bytes) {
          return simulate<Ftor, Pred, Out>(bytes + left, bytes + right, bytes + at, p.right, p.n);
        }))
        << p.name << ", destination at " << at;
  }
}

TEST(BinaryEarlyExitLoop, PairsQuotientWithRemainder) {
  std::vector<std::size_t> places{1024, 1024 + 2, 1024 + 4};                        // apart
  for (std::size_t at = 4096 - 80; at <= 4096 + 80; at += 2) places.push_back(at);  // on the left operand
  for (std::size_t at = 8192 - 80; at <= 8192 + 80; at += 2) places.push_back(at);  // on the right one
  for (pairing const& p : pairings) {
    checkPlaces<mixFtor, isNeverFor, unsigned short>(p, places, 12'288);
    checkPlaces<mixFtor, isStoppingPair, unsigned short>(p, places, 12'288);
  }
  std::vector<std::size_t> wider;
  for (const std::size_t at : places) {
    if (at % alignof(unsigned int) == 0) wider.push_back(at);
  }
  for (pairing const& p : pairings) {
    checkPlaces<packFtor, isNeverFor, unsigned int>(p, wider, 12'288);
    checkPlaces<packFtor, isStoppingPair, unsigned int>(p, wider, 12'288);
  }
}

// Two arrays of equal size do not meet one by one here: element 0 of the left one meets the whole right one.
TEST(BinaryEarlyExitLoop, PairsOnlyTheFirstLeftElementOfEqualSizes) {
  unsigned short a[] = {10, 20, 30}, b[] = {1, 2, 3};
  unsigned int c[] = {0, 0, 0};
  EXPECT_TRUE(halfBinarySimpleLoopWithEarlyExit(a, b, c, 3, 3, packFtor{}, isNeverFor{}));
  EXPECT_EQ(c[0], 0xA0001u);
  EXPECT_EQ(c[1], 0xA0002u);
  EXPECT_EQ(c[2], 0xA0003u);
}

TEST(BinaryEarlyExitLoop, StopsAtEveryPositionAndLeavesTheRestUntouched) {
  struct isLargeSum {
    bool operator()(unsigned short a, unsigned short b) const { return a + b >= 1000; }
  };
  constexpr unsigned long n = 300;
  for (unsigned long stop = 0; stop <= n; ++stop) {
    std::vector<unsigned short> a(n);
    for (unsigned long i = 0; i < n; ++i) a[i] = static_cast<unsigned short>(i >= stop ? 1000 : i);
    unsigned short b[] = {0};
    std::vector<unsigned int> c(n, 0x5EED5EED);
    EXPECT_EQ(halfBinarySimpleLoopWithEarlyExit(a.data(), b, c.data(), 1, n, packFtor{}, isLargeSum{}), stop == n);
    for (unsigned long i = 0; i < n; ++i) ASSERT_EQ(c[i], i < stop ? i * 0x10000u : 0x5EED5EEDu) << i << ", " << stop;
  }
}

TEST(BinaryEarlyExitLoop, DividesNothingForAnEmptyOutput) {
  unsigned short* const none = nullptr;
  EXPECT_TRUE(halfBinarySimpleLoopWithEarlyExit(none, none, static_cast<unsigned int*>(nullptr), 0, 0, packFtor{},
                                                isNeverFor{}));
}

// The pair is found on ints, whatever the counts are.
TEST(BinaryEarlyExitLoop, FindsItsPairByDivisionOfInts) {
  EXPECT_EQ(pairOf(17, 5).quot, 3);
  EXPECT_EQ(pairOf(17, 5).rem, 2);
  EXPECT_EQ(pairOf((1UL << 31) - 1, 1).quot, std::numeric_limits<int>::max());
  EXPECT_EQ(pairOf((1UL << 32) + 17, 5).quot, 3);
  EXPECT_EQ(pairOf(17, (1UL << 32) + 5).rem, 2);
  EXPECT_EQ(pairOf((1UL << 32) - 7, 3).quot, -2);
  EXPECT_EQ(pairOf((1UL << 32) - 7, 3).rem, -1);
}

void checkParallel(unsigned long left, unsigned long right) {
  const unsigned long n = left * right;
  std::vector<unsigned short> a(left), b(right);
  for (unsigned long i = 0; i < left; ++i) a[i] = static_cast<unsigned short>(i * 40503u);
  for (unsigned long i = 0; i < right; ++i) b[i] = static_cast<unsigned short>(i * 30011u + 5);
  std::vector<unsigned int> serial(n + 1, 9);
  EXPECT_TRUE(halfBinarySimpleLoopWithEarlyExit(a.data(), b.data(), serial.data(), right, n, packFtor{}, isNeverFor{}));
  onEachThreadCount([&](int threads) {
    std::vector<unsigned int> parallel(n + 1, 9);
    EXPECT_TRUE(binaryWithEarlyExitParallel(a.data(), b.data(), parallel.data(), right, n, packFtor{}, isNeverFor{}));
    EXPECT_EQ(parallel, serial) << threads << " threads";
  });
}

TEST(BinaryEarlyExitParallel, GivesTheBitsOfTheSerialLoopWhereNothingStops) {
  checkParallel(1, 30'000);
  checkParallel(30'000, 1);
  checkParallel(150, 200);
}

TEST(BinaryEarlyExitParallel, IsFalseForAStoppingPairAnywhere) {
  struct isSeven {
    bool operator()(unsigned short a, unsigned short) const { return a == 7; }
  };
  constexpr unsigned long n = 5000;
  unsigned short b[] = {4};
  onEachThreadCount([&](int) {
    for (unsigned long stop = 0; stop < n; stop += 251) {
      std::vector<unsigned short> a(n, 3);
      a[stop] = 7;
      std::vector<unsigned int> c(n, 9);
      EXPECT_FALSE(binaryWithEarlyExitParallel(a.data(), b, c.data(), 1, n, packFtor{}, isSeven{}));
      EXPECT_EQ(c[stop], 9u);
      for (const unsigned int x : c) ASSERT_TRUE(x == 9 || x == 0x30004);
    }
  });
}

threadWitness witness;

struct witnessFtor {
  unsigned short operator()(unsigned short a, unsigned short) const {
    witness.called();
    return a;
  }
};

TEST(BinaryEarlyExitLoop, RunsAMillionElementsOnTheCallingThread) {
  constexpr unsigned long million = 1'000'000;
  std::vector<unsigned short> a(million, 1), c(million);
  unsigned short b[] = {2};
  onThreads(4, [&] {
    witness.expectOnlyThisThread();
    EXPECT_TRUE(halfBinarySimpleLoopWithEarlyExit(a.data(), b, c.data(), 1, million, witnessFtor{}, isNeverFor{}));
    EXPECT_EQ(witness.calls(), million);
    EXPECT_EQ(witness.strangers(), 0u);
  });
}

}  // namespace
}  // namespace zthalf
