// The conversions between half patterns and single or double: the narrowest and hottest point of the library.
// Internal: promises nothing to users of the library.
//
// All of it is branch-free and free of tables, so that a plain loop over it vectorises, and no floating-point step has
// a subnormal operand: processors take a slow path for those, and a caller may have told them to flush them.
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

// Half to single or double, exact; a NaN keeps its payload and its sign, signalling or not.
//
// For an exponent field of 1 to 30, adding the difference of the biases as an integer gives the value. For 31, adding
// it twice fills the wide exponent field. For 0 the fraction is put under the exponent of 2^-14, and subtracting 2^-14
// leaves fraction * 2^-24.
template <class Wide>
ZTHALF_INLINE Wide widen(std::uint16_t h) {
  using format = formatOf<Wide>;
  using word = typename format::word;
  constexpr int shift = format::fractionWidth - 10;
  constexpr int signShift = 8 * sizeof(Wide) - 16;
  constexpr word rebias = static_cast<word>(format::bias - 15) << format::fractionWidth;
  constexpr word smallestNormal = static_cast<word>(format::bias - 14) << format::fractionWidth;

  const word magnitude = static_cast<word>(h & pattern::magnitudeBits) << shift;
  const word sign = static_cast<word>(h & pattern::signBit) << signShift;
  const word isSpecial = maskOf<word>(magnitude >= static_cast<word>(pattern::infinity) << shift);
  const word normal = magnitude + rebias + (rebias & isSpecial);
  const word subnormal = bitsOf(valueOf(magnitude + smallestNormal) - valueOf(smallestNormal));
  const word isSubnormal = maskOf<word>(magnitude < static_cast<word>(0x0400) << shift);
  return valueOf(select(isSubnormal, subnormal, normal) | sign);
}

// Single or double to half: nearest, ties to even, subnormals included. From 65520 on the result is an infinity. Any
// NaN gives 0x7E00 with its sign; the payload is dropped.
//
// One addition is the rounding. To |x| a power of two is added whose last place is the last place of the half result,
// so the adder itself drops the bits below, ties to even. With k = 0 for results below 2^-13 and one more for each
// binade above, the power is 2^(k + fractionWidth - 24): it has no fraction of its own, and the low twelve bits of the
// sum hold the rounded significand, its leading one included. Adding that to k in the exponent's place lets the leading
// one, and a carry out of the rounding, raise the exponent: no case of its own for binade steps, for subnormals that
// become normal, or for overflow, since |x| is held at 65536, which rounds to the pattern of infinity.
template <class Wide>
ZTHALF_INLINE std::uint16_t narrow(Wide x) {
  using format = formatOf<Wide>;
  using word = typename format::word;
  constexpr int shift = format::fractionWidth - 10;
  constexpr word signBit = static_cast<word>(1) << (8 * sizeof(Wide) - 1);
  constexpr word fieldBits = static_cast<word>(2 * format::bias + 1) << format::fractionWidth;
  constexpr word fieldStep = static_cast<word>(1) << format::fractionWidth;
  constexpr auto fieldOfSum = static_cast<std::uint16_t>((format::bias + format::fractionWidth - 24) << 10);  // k = 0

  const word bits = bitsOf(x);
  const Wide magnitude = valueOf(bits & ~signBit);
  const Wide held = magnitude < Wide(65536) ? magnitude : Wide(65536);  // a NaN is held too
  const Wide scale = held > Wide(0x1p-14) ? held : Wide(0x1p-14);
  const Wide power = valueOf((bitsOf(scale) & fieldBits) + shift * fieldStep);
  const word sum = bitsOf(held + power);
  const auto finite = static_cast<std::uint16_t>((sum >> shift) + sum - fieldOfSum);
  const auto sign = static_cast<std::uint16_t>((bits & signBit) >> (8 * sizeof(Wide) - 16));
  const auto quiet = static_cast<std::uint16_t>(maskOf<word>(x != x) & pattern::quietBit);
  return finite | sign | quiet;
}

}  // namespace zthalf
