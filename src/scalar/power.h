// x^y of two halves, and of a half and a float or double.
//
// The wider operand decides the kernel's precision, and its result is rounded to half once. Three bodies take the steps
// of pow_single_parts.h: powSingle for one pair with a float, powSingleInLanes for a loop over such pairs, and
// power_of_halves.h for two halves, which need fewer of them. All three give the same halves.
#pragma once

#include <cstdint>

#include "core/float_conversion.h"
#include "scalar/kernels/pow_double.h"
#include "scalar/kernels/pow_single.h"
#include "scalar/kernels/pow_single_lanes.h"
#include "scalar/mixed_operands.h"
#include "scalar/power_of_halves.h"

namespace zthalf {

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

}  // namespace zthalf
