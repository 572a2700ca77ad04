// Chains of products side by side in vector lanes, rounded to half at each step.
#pragma once

#include "core/instruction_level.h"
#include "reduce/steps/rounded_to_half.h"

namespace zthalf::linalg {

struct roundedChains {
  float const* left;  // m by k
  float const* right;
  float* sums;
  unsigned long m, k;
};

// sums[i] = the chain over l of left[i + l * m] * right[l], any NaN for a NaN. A few vectors of rows at a time stay in
// registers over the whole chain.
struct roundedChainsPass {
  static constexpr bool isWide = true;

  ZTHALF_INLINE static void run(roundedChains const* chains) {
    roundedChains const c = *chains;
    constexpr unsigned long rows = 32;
    unsigned long i = 0;
    for (; i + rows <= c.m; i += rows) block<rows>(c, i);
    for (; i + 8 <= c.m; i += 8) block<8>(c, i);
    for (; i < c.m; ++i) block<1>(c, i);
  }

 private:
  template <unsigned long rows>
  ZTHALF_INLINE static void block(roundedChains const& c, unsigned long i) {
    float temp[rows] = {};
    for (unsigned long l = 0; l < c.k; ++l) {
      float const* const left = c.left + i + l * c.m;
      const float right = c.right[l];
      for (unsigned long r = 0; r < rows; ++r) temp[r] = half_utils::roundedToHalf(temp[r] + left[r] * right);
    }
    for (unsigned long r = 0; r < rows; ++r) c.sums[i + r] = temp[r];
  }
};

}  // namespace zthalf::linalg
