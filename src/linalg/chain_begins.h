// Where the chains of a product without lanes begin.
#pragma once

#include <cstdint>

#include "core/float_unit.h"
#include "core/instruction_level.h"

namespace zthalf::linalg {

// The chain of output (i, j) begins at beta * c[i + j * leading], and at +0 where beta is a zero.
struct chainBegins {
  std::uint16_t beta = 0;
  std::uint16_t const* c = nullptr;
  unsigned long leading = 0;

  // The defining unit's number, of two NaNs beta's.
  float at(unsigned long i, unsigned long j) const {
    if (pattern::isZero(beta)) return 0;
    return definedUnit::product(widen<float>(beta), widen<float>(c[i + j * leading]));
  }
};

// Begins of one column, n of them, any NaN for a NaN.
struct chainBeginsPass {
  static constexpr bool isWide = true;
  ZTHALF_INLINE static void run(std::uint16_t const* c, unsigned long n, std::uint16_t beta, float* begins) {
    const float factor = widen<float>(beta);
    for (unsigned long i = 0; i < n; ++i) begins[i] = factor * widen<float>(c[i]);
  }
};

}  // namespace zthalf::linalg
