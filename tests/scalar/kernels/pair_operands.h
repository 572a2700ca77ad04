// Operand pairs for the kernels of two arguments, numbered.
#pragma once

#include <array>
#include <bit>
#include <cmath>
#include <cstdint>
#include <type_traits>

#include "tests/support/sweep.h"

namespace zthalf::testing {

template <class Wide>
struct operandPair {
  Wide first;
  Wide second;
};

template <class Wide>
using wordOf = std::conditional_t<std::is_same_v<Wide, float>, std::uint32_t, std::uint64_t>;

// The places where some kernel of two arguments changes its way: magnitudes of every class, of every limit of a
// scaling, of every interval of the arc tangent, and integers.
template <class Wide>
inline constexpr std::array<wordOf<Wide>, 40> cornerMagnitudes = [] {
  using word = wordOf<Wide>;
  constexpr bool isSingle = sizeof(Wide) == 4;
  const auto bitsOfNumber = [](double v) { return std::bit_cast<word>(static_cast<Wide>(v)); };
  const word infinity = isSingle ? word{0x7F800000} : static_cast<word>(0x7FF0000000000000);
  const word normal = isSingle ? word{0x00800000} : static_cast<word>(0x0010000000000000);
  const word up = bitsOfNumber(isSingle ? 0x1p60 : 0x1p500);
  const word down = bitsOfNumber(isSingle ? 0x1p-60 : 0x1p-500);
  return std::array<word, 40>{0,
                              1,
                              2,
                              normal - 1,
                              normal,
                              normal + 1,
                              up - 1,
                              up,
                              up + 1,
                              down - 1,
                              down,
                              down + 1,
                              bitsOfNumber(0x1p-29),
                              bitsOfNumber(0.4375) - 1,
                              bitsOfNumber(0.4375),
                              bitsOfNumber(0.5),
                              bitsOfNumber(0.6875) - 1,
                              bitsOfNumber(0.6875),
                              bitsOfNumber(1.0) - 1,
                              bitsOfNumber(1.0),
                              bitsOfNumber(1.0) + 1,
                              bitsOfNumber(1.1875),
                              bitsOfNumber(1.5),
                              bitsOfNumber(2.0),
                              bitsOfNumber(2.4375),
                              bitsOfNumber(3.0),
                              bitsOfNumber(0x1p31),
                              bitsOfNumber(0x1p31) + 1,
                              bitsOfNumber(0x1p61),
                              bitsOfNumber(0x1p64),
                              bitsOfNumber(0x1p64) + 1,
                              bitsOfNumber(0x1p66),
                              bitsOfNumber(12345.6789),
                              bitsOfNumber(0x1.fffffep24),
                              infinity - 1,
                              infinity,
                              infinity + 1,
                              infinity | infinity >> 1,
                              (infinity | infinity >> 1) + 5,
                              infinity - normal};
}();

// Both with both signs, 160 by 160 pairs.
template <class Wide, class Visit>
void forEveryCornerPair(Visit visit) {
  using word = wordOf<Wide>;
  constexpr word sign = word{1} << (8 * sizeof(Wide) - 1);
  for (const word first : cornerMagnitudes<Wide>) {
    for (const word second : cornerMagnitudes<Wide>) {
      for (const word firstSign : {word{0}, sign}) {
        for (const word secondSign : {word{0}, sign}) {
          visit(std::bit_cast<Wide>(first | firstSign), std::bit_cast<Wide>(second | secondSign));
        }
      }
    }
  }
}

// In turn: any two patterns; two of about the same size, anywhere in the range; two a stated distance apart, up to 70
// places; and two between 2^-20 and 2^20.
template <class Wide>
operandPair<Wide> pairAt(std::uint64_t i) {
  using word = wordOf<Wide>;
  constexpr int width = sizeof(Wide) == 4 ? 23 : 52;
  constexpr word fields = sizeof(Wide) == 4 ? 0xFF : 0x7FF;
  constexpr word bias = fields / 2;
  const std::uint64_t random = scrambled(2 * i);
  const std::uint64_t other = scrambled(2 * i + 1);
  const auto first = static_cast<word>(random);
  const auto second = static_cast<word>(other);
  const word signAndFraction = static_cast<word>(~(fields << width));
  const word field = first >> width & fields;
  switch (i % 4) {
    case 0:
      return {std::bit_cast<Wide>(first), std::bit_cast<Wide>(second)};
    case 1:
      return {std::bit_cast<Wide>(first), std::bit_cast<Wide>((second & signAndFraction) | field << width)};
    case 2: {
      const word distance = (other >> 7) % 141;  // 70 is none
      const word wanted = field + distance;
      const word held = wanted < 70 ? 0 : wanted - 70 > fields - 1 ? fields - 1 : wanted - 70;
      return {std::bit_cast<Wide>(first), std::bit_cast<Wide>((second & signAndFraction) | held << width)};
    }
    default: {
      const word fieldOfFirst = bias - 20 + (random >> 20) % 41;
      const word fieldOfSecond = bias - 20 + (other >> 20) % 41;
      return {std::bit_cast<Wide>((first & signAndFraction) | fieldOfFirst << width),
              std::bit_cast<Wide>((second & signAndFraction) | fieldOfSecond << width)};
    }
  }
}

// Bases and powers of doubles. In turn: any two patterns; a base of any size with a power that keeps the result in
// range or just beyond; a base near one with a large power; and a negative base with an integer power.
inline operandPair<double> powerPairAt(std::uint64_t i) {
  const std::uint64_t random = scrambled(2 * i);
  const std::uint64_t other = scrambled(2 * i + 1);
  const double fraction = static_cast<double>(static_cast<std::int64_t>(other)) * 0x1p-63;  // in [-1, 1)
  switch (i % 4) {
    case 0:
      return {std::bit_cast<double>(random), std::bit_cast<double>(other)};
    case 1: {
      const double x = std::bit_cast<double>(random & 0x7FFFFFFFFFFFFFFF);
      const auto exponent = static_cast<double>(static_cast<int>(random >> 52 & 0x7FF) - 1023);
      return {x, fraction * (1200.0 / (std::abs(exponent) + 1.0))};
    }
    case 2: {
      const auto places = static_cast<int>(other % 50);
      const double distance = static_cast<double>(static_cast<std::int64_t>(random)) * 0x1p-63;
      return {1.0 + std::ldexp(distance, -places), fraction * std::ldexp(1000.0, places)};
    }
    default:
      return {-std::bit_cast<double>((random & 0x001FFFFFFFFFFFFF) + 0x3FE0000000000000),
              static_cast<double>(static_cast<std::int64_t>(other) >> 54)};
  }
}

}  // namespace zthalf::testing
