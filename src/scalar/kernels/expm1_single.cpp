#include "scalar/kernels/expm1_single.h"

#include <cstdint>

#include "scalar/kernels/float_fields.h"
#include "scalar/kernels/logarithm_constants.h"

namespace qsl_scalar {

namespace {

// x = k ln 2 + r + lost, |r| up to about 0.3466; lost is what the rounding of r dropped.
struct reduction {
  std::int32_t k;
  float r;
  float lost;
};

reduction reducedBy(float x, std::int32_t k) {
  const float leading = static_cast<float>(k) * ln2Leading;
  const float trailing = static_cast<float>(k) * ln2Trailing;
  const float t = x - leading;
  const float r = t - trailing;
  return {k, r, (t - r) - trailing};
}

reduction reduced(float x) {
  constexpr std::uint32_t halfLn2 = 0x3EB17218u;           // 0.34657359
  constexpr std::uint32_t threeHalvesOfLn2 = 0x3F851591u;  // 1.0397207
  const std::uint32_t magnitude = magnitudeBitsOf(x);
  if (magnitude < halfLn2) return {0, x, 0.0f};
  if (magnitude <= threeHalvesOfLn2) return reducedBy(x, hasSign(x) ? -1 : 1);
  return reducedBy(x, static_cast<std::int32_t>(x * log2E + (hasSign(x) ? -0.5f : 0.5f)));
}

// 2^k (exp(r + lost) - 1) + (2^k - 1), with the one put where it costs the least accuracy: the reduced result is
// r - excess, and k decides in which order excess, r, the one and the scaling meet.
float assembled(std::int32_t k, float r, float excess) {
  if (k == 1) {
    if (r < -0.25f) return (excess - (r + 0.5f)) * -2.0f;
    const float d = r - excess;
    return (d + d) + 1.0f;
  }
  if (k == -1) return (r - excess) * 0.5f + -0.5f;
  if (k <= -2 || k >= 57) return exponentRaised((r - excess) + 1.0f, k) + -1.0f;  // exp(x) itself carries all bits
  if (k <= 22) {
    const float oneLess = floatOf(0x3F800000u - (0x01000000u >> k));  // 1 - 2^-k
    return exponentRaised(oneLess - (excess - r), k);
  }
  const float lastPlace = floatOf(0x3F800000u - (static_cast<std::uint32_t>(k) << 23));  // 2^-k
  return exponentRaised((r - (excess + lastPlace)) + 1.0f, k);
}

}  // namespace

// Reduction: x = k ln 2 + r. On the reduced interval r (exp(r) + 1) / (exp(r) - 1) is an even function near 2 + r^2/6,
// so with a = r/2, b = r^2/2 and a short series r1 in b, starting with 1,
//   t = 3 - a r1,   e = b (r1 - t) / (6 - r t),   exp(r) - 1 = r - (r e - b).
// The lost part of r enters e to first order.
//
// Ranges, in this order: NaN; the infinities; overflow from 88.72284 on and -1 from there down; -1 below -18.71, where
// exp(x) is under half of the last place of 1; and zero, which keeps its sign.
float expm1Single(float x) {
  constexpr std::uint32_t overflow = 0x42B17218u;      // 88.72284
  constexpr std::uint32_t allButMinus1 = 0x4195B844u;  // 18.714973
  const std::uint32_t magnitude = magnitudeBitsOf(x);
  if (magnitude > exponentBits) return x;
  if (magnitude >= overflow) return hasSign(x) ? -1.0f : infinity;
  if (magnitude >= allButMinus1 && hasSign(x)) return -1.0f;
  if (magnitude == 0) return x;

  constexpr float q1 = floatOf(0xBD088889u);  // -0.03333333507180214, near -1/30
  constexpr float q2 = floatOf(0x3AD00CB9u);  // 0.0015872932272031903
  constexpr float q3 = floatOf(0xB8A5ACB7u);  // -7.899983756942675e-05
  const auto [k, r, lost] = reduced(x);
  const float a = r * 0.5f;
  const float b = r * a;
  const float r1 = b * (b * (b * q3 + q2) + q1) + 1.0f;
  const float t = 3.0f - a * r1;
  const float e = b * ((r1 - t) / (6.0f - r * t));
  if (k == 0) return r - (r * e - b);
  return assembled(k, r, (r * (e - lost) - lost) - b);
}

}  // namespace qsl_scalar
