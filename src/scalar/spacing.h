// Spacing of halves: eps, nextafter, and the distance of two values in units in the last place.
#pragma once

#include <cmath>
#include <cstdint>
#include <limits>

#include "core/float_conversion.h"
#include "core/patterns.h"
#include "scalar/half_arithmetic.h"
#include "scalar/mixed_operands.h"

namespace zthalf {

// The distance from |x| to the next larger half: 2^(e-25) for an exponent field e, and 2^-24 where that is not a half.
// Infinities and NaNs of either sign give 0x7E00.
ZTHALF_INLINE std::uint16_t epsOf(std::uint16_t x) {
  const std::uint32_t field = x & pattern::exponentBits;
  const float spacing = floatOf((field << 13) + (102u << 23));  // 102 = 127 - 25
  const std::uint16_t rounded = narrow(spacing);                // exact for e > 0; 2^-25 is a tie and gives 0
  const auto number = static_cast<std::uint16_t>(rounded | (rounded == 0 ? pattern::smallestSubnormal : 0));
  return select(maskOf<std::uint16_t>(field == pattern::exponentBits), pattern::quietNaN, number);
}

// The neighbour of x towards y. The order of the cases decides which NaN and which zero comes back.
inline std::uint16_t neighbourOf(std::uint16_t x, std::uint16_t y) {
  if (pattern::isNaN(x)) return x;
  if (pattern::isNaN(y)) return y;
  if (isEqual(x, y)) return y;
  if (pattern::isZero(x)) return pattern::signOf(y) | pattern::smallestSubnormal;
  const bool up = isGreater(y, x);
  const bool positive = isGreater(x, pattern::zero);
  return static_cast<std::uint16_t>(up == positive ? x + 1 : x - 1);  // the magnitude grows or shrinks by one step
}

// The distance of a and b in units in the last place of half, at the smaller exponent of the two. The values are
// compared at full width; where one of them is a half, infinity is judged in each operand's own type, and where
// neither is, on the halves that they round to.
template <class A, class B>
double ulpDistance(A a, B b) {
  constexpr double infinite = std::numeric_limits<double>::infinity();
  const double first = exactly<double>(a);
  const double second = exactly<double>(b);
  if (std::isnan(first) && std::isnan(second)) return 0.0;
  if (std::isnan(first) || std::isnan(second)) return infinite;

  const std::uint16_t firstHalf = asHalf(a);
  const std::uint16_t secondHalf = asHalf(b);
  constexpr bool ownType = isHalfOperand<A> || isHalfOperand<B>;
  const bool anyInfinite = ownType ? std::isinf(first) || std::isinf(second)
                                   : pattern::isInfinite(firstHalf) || pattern::isInfinite(secondHalf);
  if (!anyInfinite) {
    if (first == 0 && second == 0 && std::signbit(first) != std::signbit(second)) return 0.5;
    const unsigned firstField = pattern::exponentOf(firstHalf);
    const unsigned secondField = pattern::exponentOf(secondHalf);
    const unsigned e = firstField < secondField ? firstField : secondField;
    const double scale = doubleOf(static_cast<std::uint64_t>(1023 + (e > 0 ? 15 - e : 14)) << 52);  // a power of two
    return std::abs(first - second) * scale * 1024.0;
  }
  const bool sameSign = pattern::signOf(firstHalf) == pattern::signOf(secondHalf);
  const std::uint16_t firstMagnitude = pattern::magnitudeOf(firstHalf);
  const std::uint16_t secondMagnitude = pattern::magnitudeOf(secondHalf);
  if (firstMagnitude == secondMagnitude && (sameSign || firstMagnitude == 0)) return 0.0;
  if (!sameSign) return infinite;
  if (firstMagnitude == pattern::largestFinite || secondMagnitude == pattern::largestFinite) return 0.5;
  return infinite;
}

}  // namespace zthalf
