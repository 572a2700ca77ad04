// atan2, power and the scaling by a power of two, for two halves and for a half and a float or double.
// Internal: promises nothing to users of the library.
//
// The wider operand decides the kernel's precision, and its result is rounded to half once.
#pragma once

#include <cstdint>
#include <type_traits>

#include "core/float_conversion.h"
#include "core/patterns.h"
#include "scalar/hypot.h"
#include "scalar/kernels/atan2_double.h"
#include "scalar/kernels/atan2_single.h"
#include "scalar/kernels/hypot_double.h"
#include "scalar/kernels/pow_double.h"
#include "scalar/kernels/pow_single.h"
#include "scalar/kernels/pow_single_lanes.h"
#include "scalar/mixed_operands.h"
#include "scalar/power_of_halves.h"

namespace zthalf {

// Beside a float operand hypot works in double already, beside a double one it takes the double kernel.
ZTHALF_INLINE std::uint16_t hypotOf(float x, std::uint16_t y) { return hypotOf(y, x); }

inline std::uint16_t hypotOf(std::uint16_t x, double y) {
  return narrow(qsl_scalar::hypotDouble(widenMagnitude<double>(x), y));
}
inline std::uint16_t hypotOf(double x, std::uint16_t y) {
  return narrow(qsl_scalar::hypotDouble(x, widenMagnitude<double>(y)));
}

// The ordinate comes first.
template <class Y, class X>
ZTHALF_INLINE std::uint16_t atan2Of(Y y, X x) {
  if constexpr (anyDouble<Y, X>) {
    return narrow(qsl_scalar::atan2Double(exactly<double>(y), exactly<double>(x)));
  } else {
    return narrow(qsl_scalar::atan2Single(exactly<float>(y), exactly<float>(x)));
  }
}

template <class X, class Y>
std::uint16_t powerOf(X x, Y y) {
  if constexpr (anyDouble<X, Y>) {
    return narrow(qsl_scalar::powDouble(exactly<double>(x), exactly<double>(y)));
  } else if constexpr (isHalfOperand<X> && isHalfOperand<Y>) {
    return powerOfTwoHalves(x, y);
  } else {
    return narrow(qsl_scalar::powSingle(exactly<float>(x), exactly<float>(y)));
  }
}

// The same for a loop: in vector lanes where the kernel is the single one.
template <class X, class Y>
ZTHALF_INLINE std::uint16_t powerInLanes(X x, Y y) {
  if constexpr (anyDouble<X, Y>) {
    return powerOf(x, y);
  } else if constexpr (isHalfOperand<X> && isHalfOperand<Y>) {
    return powerOfHalves(x, y);
  } else {
    return narrow(qsl_scalar::powSingleInLanes(exactly<float>(x), exactly<float>(y)));
  }
}

// 2^n in single or double, for an n in the type's normal range.
template <class Wide>
ZTHALF_INLINE Wide powerOfTwo(std::int32_t n) {
  using format = formatOf<Wide>;
  using word = typename format::word;
  return valueOf(static_cast<word>(static_cast<std::int32_t>(format::bias) + n) << format::fractionWidth);
}

// x * 2^y with y cut to an integer n, rounded once. n is held where all larger ones act alike, and the product is exact
// where its rounding to half sees it:
//   a half x: at 64, since 2^-24 grows beyond 2^17 and 2^16 vanishes; in float
//   a float x: at 400, for the same reason; in double
//   a double x: at 1100, in two steps; what one of them loses below the normal range vanishes as a half in any case
template <class X, class Y>
ZTHALF_INLINE std::uint16_t scaledByPowerOfTwo(X x, Y y) {
  constexpr std::int32_t limit = isHalfOperand<X> ? 64 : std::is_same_v<X, float> ? 400 : 1100;
  using exponentType = widestOf<Y>;
  constexpr auto most = static_cast<exponentType>(limit);
  const auto exponent = exactly<exponentType>(y);
  const exponentType notAbove = exponent < most ? exponent : most;  // a NaN too
  const auto n = static_cast<std::int32_t>(notAbove > -most ? notAbove : -most);

  std::uint16_t result;
  if constexpr (isHalfOperand<X>) {
    result = narrow(exactly<float>(x) * powerOfTwo<float>(n));
  } else {
    const std::int32_t first = n >> 1;
    result = narrow(exactly<double>(x) * powerOfTwo<double>(first) * powerOfTwo<double>(n - first));
  }
  return select(maskOf<std::uint16_t>(exponent != exponent), pattern::quietNaN, result);
}

}  // namespace zthalf
