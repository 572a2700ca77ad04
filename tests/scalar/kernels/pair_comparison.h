// What the tests of the kernels of two arguments share: stated results, and comparisons over corner pairs and numbered
// ones.
#pragma once

#include <gtest/gtest.h>

#include <atomic>
#include <initializer_list>

#include "tests/scalar/kernels/pair_operands.h"
#include "tests/support/expect_bits.h"
#include "tests/support/sweep.h"

namespace zthalf::testing {

template <class Wide>
struct pairCase {
  Wide first;
  Wide second;
  wordOf<Wide> expected;
  char const* why;
};

template <class Wide>
void expectPairs(Wide (*kernel)(Wide, Wide), std::initializer_list<pairCase<Wide>> cases) {
  for (pairCase<Wide> const& c : cases) EXPECT_EQ(hex(kernel(c.first, c.second)), hex(c.expected)) << c.why;
}

template <class Wide, class Result, class Expected>
void expectSameOnCornerPairs(char const* name, Result result, Expected expected) {
  bitComparison compare(name);
  forEveryCornerPair<Wide>([&](Wide x, Wide y) { compare.check(result(x, y), expected(x, y), x, y); });
}

// at(i) gives pair number i.
template <class At, class Result, class Expected>
void expectSameOnNumberedPairs(std::uint64_t count, At at, Result result, Expected expected) {
  std::atomic<std::uint64_t> differences{0};
  std::atomic<std::uint64_t> example{0};
  inBlocks(count, [&](std::uint64_t first, std::uint64_t end) {
    for (std::uint64_t i = first; i < end; ++i) {
      const auto p = at(i);
      if (bitsIn(result(p.first, p.second)) == bitsIn(expected(p.first, p.second))) continue;
      ++differences;
      example = i;
    }
  });
  const auto p = at(example);
  EXPECT_EQ(differences, 0u) << "one of them at " << hex(p.first) << ", " << hex(p.second) << ": "
                             << hex(result(p.first, p.second)) << ", expected " << hex(expected(p.first, p.second));
}

inline constexpr std::uint64_t quickPairs = 1000000;
inline constexpr std::uint64_t longPairs = 100000000;

}  // namespace zthalf::testing
