// Tables of single results of a unary half function.
#pragma once

#include <gtest/gtest.h>

#include <cstdint>
#include <ostream>

#include "tests/support/expect_bits.h"

namespace zthalf::testing {

using halfFunction = half_t (*)(half_t);

struct halfCase {
  halfFunction function;
  std::uint16_t x;
  std::uint16_t expected;
  char const* why;
};

inline void PrintTo(halfCase const& c, std::ostream* out) { *out << c.why; }

class HalfFunctionCase : public ::testing::TestWithParam<halfCase> {};

// Every pattern, bit for bit.
inline void expectSameOnEveryPattern(char const* name, halfFunction function, halfFunction reference) {
  bitComparison compare(name);
  for (std::uint32_t p = 0; p <= 0xFFFF; ++p) {
    const half_t x{static_cast<std::uint16_t>(p)};
    compare.check(function(x), reference(x), x);
  }
}

// Every NaN gives 0x7E00 with the sign that its own sign leads to.
inline void expectNaNSigns(char const* name, halfFunction function, std::uint16_t ofPositive,
                           std::uint16_t ofNegative) {
  bitComparison compare(name);
  for (std::uint32_t p = 0x7C01; p <= 0x7FFF; ++p) {
    const half_t positive{static_cast<std::uint16_t>(p)};
    const half_t negative{static_cast<std::uint16_t>(p | 0x8000)};
    compare.check(function(positive), ofPositive, positive);
    compare.check(function(negative), ofNegative, negative);
  }
}

}  // namespace zthalf::testing
