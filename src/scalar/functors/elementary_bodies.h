// How the elements of an array get their values of a function: from a formula that stands in the loop, or by a call for
// each.
#pragma once

#include <cstdint>

#include "core/float_conversion.h"
#include "zthalf/half_t.h"

namespace half::scalar::emulated {

// A formula without a branch: a loop over it runs in vector lanes.
template <std::uint16_t (*formula)(std::uint16_t)>
struct inLanes {
  static constexpr unsigned long grain = 256;
  ZTHALF_INLINE fp16binary_t operator()(fp16binary_t x) const { return {formula(x.bits)}; }
};

// The same with so little in it that a result table is no faster until the array is large.
template <std::uint16_t (*formula)(std::uint16_t)>
struct inQuickLanes : inLanes<formula> {
  static constexpr bool isQuick = true;
};

// A kernel in single, its result rounded to half once.
template <float (*kernel)(float)>
struct byKernel {
  static constexpr unsigned long grain = 256;
  static constexpr bool baseOnly = true;
  fp16binary_t operator()(fp16binary_t x) const { return {zthalf::narrow(kernel(zthalf::widen<float>(x.bits)))}; }
};

}  // namespace half::scalar::emulated
