// Functors of the square roots.
// Internal: promises nothing to users of the library.
#pragma once

#include "scalar/root.h"
#include "zthalf/half_t.h"

namespace half::scalar::emulated {

struct sqrtFtor {
  static constexpr unsigned long grain = 256;
  static constexpr bool isQuick = true;  // a root and little else
  ZTHALF_INLINE fp16binary_t operator()(fp16binary_t x) const { return {zthalf::sqrtOf(x.bits)}; }
};

struct rsqrtFtor {
  static constexpr unsigned long grain = 256;
  static constexpr bool isQuick = true;  // a root and little else
  ZTHALF_INLINE fp16binary_t operator()(fp16binary_t x) const { return {zthalf::rsqrtOf(x.bits)}; }
};

}  // namespace half::scalar::emulated
