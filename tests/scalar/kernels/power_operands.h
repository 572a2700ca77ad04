// Operand pairs for the power kernel, numbered: random ones would nearly all overflow, underflow or be invalid.
#pragma once

#include <bit>
#include <cmath>
#include <cstdint>

#include "tests/support/sweep.h"

namespace zthalf::testing {

struct powerOperands {
  float x;
  float y;
};

// In turn: any two patterns; a base of any size with a power that keeps the result in range; a base near one with a
// large power; and a negative base with an integer power.
inline powerOperands powerOperandsAt(std::uint64_t i) {
  const std::uint64_t random = scrambled(i);
  const auto low = static_cast<std::uint32_t>(random);
  const auto high = static_cast<std::uint32_t>(random >> 32);
  const float fraction = static_cast<float>(high >> 8) * 0x1p-23f - 1.0f;  // in [-1, 1)
  switch (i % 4) {
    case 0:
      return {std::bit_cast<float>(low), std::bit_cast<float>(high)};
    case 1: {
      const float x = std::bit_cast<float>(low & 0x7FFFFFFFu);
      const auto exponent = static_cast<float>(static_cast<int>(low >> 23 & 0xFF) - 127);
      return {x, fraction * (150.0f / (std::abs(exponent) + 1.0f))};
    }
    case 2:
      return {1.0f + static_cast<float>(static_cast<std::int32_t>(low)) * 0x1p-40f, fraction * 0x1p17f};
    default:
      return {-std::bit_cast<float>((low & 0x00FFFFFFu) + 0x3F000000u),
              static_cast<float>(static_cast<std::int32_t>(high) >> 24)};
  }
}

}  // namespace zthalf::testing
