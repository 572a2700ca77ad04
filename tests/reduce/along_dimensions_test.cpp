// Every entry that reduces along dimensions against plain recursion.
#include <gtest/gtest.h>

#include "tests/reduce/reduction_rows.h"
#include "tests/support/threads.h"

namespace zthalf {
namespace {

using namespace zthalf::testing;

unsigned long countOf(sizeVector const& dims) {
  unsigned long n = 1;
  for (const unsigned long size : dims) n *= size;
  return n;
}

void expectAll(sizeVector const& dims, content kind, unsigned seed = 1) {
  const patternVector x = drawn(2 * countOf(dims), kind, seed);
  for (auto const& row : alongRows()) {
    if (dims.size() > 1) row.check(x, dims, true);
    row.check(x, dims, false);
  }
}

TEST(AlongDimensions, MatchTheReferenceForOneToSixDimensions) {
  for (auto const& dims : std::vector<sizeVector>{{1},
                                                  {7},
                                                  {30},
                                                  {1, 1},
                                                  {5, 7},
                                                  {7, 5},
                                                  {300, 5},
                                                  {5, 300},
                                                  {257, 40},
                                                  {8300, 2},
                                                  {1, 70},
                                                  {70, 1},
                                                  {3, 4, 5},
                                                  {1, 9, 17},
                                                  {260, 3, 4},
                                                  {2, 3, 4, 5},
                                                  {9, 2, 10, 3},
                                                  {2, 3, 2, 3, 4},
                                                  {5, 1, 2, 3, 2},
                                                  {2, 3, 4, 2, 3, 2},
                                                  {3, 9, 2, 9, 2, 4}}) {
    expectAll(dims, content::plain);
    expectAll(dims, content::anything);
  }
}

TEST(AlongDimensions, MatchTheReferenceOnSizesOfZero) {
  for (auto const& dims : std::vector<sizeVector>{{0},
                                                  {0, 3},
                                                  {3, 0},
                                                  {0, 0},
                                                  {0, 3, 2},
                                                  {3, 0, 2},
                                                  {3, 2, 0},
                                                  {2, 0, 2, 3},
                                                  {2, 3, 0, 3},
                                                  {2, 3, 2, 0},
                                                  {0, 2, 3, 2, 2}})
    expectAll(dims, content::plain);
}

// Lengths around the widths of tiles and of the blocks of rows.
TEST(AlongDimensions, MatchTheReferenceForManyRunLengths) {
  for (unsigned long n = 1; n <= 40; ++n) {
    expectAll({n, 19}, content::anything, static_cast<unsigned>(n));
    expectAll({19, n}, content::anything, static_cast<unsigned>(n));
  }
}

TEST(AlongDimensions, MatchTheReferenceOnBothSidesOfTheFork) {
  for (const unsigned long outputs : {1023UL, 1024UL, 1025UL, 2100UL}) {
    expectAll({outputs, 3}, content::anything);
    expectAll({3, outputs}, content::anything);
  }
  expectAll({30, 3, 40}, content::anything);
}

TEST(AlongDimensions, MatchTheReferenceWhereNaNsAreRare) {
  const sizeVector dims{300, 40};
  for (unsigned seed = 1; seed <= 8; ++seed) {
    patternVector x = drawn(2 * countOf(dims), content::plain, seed);
    bitSource bits(seed);
    for (unsigned k = 0; k < seed; ++k)
      x[bits() % x.size()] = oneOf<std::uint16_t>({0x7C00, 0xFC00, 0x7E00, 0xFE01, 0x7C01, 0xFD55}, bits);
    for (auto const& row : alongRows()) {
      for (const bool firstReduced : {true, false}) row.check(x, dims, firstReduced, "seed " + std::to_string(seed));
    }
  }
}

// More steps than a 16-bit count of numbers holds.
TEST(AlongDimensions, CountNumbersInChainsOfAnyLength) {
  const unsigned long steps = 131100;
  patternVector x(2 * 2 * steps, 0x3C00);
  for (std::size_t i = 0; i < x.size(); i += 6) x[i] = 0x7E00;
  for (auto const& row : alongRows()) {
    if (row.kind.op == reference::folding::mean && row.kind.omitsNaN) row.check(x, {2, steps}, false);
  }
}

TEST(AlongDimensions, AreTheSameOnAnyNumberOfThreads) {
  for (auto const& dims : std::vector<sizeVector>{{5, 1400, 3}, {1400, 5, 2}}) {
    patternVector x = drawn(2 * countOf(dims), content::plain);
    x[5000] = 0xFE00;
    for (auto const& row : alongRows()) {
      for (const bool firstReduced : {true, false}) {
        const auto expected = row.expected(row.kind, x, dims, firstReduced);
        for (const int threads : {1, 2, 3, 4, 8, 16, 64})
          onThreads(threads, [&] { EXPECT_TRUE(row.ours(x, dims, firstReduced) == expected) << row.name << threads; });
      }
    }
  }
}

// A tall column is a tree that forks by itself, also inside of a fork over outputs.
TEST(AlongDimensions, TallColumnsForkByThemselves) {
  const sizeVector dims{70000, 3};
  const patternVector x = drawn(2 * countOf(dims), content::plain);
  for (auto const& row : alongRows()) row.check(x, dims, true);
}

}  // namespace
}  // namespace zthalf
