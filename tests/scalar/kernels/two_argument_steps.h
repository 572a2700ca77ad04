// hypotSingle, atan2Single, modSingle and modDouble as their steps one after the other.
#pragma once

#include <bit>
#include <cstdint>
#include <type_traits>

#include "tests/scalar/kernels/inverse_and_hyperbolic_steps.h"

namespace zthalf::testing::steps {

inline bool isSignalling(step v) { return isNaN(v) && (bits(v) >> 22 & 1) == 0; }

inline step specialSum(step p, step q) {
  if (!isNaN(p) && !isNaN(q)) return inf;
  const bool first = isSignalling(p) || (isNaN(p) && !isSignalling(q));
  return of(bits(first ? p : q) | 0x00400000u);
}

inline step hypot(step u, step v) {
  const step p = magnitude(u);
  const step q = magnitude(v);
  if (bits(p) >= 0x7F800000u || bits(q) >= 0x7F800000u) return specialSum(p, q);
  step a = q > p ? q : p;
  step b = q > p ? p : q;
  std::uint32_t ia = bits(a);
  std::uint32_t ib = bits(b);
  if (ia - ib >= 0xF000001u) return a + b;
  int k = 0;
  if (ia >= 0x5D800001u) {
    ia -= 0x2D000000u;
    ib -= 0x2D000000u;
    a = of(ia);
    b = of(ib);
    k = 90;
  }
  if (ib < 0x21800000u) {
    if (ib >= 0x800000u) {
      ia += 0x2D000000u;
      ib += 0x2D000000u;
      a = of(ia);
      b = of(ib);
      k -= 90;
    } else {
      if (ib == 0) return a;
      a = a * of(0x7E800000u);
      b = b * of(0x7E800000u);
      k -= 126;
    }
  }
  const step w = a - b;
  const step t1 = of(ia & 0xFFFFF000u);
  step r = 0.0f;
  if (w > b) {
    r = squareRoot(t1 * t1 - (b * -b - (a - t1) * (a + t1)));
  } else {
    const step y1 = of(ib & 0xFFFFF000u);
    const step t3 = of((ia & 0xFFFFF000u) + 0x800000u);
    r = squareRoot(y1 * t3 - (w * -w - ((b - y1) * t3 + b * ((a + a) - t3))));
  }
  return r * std::ldexp(1.0f, k);
}

inline step atan2(step y, step x) {
  const int m = 2 * isNegative(x) + isNegative(y);
  const std::uint32_t iy = magnitudeBits(y);
  const std::uint32_t ix = magnitudeBits(x);
  if (isNaN(x) || isNaN(y)) return nan;
  if (x == 1.0f) return atan(y);
  if (iy == 0) {
    if (ix == 0) return 0.0f;
    return m < 2 ? y : m == 2 ? pi : -pi;
  }
  if (ix == 0x7F800000u) {
    const step threeQuarters = of(0x4016CBE4u);
    if (iy == ix) return m == 0 ? piOver4 : m == 1 ? -piOver4 : m == 2 ? threeQuarters : -threeQuarters;
    return m == 0 ? step(0.0f) : m == 1 ? step(-0.0f) : m == 2 ? pi : -pi;
  }
  if (ix == 0 || iy == 0x7F800000u) return isNegative(y) ? -piOver2 : piOver2;
  const std::int32_t dk = static_cast<std::int32_t>(iy) - static_cast<std::int32_t>(ix);
  step z = 0.0f;
  if (dk >= 0x1E800000) {
    z = piOver2;
  } else if (!(x < 0.0f && dk < -0x1E000000)) {
    z = atan(magnitude(y / x));
  }
  switch (m) {
    case 0:
      return z;
    case 1:
      return -z;
    case 2:
      return pi - (z + of(0x33BBBD2Eu));
    default:
      return (z + of(0x33BBBD2Eu)) + -pi;
  }
}

// One bit of the quotient at a time.
template <class Wide>
Wide mod(Wide x, Wide y) {
  using word = std::conditional_t<std::is_same_v<Wide, float>, std::uint32_t, std::uint64_t>;
  constexpr int width = sizeof(Wide) == 4 ? 23 : 52;
  constexpr word sign = word{1} << (8 * sizeof(Wide) - 1);
  constexpr word infinite = sizeof(Wide) == 4 ? word{0xFF} << width : word{0x7FF} << width;
  const word bitsX = std::bit_cast<word>(x);
  const word bitsY = std::bit_cast<word>(y);
  const word magnitudeX = bitsX & ~sign;
  const word magnitudeY = bitsY & ~sign;
  const bool sameSign = (bitsX & sign) == (bitsY & sign);
  const Wide zero = std::bit_cast<Wide>(bitsY & sign);
  if (magnitudeY == 0) return magnitudeX == 0 ? y : x;
  if (magnitudeX >= infinite || magnitudeY > infinite) return std::bit_cast<Wide>(sign | infinite | infinite >> 1);
  if (magnitudeX < magnitudeY) {
    if (sameSign) return x;
    if (magnitudeX == 0) return zero;
    volatile Wide sum = x + y;
    return sum;
  }
  if (magnitudeX == magnitudeY) return zero;

  const auto normalize = [](word magnitude, int& exponent) {
    exponent = static_cast<int>(magnitude >> width);
    word significand = magnitude & ((word{1} << width) - 1);
    if (exponent > 0) return significand | word{1} << width;
    exponent = 1;
    while ((significand >> width) == 0) {
      significand <<= 1;
      --exponent;
    }
    return significand;
  };
  int exponentX = 0, exponentY = 0;
  word r = normalize(magnitudeX, exponentX);
  const word divisor = normalize(magnitudeY, exponentY);
  if (r >= divisor) r -= divisor;
  for (int d = exponentX - exponentY; d > 0; --d) {
    r <<= 1;
    if (r >= divisor) r -= divisor;
  }
  if (r == 0) return zero;
  const Wide magnitude = std::ldexp(static_cast<Wide>(r), exponentY - (sizeof(Wide) == 4 ? 150 : 1075));
  const Wide remainder = (bitsX & sign) != 0 ? -magnitude : magnitude;
  volatile Wide result = sameSign ? remainder + Wide(-0.0) : y + remainder;
  return result;
}

}  // namespace zthalf::testing::steps
