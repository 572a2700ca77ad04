#include "scalar/kernels/hypot_single.h"

#include <cmath>
#include <cstdint>

#include "core/nan_policy.h"
#include "scalar/kernels/float_fields.h"

namespace qsl_scalar {

// Let a >= b be the magnitudes, scaled so that no square overflows or underflows. The large part of the sum under the
// root is exact, by splitting off 12 bits:
//
//   a > 2b:     a^2 + b^2 = A^2 + (b^2 + (a - A)(a + A))                         A: the upper half of a
//   otherwise:  a^2 + b^2 = 2a b + (a - b)^2
//                         = T B + ((a - b)^2 + (T (b - B) + b (2a - T)))         T: the upper half of 2a, B: that of b
//
// Scaling is by 2^90: downwards from a = 2^60 on, upwards for b below 2^-60. A subnormal b is scaled by 2^126, and
// there A, T and B are left at their unscaled values: their products vanish and the bracket carries all, which is part
// of the defined result. From a/b = 2^30 on b no longer reaches the result.
float hypotSingle(float u, float v) {
  constexpr std::uint32_t scalingSteps = 90 * hiddenBit;
  constexpr std::uint32_t above2To60 = 0x5D800001u;
  constexpr std::uint32_t from2ToMinus60 = 0x21800000u;
  constexpr std::uint32_t beyond2To30 = 0x0F000001u;

  const float p = magnitudeOf(u);
  const float q = magnitudeOf(v);
  if (bitsOf(p) >= exponentBits || bitsOf(q) >= exponentBits) return zthalf::settled(p + q, p, q);

  float a = q > p ? q : p;
  float b = q > p ? p : q;
  std::uint32_t bitsA = bitsOf(a);
  std::uint32_t bitsB = bitsOf(b);
  if (bitsA - bitsB >= beyond2To30) return a + b;

  float unscale = 1.0f;
  if (bitsA >= above2To60) {
    bitsA -= scalingSteps;
    bitsB -= scalingSteps;
    unscale = 0x1p90f;
  } else if (bitsB < from2ToMinus60 && bitsB >= hiddenBit) {
    bitsA += scalingSteps;
    bitsB += scalingSteps;
    unscale = 0x1p-90f;
  }
  if (unscale != 1.0f) {
    a = floatOf(bitsA);
    b = floatOf(bitsB);
  } else if (bitsB < hiddenBit) {
    if (b == 0.0f) return a;
    a *= 0x1p126f;
    b *= 0x1p126f;
    unscale = 0x1p-126f;
  }

  const float difference = a - b;
  const float upperA = upperHalf(floatOf(bitsA));
  float square;
  if (difference > b) {
    square = upperA * upperA - (b * -b - (a - upperA) * (a + upperA));
  } else {
    const float upperB = upperHalf(floatOf(bitsB));
    const float upperTwiceA = floatOf(bitsOf(upperA) + hiddenBit);
    const float cross = (b - upperB) * upperTwiceA + b * ((a + a) - upperTwiceA);
    square = upperB * upperTwiceA - (difference * -difference - cross);
  }
  return std::sqrt(square) * unscale;
}

}  // namespace qsl_scalar
