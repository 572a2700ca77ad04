// exp, expm1, pow2 and pow10 of a half pattern.
// Internal: promises nothing to users of the library.
#pragma once

#include <cstdint>

#include "core/float_conversion.h"

namespace zthalf {

// Deliberately short: within 0.873 units in the last place of half.
//
// x log2(e) = k + f with k whole and |f| up to 0.5, k being x log2(e) rounded with ties away from zero; 2^f is a
// quadratic, one for each side of zero, and k goes into the exponent field. Above 12 and below -18 the ends are
// decided first; 12 itself and whatever overflows from 11.09 on do so in the last rounding.
//
// A NaN passes every range test on the other side: it gets k = 0, the upper quadratic, and so keeps its sign. The range
// is tested before k becomes an integer, which keeps that conversion defined. No branch: a loop over this runs in
// vector lanes.
ZTHALF_INLINE std::uint16_t expOf(std::uint16_t x) {
  constexpr float log2E = floatOf(0x3FB8AA3Bu);  // 1.4426950216293335
  constexpr std::uint32_t below0 = 0x3F7FF406u;  // 0.9998172521591187
  constexpr std::uint32_t below1 = 0x3F2FB63Eu;  // 0.6863745450973511
  constexpr std::uint32_t below2 = 0x3E4F8062u;  // 0.202638179063797
  constexpr std::uint32_t above0 = 0x3F800878u;  // 1.000258445739746
  constexpr std::uint32_t above1 = 0x3F2F219Bu;  // 0.6841065287590027
  constexpr std::uint32_t above2 = 0x3E92B9C8u;  // 0.2865736484527588
  constexpr std::uint32_t infinity = 0x7F800000u;
  constexpr std::uint32_t exponentBits = 0x7F800000u;

  const float v = widen<float>(x);
  const auto isTooLarge = maskOf<std::uint32_t>(v > 12.0f);
  const auto isTooSmall = maskOf<std::uint32_t>(v < -18.0f);
  const auto isNumber = maskOf<std::uint32_t>(v == v);

  const float t = v * log2E;
  const float half = floatOf((bitsOf(t) & 0x80000000u) | 0x3F000000u);
  const auto k = static_cast<std::int32_t>(floatOf(bitsOf(t + half) & isNumber & ~isTooLarge & ~isTooSmall));
  const float f = t - static_cast<float>(k);

  const auto isBelow = maskOf<std::uint32_t>(f <= 0.0f);
  const float c0 = floatOf(select(isBelow, below0, above0));
  const float c1 = floatOf(select(isBelow, below1, above1));
  const float c2 = floatOf(select(isBelow, below2, above2));
  const float p = c0 + f * (c1 + f * c2);

  const std::uint32_t field = (bitsOf(p) + (static_cast<std::uint32_t>(k) << 23)) & exponentBits;
  const std::uint32_t number = (bitsOf(p) & ~exponentBits) | field;
  return narrow(floatOf(select(isTooLarge, infinity, number & ~isTooSmall)));
}

std::uint16_t expm1Of(std::uint16_t x);
std::uint16_t pow2Of(std::uint16_t x);
std::uint16_t pow10Of(std::uint16_t x);

}  // namespace zthalf
