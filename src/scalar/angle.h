// atan2 of two halves, and of a half and a float or double.
#pragma once

#include <cstdint>

#include "scalar/kernels/atan2_double.h"
#include "scalar/kernels/atan2_single.h"
#include "scalar/mixed_operands.h"

namespace zthalf {

// The ordinate comes first. A double operand decides for the kernel in double; the result is rounded to half once.
template <class Y, class X>
ZTHALF_INLINE std::uint16_t atan2Of(Y y, X x) {
  if constexpr (anyDouble<Y, X>) {
    return narrow(qsl_scalar::atan2Double(exactly<double>(y), exactly<double>(x)));
  } else {
    return narrow(qsl_scalar::atan2Single(exactly<float>(y), exactly<float>(x)));
  }
}

}  // namespace zthalf
