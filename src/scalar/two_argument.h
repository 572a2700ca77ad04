// atan2, power and the scaling by a power of two, for two halves and for a half and a float or double.
// Internal: promises nothing to users of the library.
//
// The wider operand decides the kernel's precision, and its result is rounded to half once.
#pragma once

#include <cmath>
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
#include "scalar/kernels/scalbn_single.h"
#include "scalar/mixed_operands.h"

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
std::uint16_t atan2Of(Y y, X x) {
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
  } else {
    return narrow(qsl_scalar::powSingle(exactly<float>(x), exactly<float>(y)));
  }
}

// x * 2^y with y cut to an integer. Beyond 1100 in magnitude all y act alike: every finite double has overflowed or
// vanished by then, as a half.
template <class X, class Y>
std::uint16_t scaledByPowerOfTwo(X x, Y y) {
  using wide = widestOf<X, Y>;
  constexpr wide limit = 1100;
  const auto exponent = exactly<wide>(y);
  if (exponent != exponent) return pattern::quietNaN;
  const wide held = exponent > limit ? limit : exponent < -limit ? -limit : exponent;
  const auto n = static_cast<std::int32_t>(held);
  if constexpr (anyDouble<X, Y>) {
    return narrow(std::scalbn(exactly<double>(x), n));
  } else {
    return narrow(qsl_scalar::scalbnSingle(exactly<float>(x), n));
  }
}

}  // namespace zthalf
