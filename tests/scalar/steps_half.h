// The exponential, logarithm and root functions of half once more, as their steps one after the other.
#pragma once

#include <cmath>
#include <cstdint>

#include "core/float_conversion.h"
#include "tests/scalar/kernels/steps_single.h"
#include "zthalf/half_t.h"

namespace zthalf::testing::steps {

inline step widened(half_t x) { return widen<float>(x.bits); }
inline half_t rounded(step v) { return {narrow(v.value())}; }

inline half_t expHalf(half_t x) {
  const step v = widened(x);
  if (v > 12.0f) return {0x7C00};
  if (v < -18.0f) return {0x0000};
  const step t = v * of(0x3FB8AA3Bu);
  std::int32_t k = 0;
  if (t >= 0.0f) k = static_cast<std::int32_t>((t + 0.5f).value());
  if (t < 0.0f) k = static_cast<std::int32_t>((t - 0.5f).value());
  const step f = t - static_cast<float>(k);
  step c0 = of(0x3F800878u), c1 = of(0x3F2F219Bu), c2 = of(0x3E92B9C8u);
  if (f <= 0.0f) {
    c0 = of(0x3F7FF406u);
    c1 = of(0x3F2FB63Eu);
    c2 = of(0x3E4F8062u);
  }
  const step p = c0 + f * (c1 + f * c2);
  const std::uint32_t field = (bits(p) + (static_cast<std::uint32_t>(k) << 23)) & 0x7F800000u;
  return rounded(of(field | (bits(p) & 0x807FFFFFu)));
}

inline half_t expm1Half(half_t x) { return rounded(expm1(widened(x))); }
inline half_t pow10Half(half_t x) { return rounded(pow(10.0f, widened(x))); }
inline half_t pow2Half(half_t x) { return rounded(pow(2.0f, widened(x))); }
inline half_t logHalf(half_t x) { return rounded(log(widened(x))); }
inline half_t log1pHalf(half_t x) { return rounded(log1p(widened(x))); }

inline half_t log2Half(half_t x) {
  const step v = widened(x);
  if (v == 0.0f) return rounded(-inf);
  if (v < 0.0f) return rounded(nan);
  if (bits(v) % 0x80000000u >= 0x7F800000u) return rounded(v);
  int e = 0;
  const step m = std::frexp(v.value(), &e);
  if (m == 0.5f) return rounded(static_cast<float>(e - 1));
  if (e == 1 && m < 0.75f) return rounded(log(m + m) / of(0x3F317218u));
  return rounded(log(m) / of(0x3F317218u) + static_cast<float>(e));
}

inline half_t log10Half(half_t x) {
  const step v = widened(x);
  const auto iv = static_cast<std::int32_t>(bits(v));
  if (iv < 0x00800000) return {static_cast<std::uint16_t>((bits(v) & 0x7FFFFFFFu) == 0 ? 0xFC00 : 0xFE00)};
  if (iv >= 0x7F800000) return rounded(v);
  const std::int32_t k = (iv >> 23) - 127;
  const step m = of(((bits(v) & 0x7FFFFFu) | (k < 0 ? 0x800000u : 0u)) ^ 0x3F800000u);
  const step d = static_cast<float>(k < 0 ? k + 1 : k);
  return rounded(d * of(0x3E9A2000u) + (d * of(0x369A84FCu) + log(m) * of(0x3EDE5BD9u)));
}

// The float root by way of double, where the second rounding changes nothing; negative numbers by the unit's rule.
inline step root(half_t x) {
  const step v = widened(x) + 0.0f;
  if (v < 0.0f) return of(0x7FC00000u);
  return static_cast<float>(std::sqrt(static_cast<double>(v.value())));
}

inline half_t sqrtHalf(half_t x) { return rounded(root(x)); }
inline half_t rsqrtHalf(half_t x) { return rounded(step(1.0f) / root(x)); }

struct fractionAndExponent {
  half_t fraction;
  half_t exponent;
};

inline fractionAndExponent splitHalf(half_t x) {
  const step v = widened(x);
  const std::uint32_t magnitude = bits(v) & 0x7FFFFFFFu;
  if (magnitude == 0 || magnitude >= 0x7F800000u) return {rounded(v), {0x0000}};
  int e = 0;
  const float fraction = std::frexp(v.value(), &e);
  if (e == 0) return {rounded(fraction), {0x0000}};
  const half_t size = rounded(static_cast<float>(e < 0 ? -e : e));
  return {rounded(fraction), {static_cast<std::uint16_t>(e < 0 ? size.bits | 0x8000 : size.bits)}};
}

}  // namespace zthalf::testing::steps
