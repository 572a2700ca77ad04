// The double-precision kernels once more, as their steps one after the other: the reference of the kernel tests. Every
// operation is stored and read back, so that nothing can be fused or reordered, and decisions are by the words of the
// pattern.
#pragma once

#include <bit>
#include <cmath>
#include <cstdint>
#include <initializer_list>

namespace zthalf::testing::steps::doubles {

class step {
 public:
  step(double v) : value_(v) {}
  double value() const { return value_; }

  friend step operator+(step a, step b) { return stored(a.value_ + b.value_); }
  friend step operator-(step a, step b) { return stored(a.value_ - b.value_); }
  friend step operator*(step a, step b) { return stored(a.value_ * b.value_); }
  friend step operator/(step a, step b) { return stored(a.value_ / b.value_); }
  friend auto operator<=>(step, step) = default;
  step operator-() const {
    return std::bit_cast<double>(std::bit_cast<std::uint64_t>(value_) ^ std::uint64_t{1} << 63);
  }

 private:
  static step stored(double v) {
    volatile double memory = v;
    return memory;
  }
  double value_;
};

inline std::uint64_t bits(step v) { return std::bit_cast<std::uint64_t>(v.value()); }
inline step of(std::uint64_t pattern) { return std::bit_cast<double>(pattern); }
inline step words(std::uint32_t high, std::uint32_t low) { return of(std::uint64_t{high} << 32 | low); }
inline std::uint32_t high(step v) { return static_cast<std::uint32_t>(bits(v) >> 32); }
inline std::uint32_t low(step v) { return static_cast<std::uint32_t>(bits(v)); }
inline step mask(step v) { return words(high(v), 0); }
inline step magnitude(step v) { return of(bits(v) & 0x7FFFFFFFFFFFFFFF); }
inline bool isNegative(step v) { return bits(v) >> 63 != 0; }
inline bool isNaN(step v) { return bits(magnitude(v)) > 0x7FF0000000000000; }
inline bool isInfinite(step v) { return bits(magnitude(v)) == 0x7FF0000000000000; }
inline bool isZero(step v) { return bits(magnitude(v)) == 0; }
inline step root(step v) { return std::sqrt(v.value()); }

inline const step nan = of(0xFFF8000000000000);
inline const step inf = of(0x7FF0000000000000);
inline const step pi = of(0x400921FB54442D18);
inline const step piOver2 = of(0x3FF921FB54442D18);
inline const step piOver4 = of(0x3FE921FB54442D18);

inline step horner(step w, std::initializer_list<std::uint64_t> coefficients) {
  step sum = 0.0;
  bool first = true;
  for (const std::uint64_t c : coefficients) {
    sum = first ? of(c) : sum * w + of(c);
    first = false;
  }
  return sum;
}

inline bool isSignalling(step v) { return isNaN(v) && (bits(v) >> 51 & 1) == 0; }

// The sum of two magnitudes of which one at least is infinite or a NaN: the NaN made quiet, and of two the signalling
// one, or else the first.
inline step specialSum(step p, step q) {
  if (!isNaN(p) && !isNaN(q)) return inf;
  const bool first = isSignalling(p) || (isNaN(p) && !isSignalling(q));
  return of(bits(first ? p : q) | std::uint64_t{1} << 51);
}

inline step hypot(step u, step v) {
  const step p = magnitude(u);
  if (isZero(v)) return p;
  const step q = magnitude(v);
  if (bits(p) >= 0x7FF0000000000000 || bits(q) >= 0x7FF0000000000000) return specialSum(p, q);
  step a = q > p ? q : p;
  step b = q > p ? p : q;
  auto ha = static_cast<std::int32_t>(high(a));
  auto hb = static_cast<std::int32_t>(high(b));
  if (ha - hb >= 0x3C00001) return a + b;
  int k = 0;
  if (ha >= 0x5F300001) {
    ha -= 0x25800000;
    hb -= 0x25800000;
    a = words(static_cast<std::uint32_t>(ha), low(a));
    b = words(static_cast<std::uint32_t>(hb), low(b));
    k = 600;
  }
  if (hb < 0x20B00000) {
    if (hb >= 0x100000) {
      ha += 0x25800000;
      hb += 0x25800000;
      a = words(static_cast<std::uint32_t>(ha), low(a));
      b = words(static_cast<std::uint32_t>(hb), low(b));
      k -= 600;
    } else {
      if (isZero(b)) return a;
      a = a * of(0x7FD0000000000000);
      b = b * of(0x7FD0000000000000);
      k -= 1022;
    }
  }
  step w = a - b;
  const step t1 = words(static_cast<std::uint32_t>(ha), 0);
  if (w > b) {
    w = root(t1 * t1 - (b * -b - (a - t1) * (a + t1)));
  } else {
    const step y1 = words(static_cast<std::uint32_t>(hb), 0);
    const step y2 = b - y1;
    const step t3 = words(static_cast<std::uint32_t>(ha + 0x100000), 0);
    const step t2 = (a + a) - t3;
    w = root(y1 * t3 - (w * -w - (y2 * t3 + b * t2)));
  }
  if (k != 0) w = w * std::ldexp(1.0, k);
  return w;
}

inline step atan(step v) {
  const std::uint32_t h = high(v) & 0x7FFFFFFF;
  if (h >= 0x44100000) {
    if (isNaN(v)) return nan;
    return isNegative(v) ? -piOver2 : piOver2;
  }
  int id = -1;
  step a = v;
  const step t = magnitude(v);
  if (h < 0x3FDC0000) {
    if (h < 0x3E200000) return v;
  } else if (h <= 0x3FE5FFFF) {
    id = 0;
    a = ((t + t) + -1.0) / (t + 2.0);
  } else if (h <= 0x3FF2FFFF) {
    id = 1;
    a = (t + -1.0) / (t + 1.0);
  } else if (h <= 0x40037FFF) {
    id = 2;
    a = (t + -1.5) / (t * 1.5 + 1.0);
  } else {
    id = 3;
    a = step(-1.0) / t;
  }
  const step z = a * a;
  const step w = z * z;
  const step s1 = z * horner(w, {0x3F90AD3AE322DA11, 0x3FA97B4B24760DEB, 0x3FB10D66A0D03D51, 0x3FB745CDC54C206E,
                                 0x3FC24924920083FF, 0x3FD555555555550D});
  const step s2 = w * horner(w, {0xBFA2B4442C6A6C2F, 0xBFADDE2D52DEFD9A, 0xBFB3B0F2AF749A6D, 0xBFBC71C6FE231671,
                                 0xBFC999999998EBC4});
  const step r = a * (s2 + s1);
  if (id < 0) return a - r;
  const step hi[] = {of(0x3FDDAC670561BB4F), of(0x3FE921FB54442D18), of(0x3FEF730BD281F69B), of(0x3FF921FB54442D18)};
  const step lo[] = {of(0x3C7A2B7F222F65E2), of(0x3C81A62633145C07), of(0x3C7007887AF0CBBD), of(0x3C91A62633145C07)};
  const step angle = hi[id] - ((r - lo[id]) - a);
  return isNegative(v) ? -angle : angle;
}

inline step atan2(step y, step x) {
  const int m = 2 * isNegative(x) + isNegative(y);
  if (isNaN(x) || isNaN(y)) return nan;
  if (x == 1.0) return atan(y);
  if (isZero(y)) {
    if (isZero(x)) return 0.0;
    return m < 2 ? y : m == 2 ? pi : -pi;
  }
  if (isInfinite(x)) {
    const step threeQuarters = of(0x4002D97C7F3321D2);
    if (isInfinite(y)) return m == 0 ? piOver4 : m == 1 ? -piOver4 : m == 2 ? threeQuarters : -threeQuarters;
    return m == 0 ? step(0.0) : m == 1 ? step(-0.0) : m == 2 ? pi : -pi;
  }
  if (isZero(x) || isInfinite(y)) return isNegative(y) ? -piOver2 : piOver2;
  const auto iy = static_cast<std::int32_t>(high(y) & 0x7FFFFFFF);
  const auto ix = static_cast<std::int32_t>(high(x) & 0x7FFFFFFF);
  const std::int32_t dk = iy - ix;
  step z = 0.0;
  if (dk > 0x3CFFFFF) {
    z = piOver2;
  } else if (!(x < 0.0 && dk < -0x3C00000)) {
    z = atan(magnitude(y / x));
  }
  const step lower = of(0xBCA1A62633145C07);
  switch (m) {
    case 0:
      return z;
    case 1:
      return -z;
    case 2:
      return pi - (z + lower);
    default:
      return (z + lower) + -pi;
  }
}

}  // namespace zthalf::testing::steps::doubles
