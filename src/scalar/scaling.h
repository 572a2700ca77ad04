// x 2^y of two halves, and of a half and a float or double.
#pragma once

#include <cstdint>
#include <type_traits>

#include "core/float_conversion.h"
#include "core/patterns.h"
#include "scalar/mixed_operands.h"

namespace zthalf {

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
