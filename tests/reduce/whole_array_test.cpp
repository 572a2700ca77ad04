// Every entry that reduces a whole array against plain recursion: counts, data, leaf boundaries, threads.
#include <gtest/gtest.h>

#include "tests/reduce/reduction_rows.h"
#include "tests/support/threads.h"

namespace zthalf {
namespace {

using namespace zthalf::testing;

TEST(WholeArray, MatchesTheReferenceForEveryCountOfPlainNumbers) {
  const patternVector x = drawn(2 * 1100, content::plain);
  for (auto const& row : wholeRows()) {
    for (unsigned long n = 0; n <= 1100; n += n < 600 ? 1 : 7) row.check(x, n);
  }
}

TEST(LongWholeArray, MatchesTheReferenceForEveryCount) {
  for (const content kind : {content::plain, content::anything}) {
    const patternVector x = drawn(2 * 1100, kind);
    for (auto const& row : wholeRows()) {
      for (unsigned long n = 0; n <= 1100; ++n) row.check(x, n);
    }
  }
}

TEST(WholeArray, MatchesTheReferenceOnAnyPatterns) {
  for (unsigned seed = 1; seed <= 40; ++seed) {
    const patternVector x = drawn(2 * 700, content::anything, seed);
    for (auto const& row : wholeRows()) {
      for (const unsigned long n : {1UL, 2UL, 5UL, 9UL, 17UL + seed, 257UL, 700UL}) row.check(x, n);
    }
  }
}

// A few NaNs and infinities, of either sign and kind, in long chains of numbers.
TEST(WholeArray, MatchesTheReferenceWhereNaNsAreRare) {
  for (unsigned seed = 1; seed <= 30; ++seed) {
    patternVector x = drawn(2 * 9000, content::plain, seed);
    bitSource bits(seed);
    for (unsigned k = 0; k < seed % 7; ++k)
      x[bits() % x.size()] = oneOf<std::uint16_t>({0x7C00, 0xFC00, 0x7E00, 0xFE01, 0x7C01, 0xFD55, 0x8000}, bits);
    for (auto const& row : wholeRows()) {
      for (const unsigned long n : {300UL, 1000UL, 4111UL, 9000UL}) row.check(x, n, "seed " + std::to_string(seed));
    }
  }
}

// One special value, or two, on either side of every place where the tree cuts.
TEST(WholeArray, MatchesTheReferenceWithSpecialsAtEveryLeafBoundary) {
  const patternVector plain = drawn(2 * 1000, content::plain);
  const struct {
    unsigned long n;
    std::vector<unsigned long> boundaries;
  } trees[] = {{513, {0, 256, 384, 513}}, {1000, {0, 250, 500, 750, 1000}}};
  const std::uint16_t specials[] = {0x7E00, 0xFE00, 0x7C01, 0xFC01, 0x7C00, 0xFC00, 0x8000, 0x0000};
  for (auto const& row : wholeRows()) {
    const auto step = static_cast<unsigned long>(row.patternsPerElement());
    for (auto const& tree : trees) {
      for (const unsigned long boundary : tree.boundaries) {
        for (const std::uint16_t first : specials) {
          for (const std::uint16_t second : specials) {
            patternVector x = plain;
            if (boundary > 0) x[(boundary - 1) * step] = first;
            if (boundary < tree.n) x[boundary * step + step - 1] = second;
            row.check(x, tree.n, "around " + std::to_string(boundary));
          }
        }
      }
    }
  }
}

TEST(WholeArray, KeepsMinusZeroOnlyWhereTheOrderOfStepsDoes) {
  const patternVector minusZeros(2 * 600, 0x8000);
  for (auto const& row : wholeRows()) {
    for (const unsigned long n : {1UL, 2UL, 3UL, 256UL, 257UL, 600UL}) row.check(minusZeros, n);
  }
}

void expectAroundPower(int power, unsigned stride) {
  const unsigned long size = 1UL << power;
  const patternVector x = drawn(2 * (size + 1), content::plain);
  for (std::size_t r = 0; r < wholeRows().size(); r += stride) {
    for (const unsigned long n : {size - 1, size, size + 1}) wholeRows()[r].check(x, n);
  }
}

TEST(WholeArray, MatchesTheReferenceAroundPowersOfTwo) {
  for (const int power : {11, 12, 13, 14}) expectAroundPower(power, 1);
  for (const int power : {15, 16, 17}) expectAroundPower(power, 5);
}

TEST(LongWholeArray, MatchesTheReferenceAroundPowersOfTwo) {
  for (int power = 15; power <= 24; ++power) expectAroundPower(power, power > 20 ? 7 : 1);
}

TEST(WholeArray, IsTheSameOnAnyNumberOfThreads) {
  const unsigned long n = 150001;
  patternVector x = drawn(2 * n, content::plain);
  x[70000] = 0xFE00;
  for (auto const& row : wholeRows()) {
    const auto expected = row.expected(row.kind, x, n);
    for (const int threads : {1, 2, 3, 4, 8, 16, 64}) {
      onThreads(threads, [&] {
        for (int repeat = 0; repeat < 3; ++repeat) EXPECT_EQ(row.ours(x, n), expected) << row.name << " on " << threads;
      });
    }
  }
}

}  // namespace
}  // namespace zthalf
