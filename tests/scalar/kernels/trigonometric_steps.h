// The trigonometric kernels as the steps they are defined by, with the tests on patterns written out and every
// operation rounded on its own: the reference of the kernels' bits. The reduction by the digits of 2/pi is done here in
// integers; the digits are the library's, which scalar/kernels/rem_pio2_single_accuracy tests by multiple precision.
#pragma once

#include <array>
#include <cmath>

#include "scalar/kernels/two_over_pi_digits.h"
#include "tests/scalar/kernels/steps_single.h"

namespace zthalf::testing::steps {

inline step ofInteger(std::int32_t n) { return static_cast<float>(n); }
inline std::uint32_t magnitudeBits(step v) { return bits(v) & 0x7FFFFFFFu; }
inline std::int32_t signedBits(step v) { return static_cast<std::int32_t>(bits(v)); }
inline std::int32_t field(step v) { return static_cast<std::int32_t>(magnitudeBits(v) >> 23); }
inline bool isNegative(step v) { return bits(v) >> 31 != 0; }
inline bool isNaN(step v) { return magnitudeBits(v) > 0x7F800000u; }
inline step magnitude(step v) { return of(magnitudeBits(v)); }
// Towards zero, and 0 for a NaN.
inline std::int32_t truncated(step v) { return isNaN(v) ? 0 : static_cast<std::int32_t>(v.value()); }

inline const step piOver4 = of(0x3F490FDB);
inline const step piOver4Low = of(0xB2BBBD2E);
inline const step piOver2 = of(0x3FC90FDB);
inline const step piOver2Low = of(0x333BBD2E);
inline const step pi = of(0x40490FDB);
inline const step piLow = of(0xB3BBBD2E);

struct angle {
  std::int32_t n;
  step y0;
  step y1;
};

// x * 2/pi with as many digits of 2/pi as are asked for, as an integer T: the sum of term[i] * 256^(last - i). Its unit
// is 2^(q0 - 8 last).
inline unsigned __int128 productWithDigits(std::array<std::uint32_t, 3> const& x, int count, int first, int last) {
  unsigned __int128 product = 0;
  for (int i = 0; i <= last; ++i) {
    std::uint32_t term = 0;
    for (int j = 0; j < count; ++j) {
      const int index = first + i - j;
      term += x[j] * (index < 0 ? 0u : qsl_scalar::twoOverPiDigits[index]);
    }
    product = product * 256 + term;
  }
  return product;
}

inline angle reducedByDigits(std::array<std::uint32_t, 3> const& x, int count, std::int32_t e0) {
  static constexpr std::array<std::uint32_t, 10> halfPiDigits = {0x3FC90000, 0x39F00000, 0x37DA0000, 0x33A20000,
                                                                 0x2E840000, 0x2B500000, 0x27C20000, 0x22D00000,
                                                                 0x1FC40000, 0x1BC60000};
  const int first = e0 < 3 ? 0 : (e0 - 3) / 8;
  const std::int32_t q0 = e0 - 8 * (first + 1);
  const unsigned __int128 nineDigits = static_cast<unsigned __int128>(1) << 72;
  for (int last = 9;;) {
    const unsigned __int128 product = productWithDigits(x, count, first, last);
    const int fractionBits = 8 * last - q0;
    const unsigned __int128 unit = static_cast<unsigned __int128>(1) << fractionBits;
    unsigned __int128 fraction = product % unit;
    auto n = static_cast<std::int32_t>(static_cast<std::uint64_t>(product / unit) & 7);
    const bool isRoundedUp = fraction >= unit / 2;
    if (isRoundedUp) {
      fraction = unit - fraction;
      n = n + 1;
    }
    const auto digit = [&](int i) {
      return static_cast<std::int32_t>(static_cast<std::uint32_t>(fraction >> 8 * i) & 255u);
    };
    if (fraction < nineDigits) {
      int k = 1;
      while (digit(9 - k) == 0) ++k;
      last += k;
      continue;
    }

    int top = last;
    while (digit(top) == 0) --top;
    std::array<float, 16> q{};
    step weight = std::ldexp(1.0f, q0 - 8 * (last - top));
    for (int i = top; i >= 0; --i) {
      q[i] = (weight * ofInteger(digit(i))).value();
      weight = weight * of(0x3B800000);  // 1/256
    }
    std::array<float, 16> fq{};
    for (int i = top; i >= 0; --i) {
      step sum = 0.0f;
      for (int k = 0; k <= 9 && k <= top - i; ++k) sum = sum + of(halfPiDigits[k]) * q[i + k];
      fq[top - i] = sum.value();
    }
    step y0 = 0.0f;
    for (int i = top; i >= 0; --i) y0 = y0 + fq[i];
    step y1 = step(fq[0]) - y0;
    for (int i = 1; i <= top; ++i) y1 = y1 + fq[i];
    return {n & 7, isRoundedUp ? -y0 : y0, isRoundedUp ? -y1 : y1};
  }
}

// n pi/2, rounded, without its 8 low bits, for n from 1 to 32.
inline std::uint32_t leadingBitsOfMultiple(int n) {
  static constexpr std::array<std::uint32_t, 32> words = {
      0x3FC90F00, 0x40490F00, 0x4096CB00, 0x40C90F00, 0x40FB5300, 0x4116CB00, 0x412FED00, 0x41490F00,
      0x41623100, 0x417B5300, 0x418A3A00, 0x4196CB00, 0x41A35C00, 0x41AFED00, 0x41BC7E00, 0x41C90F00,
      0x41D5A000, 0x41E23100, 0x41EEC200, 0x41FB5300, 0x4203F200, 0x420A3A00, 0x42108300, 0x4216CB00,
      0x421D1400, 0x42235C00, 0x4229A500, 0x422FED00, 0x42363600, 0x423C7E00, 0x4242C700, 0x42490F00};
  return words[n - 1];
}

inline angle reduced(step x) {
  const step n1 = of(0x3FC90F80), n2 = of(0x37354400), n3 = of(0x2E85A300);
  const step t1 = of(0x37354443), t2 = of(0x2E85A308), t3 = of(0x248D3132);
  const std::uint32_t ix = magnitudeBits(x);
  if (ix <= 0x4016CBE2) {
    const bool near = (ix & 0xFFFFFFE0) == 0x3FC90FC0 || (ix & 0xFFFFFFF0) == 0x3FC90FE0;
    const step t = near ? t2 : t1;
    if (x > 0.0f) {
      step z = x - n1;
      if (near) z = z - n2;
      const step y0 = z - t;
      return {1, y0, (z - y0) - t};
    }
    step z = x + n1;
    if (near) z = z + n2;
    const step y0 = z + t;
    return {-1, y0, (z - y0) + t};
  }
  if (ix <= 0x43490F80) {
    const step t = magnitude(x);
    const std::int32_t n = truncated(t * of(0x3F22F984) + 0.5f);
    const step fn = ofInteger(n);
    step r = t + fn * -n1;
    step w = fn * t1;
    step y0 = r - w;
    if (!(n <= 31 && (ix & 0xFFFFFF00) != leadingBitsOfMultiple(n))) {
      const auto j = static_cast<std::int32_t>(ix >> 23);
      if (j - field(y0) >= 9) {
        step before = r;
        w = fn * n2;
        r = before - w;
        w = fn * t2 - ((before - r) - w);
        y0 = r - w;
        if (j - field(y0) >= 26) {
          before = r;
          w = fn * n3;
          r = before - w;
          w = fn * t3 - ((before - r) - w);
          y0 = r - w;
        }
      }
    }
    const step y1 = (r - y0) - w;
    return x < 0.0f ? angle{-n, -y0, -y1} : angle{n, y0, y1};
  }
  if (ix >= 0x7F800000) return {0, nan, nan};
  const std::int32_t e0 = static_cast<std::int32_t>(ix >> 23) - 134;
  const std::uint32_t significand = (ix & 0x7FFFFF) | 0x800000;
  const std::array<std::uint32_t, 3> digits = {significand >> 16, significand >> 8 & 255, significand & 255};
  const angle y = reducedByDigits(digits, digits[2] != 0 ? 3 : digits[1] != 0 ? 2 : 1, e0);
  return x < 0.0f ? angle{-y.n, -y.y0, -y.y1} : y;
}

inline step sinPoly(step a, step b) {
  if (magnitude(a) < of(0x32000000)) return a;
  const step z = a * a;
  const step v = a * z;
  const step r = z * (z * of(0x3636D9C0) + of(0xB95009C3)) + of(0x3C088887);
  return a - (v * of(0x3E2AAAAB) + (z * (b * 0.5f - v * r) - b));
}

inline step cosPoly(step a, step b) {
  if (magnitude(a) < of(0x32000000)) return 1.0f;
  const step z = a * a;
  const step c = z * (z * (z * of(0xB4928E05) + of(0x37D00AD5)) + of(0xBAB60B60)) + of(0x3D2AAAAB);
  const step q = z * (z * c) - a * b;
  if (magnitude(a) < of(0x3E99999A)) return (q + z * -0.5f) + 1.0f;
  if (magnitude(a) > 0.78125f) return (q - (z * 0.5f + -0.28125f)) + 0.71875f;
  const step h = mask(magnitude(a)) * 0.25f;
  return (step(1.0f) - h) - ((z * 0.5f - h) - q);
}

inline step sinOf(angle const& y) {
  if (isNaN(y.y0)) return y.y0;
  const step s = sinPoly(y.y0, y.y1), c = cosPoly(y.y0, y.y1);
  return std::array{s, c, -s, -c}[y.n & 3];
}

inline step cosOf(angle const& y) {
  if (isNaN(y.y0)) return y.y0;
  const step s = sinPoly(y.y0, y.y1), c = cosPoly(y.y0, y.y1);
  return std::array{c, -s, -c, s}[y.n & 3];
}

inline step sin(step v) {
  if (!(magnitude(v) <= piOver4)) return sinOf(reduced(v));
  if (magnitude(v) < of(0x32000000)) return v;
  const step z = v * v;
  return v + (v * z) * (z * (z * (z * of(0x3636D9C0) + of(0xB95009C3)) + of(0x3C088887)) + of(0xBE2AAAAB));
}

inline step cos(step v) {
  if (!(magnitude(v) <= piOver4)) return cosOf(reduced(v));
  return cosPoly(v, 0.0f);
}

// sin(k pi / 12) at k - 1, for k from 1 to 11.
inline constexpr std::array<std::uint32_t, 11> sinesOfTwelfths = {0x3E8483EE, 0x3F000000, 0x3F3504F3, 0x3F5DB3D7,
                                                                  0x3F7746EA, 0x3F800000, 0x3F7746EA, 0x3F5DB3D7,
                                                                  0x3F3504F3, 0x3F000000, 0x3E8483EE};

// The cosine where wanted, otherwise the sine of pi x.
inline step sinOrCosOfPi(step x, bool cosine) {
  step r = magnitude(x) < 2.0f ? x : step(std::fmod(x.value(), 2.0f));
  if (magnitude(r) > 1.0f) r = r + (r > 0.0f ? -2.0f : 2.0f);
  const step twelfths = r * 12.0f;
  const std::int32_t k = truncated(twelfths);
  if (twelfths == ofInteger(k)) {
    const std::int32_t m = k < 0 ? -k : k;
    if (cosine) {
      if (m == 0) return 1.0f;
      if (m == 12) return -1.0f;
      if (m == 6) return 0.0f;
      return m < 6 ? of(sinesOfTwelfths[6 - m - 1]) : -of(sinesOfTwelfths[m - 6 - 1]);
    }
    if (m == 0 || m == 12) return step(0.0f) * (pi * r);
    return k > 0 ? of(sinesOfTwelfths[m - 1]) : -of(sinesOfTwelfths[m - 1]);
  }
  const step a = magnitude(r);
  std::int32_t n = 0;
  if (a < 0.25f) {
    n = 0;
  } else if (a < 0.75f) {
    n = r > 0.0f ? 1 : -1;
    r = r > 0.0f ? r - 0.5f : r + 0.5f;
  } else if (a < 1.0f) {
    n = r > 0.0f ? 2 : -2;
    r = r > 0.0f ? r - 1.0f : r + 1.0f;
  } else {
    r = nan;
  }
  if (isNaN(r)) return nan;
  const angle y = {n, pi * r, piLow * r};
  return cosine ? cosOf(y) : sinOf(y);
}

inline step sinpi(step x) { return sinOrCosOfPi(x, false); }
inline step cospi(step x) { return sinOrCosOfPi(x, true); }

inline step tanCore(step a, step b, int iy) {
  const std::uint32_t ia = magnitudeBits(a);
  if (ia < 0x31800016) {
    if (iy == 1) return a;
    if (ia == 0) return step(1.0f) / magnitude(a);
    return step(-1.0f) / a;
  }
  const bool negative = isNegative(a);
  if (ia > 0x3F2CA579) {
    a = (piOver4 - magnitude(a)) + (piOver4Low - (negative ? -b : b));
    b = 0.0f;
  }
  const step z = a * a;
  const step v = a * z;
  const step w = z * z;
  const step p =
      z * (w * of(0x3BE8E61A) + of(0x3D5CD8E8)) + (w * (w * of(0x3BD7F1BA) + of(0x3CB6D1BC)) + of(0x3E088913));
  const step R = v * of(0x3EAAAAAA) + (b + z * (b + v * p));
  const step t = a + R;
  if (ia > 0x3F2CA579) {
    const step fi = ofInteger(iy);
    const step d = a - ((t * t) / (t + fi) - R);
    return (fi - (d + d)) * (negative ? -1.0f : 1.0f);
  }
  if (iy == 1) return t;
  const step g = step(-1.0f) / t;
  const step tm = mask(t);
  const step gm = mask(g);
  const step u = R - (tm - a);
  return g * ((tm * gm + 1.0f) + u * gm) + gm;
}

inline step tan(step v) {
  if (magnitude(v) <= piOver4) return tanCore(v, 0.0f, 1);
  const angle y = reduced(v);
  if (isNaN(y.y0)) return y.y0;
  return tanCore(y.y0, y.y1, 1 - 2 * (y.n & 1));
}

}  // namespace zthalf::testing::steps
