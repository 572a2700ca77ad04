#include "scalar/kernels/exp_single.h"

#include "scalar/kernels/float_fields.h"
#include "scalar/kernels/logarithm_constants.h"

namespace qsl_scalar {

namespace {

// With c = r - r^2 (c1 + c2 r^2 + c3 r^4), near r - (r coth(r/2) - 2): exp(r) = 1 + r + r c / (2 - c).
float correction(float r) {
  constexpr float c1 = floatOf(0x3E2AAAABu);  // 0.16666667, near 1/6
  constexpr float c2 = floatOf(0xBB360B70u);  // -0.0027777813, near -1/360
  constexpr float c3 = floatOf(0x388A4F5Fu);  // 6.595137e-05
  const float square = r * r;
  return r - square * (square * (square * c3 + c2) + c1);
}

// y * 2^k for y near 1. Below the normal range it is built 2^100 times too large and rounded into place by one
// multiplication.
float scaled(float y, std::int32_t k) {
  if (k < -125) return exponentRaised(y, k + 100) * 0x1p-100f;
  return exponentRaised(y, k);
}

float expOfReduced(float x, std::int32_t k) {
  const float leading = x - static_cast<float>(k) * ln2Leading;
  const float trailing = static_cast<float>(k) * ln2Trailing;
  const float r = leading - trailing;
  const float c = correction(r);
  return scaled((leading - (trailing - (r * c) / (2.0f - c))) + 1.0f, k);
}

}  // namespace

// x = k ln 2 + r with |r| up to about 0.3466; exp(r) by its rational form, k into the exponent. The rounding of r is
// made good by adding its two parts once more where it enters the result to first order.
//
// Ranges, in this order: NaN and the infinities; overflow; underflow to zero. Then by magnitude: up to ln(2)/2 nothing
// is reduced, and below 2^-28 the result is 1 + x; up to 3/2 ln 2 k is 1 or -1 without a product.
float expSingle(float x) {
  constexpr std::uint32_t overflow = 0x42B17217u;          // 88.722832
  constexpr float underflow = floatOf(0xC2CE8ED0u);        // -103.27893
  constexpr std::uint32_t halfLn2 = 0x3EB17217u;           // 0.34657356
  constexpr std::uint32_t threeHalvesOfLn2 = 0x3F851592u;  // 1.0397208
  constexpr std::uint32_t tiny = 0x31800016u;              // 3.7253e-09

  const std::uint32_t magnitude = magnitudeBitsOf(x);
  const bool isNegative = hasSign(x);
  if (magnitude > exponentBits) return domainNaN;
  if (magnitude > overflow && !isNegative) return infinity;
  if (x < underflow) return 0.0f;

  if (magnitude < tiny) return x + 1.0f;
  if (magnitude <= halfLn2) {
    const float c = correction(x);
    return (x - (x * c) / (c + -2.0f)) + 1.0f;
  }
  if (magnitude < threeHalvesOfLn2) return expOfReduced(x, isNegative ? -1 : 1);
  return expOfReduced(x, static_cast<std::int32_t>(x * log2E + (isNegative ? -0.5f : 0.5f)));
}

}  // namespace qsl_scalar
