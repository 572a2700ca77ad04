// Functors of the exponentials.
// Internal: promises nothing to users of the library.
#pragma once

#include "scalar/exponential.h"
#include "scalar/power_of_halves.h"
#include "zthalf/half_t.h"

namespace half::scalar::emulated {

struct expFtor {
  static constexpr unsigned long grain = 256;
  ZTHALF_INLINE fp16binary_t operator()(fp16binary_t x) const { return {zthalf::expOf(x.bits)}; }
};

struct expm1Ftor {
  static constexpr unsigned long grain = 256;
  static constexpr bool baseOnly = true;  // a call for each element
  fp16binary_t operator()(fp16binary_t x) const { return {zthalf::expm1Of(x.bits)}; }
};

struct pow2Ftor {
  static constexpr unsigned long grain = 256;
  static constexpr bool baseOnly = true;  // the table is faster than the widest vectors
  ZTHALF_INLINE fp16binary_t operator()(fp16binary_t x) const { return {zthalf::pow2Of(x.bits)}; }
};

struct pow10Ftor {
  static constexpr unsigned long grain = 256;
  static constexpr bool baseOnly = true;
  ZTHALF_INLINE fp16binary_t operator()(fp16binary_t x) const { return {zthalf::pow10Of(x.bits)}; }
};

}  // namespace half::scalar::emulated
