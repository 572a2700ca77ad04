// The conversions between half patterns and single or double: the narrowest and hottest point of the library.
//
// All of it is branch-free and free of tables, so that a plain loop over it vectorises, and no floating-point step has
// a subnormal operand: processors take a slow path for those, and a caller may have set them to flush them.
//
// A half needs no more than the upper 32 bits of a double, so both formats are work on 32-bit words: a wide pass then
// keeps its vectors full. Clamps are minima and maxima of integers, which order positive floats as well, and the last
// step of narrowing is a shift. Chained clamps of floats, or a sum cut to 16 bits at the end, make compilers carry each
// part of it through the packing to 16-bit lanes on its own, at twice the cost.
#pragma once

#include <cstdint>

#include "core/bits.h"
#include "core/patterns.h"

namespace zthalf {

// What the two working formats differ in.
template <class Wide>
struct formatOf;

template <>
struct formatOf<float> {
  using word = std::uint32_t;
  static constexpr int fractionWidth = 23;
  static constexpr int bias = 127;
};

template <>
struct formatOf<double> {
  using word = std::uint64_t;
  static constexpr int fractionWidth = 52;
  static constexpr int bias = 1023;
};

// The upper 32 bits of a power of two: all of a single, the sign, exponent and leading fraction bits of a double.
inline constexpr std::int32_t upperOfSinglePower(int exponent) { return (127 + exponent) << 23; }
inline constexpr std::int32_t upperOfDoublePower(int exponent) { return (1023 + exponent) << 20; }

// From the upper word of a positive normal double to the single of the same leading fraction bits and value, and back.
inline constexpr std::int32_t rebiasOfDouble = upperOfDoublePower(0) - (upperOfSinglePower(0) >> 3);
ZTHALF_INLINE constexpr std::int32_t singleFromUpper(std::int32_t upper) { return (upper - rebiasOfDouble) << 3; }
ZTHALF_INLINE constexpr std::int32_t upperFromSingle(std::int32_t bits) { return (bits >> 3) + rebiasOfDouble; }

// The single that is worth a half magnitude of at most 0x0400, given at the place of a single's fraction: put under the
// exponent of 2^-14 it is that much above 2^-14, and subtracting leaves it alone.
ZTHALF_INLINE std::int32_t singleOfSmall(std::int32_t magnitude) {
  constexpr std::int32_t smallestNormal = upperOfSinglePower(-14);
  return static_cast<std::int32_t>(bitsOf(floatOf(magnitude + smallestNormal) - floatOf(smallestNormal)));
}

// Half to single or double, exact; a NaN keeps its payload and its sign, signalling or not.
//
// Patterns grow by the same step in both formats from the smallest normal half on. So the part of the magnitude up to
// there is converted by its value, and what it has above is added to the resulting pattern. For an exponent field of
// 31, adding the difference of the biases once more fills the wide exponent field.
template <class Wide>
ZTHALF_INLINE Wide widen(std::uint16_t h) {
  constexpr bool single = sizeof(Wide) == sizeof(float);
  constexpr int shift = single ? 13 : 10;
  constexpr std::int32_t smallestNormal = 0x0400 << shift;
  constexpr std::int32_t firstSpecial = pattern::infinity << shift;
  constexpr std::uint32_t rebias = single ? (127 - 15) << 23 : (1023 - 15) << 20;

  const std::int32_t placed = static_cast<std::int16_t>(h) << shift;  // the sign fills the bits above
  const std::int32_t magnitude = placed & (pattern::magnitudeBits << shift);
  const std::uint32_t sign = static_cast<std::uint32_t>(placed) & 0x80000000u;
  const std::int32_t small = smallerOf(magnitude, smallestNormal);
  const std::uint32_t special = maskOf<std::uint32_t>(magnitude > firstSpecial - 1) & rebias;
  if constexpr (single) {
    const std::uint32_t value = singleOfSmall(small) + (magnitude - small);
    return floatOf((value + special) | sign);
  } else {
    const std::uint32_t ofSmall = upperFromSingle(singleOfSmall(small << 3)) & maskOf<std::uint32_t>(small > 0);
    const std::uint32_t value = ofSmall + (magnitude - small);
    return doubleOf(static_cast<std::uint64_t>((value + special) | sign) << 32);
  }
}

// The half that a single between 0 and 65536, given by its bits, rounds to: in the upper half of the word. The lower
// half is left over.
//
// One addition is the rounding. To x a power of two is added whose last place is the last place of the half result, so
// the adder itself drops the bits below, ties to even. With k = 0 for results below 2^-13 and one more for each binade
// above, the power is 2^(k - 1), with 126 + k in its exponent field, and the low bits of the sum hold the rounded
// significand, its leading one included. Adding that to k in the exponent's place lets the leading one, and a carry out
// of the rounding, raise the exponent: no case of its own for binade steps, for subnormals that become normal, or for
// overflow, since 65536 rounds to the pattern of infinity. Modulo 2^16 the field counts as k - 2 there; the power
// brings the missing 2 as 0x0800 last places, an even number, so ties go where they should.
ZTHALF_INLINE std::uint32_t roundedInUpperHalf(std::int32_t x) {
  const std::int32_t scale = largerOf(x, upperOfSinglePower(-14));
  const float power = floatOf((scale & 0x7F800000) + (13 << 23) + 0x0800);
  const std::uint32_t sum = bitsOf(floatOf(x) + power);
  return (sum << 16) + (sum << 3);
}

// A number rounded to half, in the upper halves of words: its magnitude, a NaN as 0x7E00; its sign; and all bits set
// for a NaN.
struct roundedParts {
  std::uint32_t magnitude;
  std::uint32_t sign;
  std::uint32_t isNaN;
};

ZTHALF_INLINE roundedParts roundedPartsOf(float x) {
  constexpr std::int32_t overflowing = upperOfSinglePower(16);
  const std::uint32_t bits = bitsOf(x);
  const std::int32_t magnitude = bits & 0x7FFFFFFFu;
  const std::int32_t held = smallerOf(magnitude, overflowing);  // a NaN is held too
  const auto isNaN = maskOf<std::uint32_t>(x != x);
  return {roundedInUpperHalf(held) | (isNaN & (pattern::quietBit << 16)), bits & 0x80000000u, isNaN};
}

// The rounding asks of the bits below a double's upper word only whether any is set: one bit in the last place of that
// word stands for all of them. What is left fits a single once it is held between 2^-26, which rounds to zero, and
// 65536.
ZTHALF_INLINE roundedParts roundedPartsOf(double x) {
  constexpr std::int32_t vanishing = upperOfDoublePower(-26);
  constexpr std::int32_t overflowing = upperOfDoublePower(16);
  const std::uint64_t bits = bitsOf(x);
  const auto upper = static_cast<std::uint32_t>(bits >> 32);
  const auto lower = static_cast<std::uint32_t>(bits);
  const auto magnitude = static_cast<std::int32_t>((upper & 0x7FFFFFFFu) | static_cast<std::uint32_t>(lower != 0));
  const std::int32_t below = smallerOf(magnitude, overflowing);
  const std::int32_t held = largerOf(below, vanishing);
  const auto isNaN = maskOf<std::uint32_t>(magnitude > 0x7FF00000);
  const std::uint32_t rounded = roundedInUpperHalf(singleFromUpper(held));
  return {rounded | (isNaN & (pattern::quietBit << 16)), upper & 0x80000000u, isNaN};
}

// Single or double to half: nearest, ties to even, subnormals included. From 65520 on the result is an infinity. Any
// NaN gives 0x7E00 with its sign; the payload is dropped.
template <class Wide>
ZTHALF_INLINE std::uint16_t narrow(Wide x) {
  const roundedParts parts = roundedPartsOf(x);
  return static_cast<std::uint16_t>((parts.magnitude | parts.sign) >> 16);
}

// The same where a NaN's sign is decided elsewhere: every NaN gives 0x7E00.
template <class Wide>
ZTHALF_INLINE std::uint16_t narrowWithoutNaNSign(Wide x) {
  const roundedParts parts = roundedPartsOf(x);
  return static_cast<std::uint16_t>((parts.magnitude | (parts.sign & ~parts.isNaN)) >> 16);
}

}  // namespace zthalf
