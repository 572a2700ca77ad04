// What the tests of the single-precision kernels share: stated results, and comparisons around the places where a kernel
// changes its way.
#pragma once

#include <gtest/gtest.h>

#include <bit>
#include <cstdint>
#include <initializer_list>

#include "tests/support/expect_bits.h"

namespace zthalf::testing {

// For kernels that may take a microsecond; a prime too.
inline constexpr std::uint64_t slowStride = 10007;

struct floatCase {
  std::uint32_t x;
  std::uint32_t expected;
  char const* why;
};

inline void expectCases(float (*kernel)(float), std::initializer_list<floatCase> cases) {
  for (floatCase const& c : cases) {
    EXPECT_EQ(hex(kernel(std::bit_cast<float>(c.x))), hex(c.expected)) << c.why;
  }
}

// The same bits for every float within a distance of the boundaries, of either sign.
template <class Result, class Expected>
void expectSameAround(std::initializer_list<std::uint32_t> boundaries, Result result, Expected expected) {
  constexpr std::uint32_t distance = 300;
  bitComparison compare("kernel");
  for (const std::uint32_t boundary : boundaries) {
    for (std::uint32_t word = boundary - distance; word != boundary + distance; ++word) {
      const float x = std::bit_cast<float>(word);
      compare.check(result(x), expected(x), x);
      compare.check(result(-x), expected(-x), -x);
    }
  }
}

}  // namespace zthalf::testing
