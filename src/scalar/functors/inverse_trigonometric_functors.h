// Functors of the inverse trigonometric functions.
// Internal: promises nothing to users of the library.
#pragma once

#include "scalar/inverse_trigonometric.h"
#include "zthalf/half_t.h"

namespace half::scalar::emulated {

struct asinFtor {
  static constexpr unsigned long grain = 256;
  static constexpr bool baseOnly = true;  // a call for each element
  fp16binary_t operator()(fp16binary_t x) const { return {zthalf::asinOf(x.bits)}; }
};

struct acosFtor {
  static constexpr unsigned long grain = 256;
  static constexpr bool baseOnly = true;
  fp16binary_t operator()(fp16binary_t x) const { return {zthalf::acosOf(x.bits)}; }
};

struct atanFtor {
  static constexpr unsigned long grain = 256;
  static constexpr bool baseOnly = true;
  fp16binary_t operator()(fp16binary_t x) const { return {zthalf::atanOf(x.bits)}; }
};

}  // namespace half::scalar::emulated
