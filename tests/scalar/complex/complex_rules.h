// What the arithmetic of every pair of operands gives, case after case: the reference of the tests of complex operators
// and of the arithmetic families. Written on plain operators of definedNumber, one case a line. Rounding to half and
// widening are the library's, which core/float_conversion tests.
#pragma once

#include <complex>
#include <cstdint>

#include "tests/support/defined_number.h"
#include "zthalf/half_scalar.h"
#include "zthalf/half_t.h"

namespace zthalf::testing::rules {

template <class Wide>
struct pairOf {
  definedNumber<Wide> re, im;
};

inline std::uint16_t rounded(definedNumber<float> x) { return half_scalar::impl::convertSingleToHalf(x.value()); }
inline std::uint16_t rounded(definedNumber<double> x) { return half_scalar::impl::convertDoubleToHalf(x.value()); }

// An operand in the working type.
template <class Wide>
definedNumber<Wide> in(half_t x) {
  if constexpr (sizeof(Wide) == 4) {
    return half_scalar::impl::convertHalfToSingle(x.bits);
  } else {
    return half_scalar::impl::convertHalfToDouble(x.bits);
  }
}
// A float NaN keeps its sign and payload on its way to double, and becomes quiet there.
template <class Wide>
definedNumber<Wide> in(float x) {
  if constexpr (sizeof(Wide) == 8) {
    const definedNumber<float> f = x;
    if (f.isNaN()) {
      const auto payload = static_cast<std::uint64_t>(f.quiet().bits & 0x007FFFFF) << 29;
      return definedNumber<Wide>::ofBits((f.hasSign() ? 0xFFF0000000000000u : 0x7FF0000000000000u) | payload);
    }
  }
  return static_cast<Wide>(x);
}
template <class Wide>
definedNumber<Wide> in(double x) {
  return static_cast<Wide>(x);
}
template <class Wide, class T>
pairOf<Wide> in(std::complex<T> z) {
  return {in<Wide>(z.real()), in<Wide>(z.imag())};
}

// The sum s of p and q, moved where its rounding to half would go wrong; the tie is where half's last place ends.
template <class Wide>
definedNumber<Wide> nudged(definedNumber<Wide> p, definedNumber<Wide> q) {
  using number = definedNumber<Wide>;
  using word = typename number::word;
  constexpr word lowBits = sizeof(Wide) == 4 ? word{0x1FFF} : static_cast<word>(0x3FFFFFFFFFF);
  constexpr word tie = sizeof(Wide) == 4 ? word{0x1000} : static_cast<word>(0x20000000000);
  const number s = p + q;
  const number e = ((s - p) - q) + ((s - q) - p);
  if (e.isZero() || s.isNaN() || s.isInfinite()) return s;
  if (e.hasSign() != s.hasSign()) return number::ofBits(s.bits | 1);
  return (s.bits & lowBits) == tie ? number::ofBits(s.bits - 1) : s;
}

// Complex z times real x.
template <class Wide>
pairOf<Wide> timesReal(pairOf<Wide> z, definedNumber<Wide> x) {
  if (z.im.isZero()) return {z.re * x, Wide(0)};
  if (z.re.isZero()) return {Wide(0), z.im * x};
  return {z.re * x, z.im * x};
}

// A column's total times the product of a run, with the run's part before the total's in each multiplication.
inline pairOf<float> totalTimesRun(pairOf<float> total, pairOf<float> run) {
  const auto [a, b] = total;
  const auto [c, d] = run;
  if (b.isZero()) return timesReal(run, a);
  if (d.isZero()) return a.isZero() ? pairOf<float>{0.0f, c * b} : pairOf<float>{c * a, c * b};
  const auto minusDB = -(d * b);
  if (a.isZero() && c.isZero()) return {minusDB, 0.0f};
  if (a.isZero()) return {minusDB, c * b};
  if (c.isZero()) return {minusDB, d * a};
  return {nudged(c * a, -d * b), nudged(d * a, c * b)};
}

enum class way { nudgedSingle, nudgedDouble, fusedDouble };

template <way how, class Wide>
pairOf<Wide> timesComplex(pairOf<Wide> x, pairOf<Wide> y) {
  const auto [a, b] = x;
  const auto [c, d] = y;
  if (b.isZero()) return timesReal(y, a);
  if (d.isZero()) return timesReal(x, c);
  const auto minusBD = -(b * d);
  if (a.isZero() && c.isZero()) return {minusBD, Wide(0)};
  if (a.isZero()) return {minusBD, b * c};
  if (c.isZero()) return {minusBD, a * d};
  if constexpr (how == way::fusedDouble) {
    return {definedNumber<Wide>::fused(a, c, b * -d), definedNumber<Wide>::fused(a, d, b * c)};
  } else {
    return {nudged(a * c, b * -d), nudged(a * d, b * c)};
  }
}

// Complex x by real b.
template <class Wide>
pairOf<Wide> byReal(pairOf<Wide> x, definedNumber<Wide> b) {
  pairOf<Wide> q{x.re / b, x.im / b};
  if (b.isZero() && x.re.isZero() && !x.im.isZero()) q.re = Wide(0);
  if (b.isZero() && x.im.isZero()) q.im = Wide(0);
  return q;
}

// Complex by complex. Two complex halves write some products in another order, and have a real part of zero for every
// real divisor of an imaginary number.
template <bool halves, class Wide>
pairOf<Wide> byComplex(pairOf<Wide> x, pairOf<Wide> y) {
  const auto [a, b] = x;
  const auto [c, d] = y;
  const definedNumber<Wide> zero = Wide(0), half = Wide(0.5);
  if (d.isZero()) {
    pairOf<Wide> q = byReal(x, c);
    if (b.isZero()) q.im = zero;
    if (halves && a.isZero() && !b.isZero()) q.re = zero;
    return q;
  }
  if (c.isZero()) {
    return {!a.isZero() && b.isZero() ? zero : b / d, a.isZero() ? zero : -(a / d)};
  }
  if (c.magnitude() == d.magnitude()) {
    const auto h = a * half, k = b * half;
    if (c == d) return {(h + k) / c, (k - h) / c};
    return {(h - k) / c, (h + k) / c};
  }
  const auto s = c * c + d * d;
  if (!s.isInfinite()) {
    if (halves) return {(a * c + b * d) / s, (c * b - a * d) / s};
    return {(a * c + b * d) / s, (b * c - a * d) / s};
  }
  if (c.magnitude() > d.magnitude()) {
    const auto r = d / c;
    const auto t = c + d * r;
    if (halves) return {(a + b * r) / t, (b - r * a) / t};
    return {(a + r * b) / t, (b - r * a) / t};
  }
  const auto r = c / d;
  const auto t = d + c * r;
  if (halves) return {(b + a * r) / t, (r * b - a) / t};
  return {(r * a + b) / t, (r * b - a) / t};
}

// Real a by complex y.
template <class Wide>
pairOf<Wide> realByComplex(definedNumber<Wide> a, pairOf<Wide> y) {
  const auto [c, d] = y;
  const definedNumber<Wide> zero = Wide(0), half = Wide(0.5);
  if (d.isZero()) return {a / c, zero};
  if (c.isZero()) {
    const auto real = d.isNaN()     ? definedNumber<Wide>::ofBits(zero.infinity | zero.quietBit)
                      : d.hasSign() ? -zero
                                    : zero;
    return {real, -(a / d)};
  }
  if (c.magnitude() == d.magnitude()) {
    const auto h = a * half;
    if (c == d) return {(h + zero) / c, (zero - h) / c};
    return {(h - zero) / c, (h + zero) / c};
  }
  const auto s = c * c + d * d;
  if (!s.isInfinite() && !(c * a).isInfinite() && !(d * a).isInfinite()) return {(c * a) / s, -(d * a) / s};
  const auto e1 = c.isInfinite() ? c : c + d * (d / c);
  const auto e2 = d.isInfinite() ? d : d + c * (c / d);
  return {a / e1, -a / e2};
}

}  // namespace zthalf::testing::rules
