// A number of the unit that defines all results, as a type: formulas of a reference are written with plain operators.
//
// NaNs are looked for before an operation, and its numbers pass through volatile memory: nothing is left to the
// processor's or the compiler's choice of a NaN, and no operation is fused or reordered.
#pragma once

#include <bit>
#include <cmath>
#include <cstdint>
#include <type_traits>

namespace zthalf::testing {

template <class Wide>
struct definedNumber {
  using word = std::conditional_t<sizeof(Wide) == 4, std::uint32_t, std::uint64_t>;
  static constexpr int width = 8 * sizeof(Wide);
  static constexpr word signBit = word{1} << (width - 1);
  static constexpr word quietBit = word{1} << (sizeof(Wide) == 4 ? 22 : 51);
  static constexpr word infinity = sizeof(Wide) == 4 ? word{0x7F800000u} : static_cast<word>(0x7FF0000000000000u);

  word bits;

  definedNumber() = default;
  definedNumber(Wide value) : bits(std::bit_cast<word>(value)) {}
  static definedNumber ofBits(word w) {
    definedNumber x;
    x.bits = w;
    return x;
  }

  Wide value() const { return std::bit_cast<Wide>(bits); }
  bool isNaN() const { return (bits & ~signBit) > infinity; }
  bool isSignalling() const { return isNaN() && (bits & quietBit) == 0; }
  bool isZero() const { return (bits & ~signBit) == 0; }
  bool isInfinite() const { return (bits & ~signBit) == infinity; }
  definedNumber magnitude() const { return ofBits(bits & ~signBit); }
  definedNumber operator-() const { return ofBits(bits ^ signBit); }
  bool hasSign() const { return (bits & signBit) != 0; }

  friend definedNumber operator+(definedNumber x, definedNumber y) {
    return operation(x, y, [](Wide a, Wide b) { return a + b; });
  }
  friend definedNumber operator-(definedNumber x, definedNumber y) {
    return operation(x, y, [](Wide a, Wide b) { return a - b; });
  }
  friend definedNumber operator*(definedNumber x, definedNumber y) {
    return operation(x, y, [](Wide a, Wide b) { return a * b; });
  }
  friend definedNumber operator/(definedNumber x, definedNumber y) {
    return operation(x, y, [](Wide a, Wide b) { return a / b; });
  }
  // x y + z in one rounding.
  static definedNumber fused(definedNumber x, definedNumber y, definedNumber z) {
    for (const definedNumber operand : {x, y, z}) {
      if (operand.isSignalling()) return operand.quiet();
    }
    for (const definedNumber operand : {x, y, z}) {
      if (operand.isNaN()) return operand;
    }
    const definedNumber result = std::fma(x.value(), y.value(), z.value());
    return result.isNaN() ? ofBits(infinity | quietBit) : result;
  }

  friend bool operator==(definedNumber x, definedNumber y) { return x.value() == y.value(); }
  friend bool operator<(definedNumber x, definedNumber y) { return x.value() < y.value(); }
  friend bool operator>(definedNumber x, definedNumber y) { return x.value() > y.value(); }

  definedNumber quiet() const { return ofBits(bits | quietBit); }

 private:
  template <class Operation>
  static definedNumber operation(definedNumber x, definedNumber y, Operation op) {
    if (x.isSignalling()) return x.quiet();
    if (y.isSignalling()) return y.quiet();
    if (x.isNaN()) return x;
    if (y.isNaN()) return y;
    const volatile Wide a = x.value();
    const volatile Wide b = y.value();
    const volatile Wide c = op(a, b);
    const definedNumber result = static_cast<Wide>(c);
    return result.isNaN() ? ofBits(infinity | quietBit) : result;
  }
};

}  // namespace zthalf::testing
