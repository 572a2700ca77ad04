// A half times a factor, as hscal and hgemm scale: one multiplication in float, one rounding.
#pragma once

#include "core/nan_policy.h"

namespace zthalf::linalg {

// Of two NaNs the factor's comes first.
ZTHALF_INLINE std::uint16_t scaledHalf(std::uint16_t factor, std::uint16_t x) {
  return settled(widen<float>(factor) * widen<float>(x), factor, x);
}

}  // namespace zthalf::linalg
