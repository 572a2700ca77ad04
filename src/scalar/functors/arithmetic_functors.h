// Functors of the arithmetic operations.
// Internal: promises nothing to users of the library.
#pragma once

#include "scalar/half_arithmetic.h"
#include "zthalf/half_t.h"

namespace half::scalar::emulated {

struct plusFtor {
  static constexpr unsigned long grain = 256;
  ZTHALF_INLINE fp16binary_t operator()(fp16binary_t a, fp16binary_t b) const {
    return {zthalf::sumOf(a.bits, b.bits)};
  }
};

}  // namespace half::scalar::emulated
