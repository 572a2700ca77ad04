// Pairs of a half and a float or double, numbered, and comparisons of the functions that take them in either order.
#pragma once

#include <bit>
#include <cmath>
#include <cstdint>
#include <type_traits>

#include "core/float_conversion.h"
#include "tests/support/expect_bits.h"
#include "tests/support/sweep.h"
#include "zthalf/half_t.h"

namespace zthalf::testing {

template <class Wide>
struct mixedPair {
  std::uint16_t half;
  Wide wide;
};

// In turn: any two patterns; two of about the same size; a wide number of which the half is nearly a multiple; and one
// that is nearly a multiple of the half.
template <class Wide>
mixedPair<Wide> mixedPairAt(std::uint64_t i) {
  using word = std::conditional_t<std::is_same_v<Wide, float>, std::uint32_t, std::uint64_t>;
  const std::uint64_t random = scrambled(2 * i);
  const std::uint64_t other = scrambled(2 * i + 1);
  const auto half = static_cast<std::uint16_t>(random >> 48);
  const auto value = static_cast<Wide>(widen<double>(half));
  const auto factor = static_cast<Wide>(1 + (random >> 8) % (std::uint64_t{1} << (random & 15)));
  const auto nudged = [&](Wide w) {
    const auto steps = static_cast<word>(other % 9) - 4;
    return std::bit_cast<Wide>(static_cast<word>(std::bit_cast<word>(w) + (i % 8 < 4 ? steps : 0)));
  };
  switch (i % 4) {
    case 0:
      return {half, std::bit_cast<Wide>(static_cast<word>(other))};
    case 1:
      return {half, std::ldexp(static_cast<Wide>(static_cast<std::int64_t>(other)), -63) *
                        std::ldexp(value, static_cast<int>(random % 31) - 15)};
    case 2:
      return {half, nudged(value / factor)};
    default:
      return {half, nudged(value * factor)};
  }
}

inline constexpr std::uint64_t mixedPairCount = 400000;

// halfFirst(half, wide) and wideFirst(wide, half) give patterns; expected(x, y) gets two wide numbers.
template <class Wide, class HalfFirst, class WideFirst, class Expected>
void expectSameOnMixedPairs(char const* name, HalfFirst halfFirst, WideFirst wideFirst, Expected expected) {
  bitComparison compare(name);
  for (std::uint64_t i = 0; i < mixedPairCount; ++i) {
    const mixedPair<Wide> p = mixedPairAt<Wide>(i);
    const Wide value = widen<Wide>(p.half);
    compare.check(halfFirst(p.half, p.wide), expected(value, p.wide), p.half, p.wide);
    compare.check(wideFirst(p.wide, p.half), expected(p.wide, value), p.wide, p.half);
  }
}

}  // namespace zthalf::testing
