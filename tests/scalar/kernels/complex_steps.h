// The complex kernels as the steps they are defined by, on numbers of the defining unit: the reference of their bits.
// Cases are written out one after the other, without what the kernels share; results come by reference. The real
// functions are the stated steps in single precision. Those of double precision are left open by definition and are the
// kernels themselves: in double the complex formulas alone are compared.
#pragma once

#include <cmath>

#include "scalar/kernels/real_kernels.h"
#include "tests/scalar/kernels/two_argument_steps.h"
#include "tests/support/defined_number.h"

namespace zthalf::testing::complex_steps {

template <class Wide>
using num = definedNumber<Wide>;

template <class Wide>
struct pair {
  num<Wide> re, im;
};

inline num<float> wordOf(std::uint32_t w) { return num<float>::ofBits(w); }

template <class Wide>
struct real;

template <>
struct real<float> {
  using n = num<float>;
  static n nan() { return wordOf(0xFFC00000); }
  static n pi() { return wordOf(0x40490FDB); }
  static n halfPi() { return wordOf(0x3FC90FDB); }
  static n ln2() { return wordOf(0x3F317218); }
  static n log(n x) { return steps::log(x.value()).value(); }
  static n log1p(n x) { return steps::log1p(x.value()).value(); }
  static n exp(n x) { return steps::exp(x.value()).value(); }
  static n pow(n x, n y) { return steps::pow(x.value(), y.value()).value(); }
  static n hypot(n x, n y) { return steps::hypot(x.value(), y.value()).value(); }
  static n atan2(n y, n x) { return steps::atan2(y.value(), x.value()).value(); }
  static n sin(n x) { return steps::sin(x.value()).value(); }
  static n cos(n x) { return steps::cos(x.value()).value(); }
  static constexpr float splitFrom = 88.0f, most = 0x1.fffffep127f, leastNormal = 0x1p-126f;
  static constexpr float rootScale = 0x1p23f, rootBack = 0x1p-12f;
  static n rootLimit() { return wordOf(0x72FFFFFF); }
};

template <>
struct real<double> {
  using n = num<double>;
  static n nan() { return n::ofBits(0xFFF8000000000000); }
  static n pi() { return n::ofBits(0x400921FB54442D18); }
  static n ln2() { return n::ofBits(0x3FE62E42FEFA39EF); }
  static n log(n x) { return qsl_scalar::logDouble(x.value()); }
  static n log1p(n x) { return qsl_scalar::log1pDouble(x.value()); }
  static n exp(n x) { return qsl_scalar::expDouble(x.value()); }
  static n pow(n x, n y) { return qsl_scalar::powDouble(x.value(), y.value()); }
  static n hypot(n x, n y) { return qsl_scalar::hypotDouble(x.value(), y.value()); }
  static n atan2(n y, n x) { return qsl_scalar::atan2Double(y.value(), x.value()); }
  static n sin(n x) { return qsl_scalar::sincosDouble(x.value()).sine; }
  static n cos(n x) { return qsl_scalar::sincosDouble(x.value()).cosine; }
  static constexpr double splitFrom = 709.0, most = 0x1.fffffffffffffp1023, leastNormal = 0x1p-1022;
  static constexpr double rootScale = 2251799813685248.0, rootBack = 1.4901161193847656e-08;
  static n rootLimit() { return n::ofBits(0x7C9FFFFFFFFFFFFF); }
};

template <class Wide>
bool finite(num<Wide> x) {
  return !x.isNaN() && !x.isInfinite();
}
template <class Wide>
num<Wide> signedAs(Wide magnitude, num<Wide> sign) {
  return sign.hasSign() ? -num<Wide>(magnitude) : num<Wide>(magnitude);
}
// The root of a number that is not negative, or of a NaN.
template <class Wide>
num<Wide> root(num<Wide> x) {
  if (x.isNaN()) return x.quiet();
  if (x < num<Wide>(0)) return num<Wide>::ofBits(num<Wide>::infinity | num<Wide>::quietBit);
  return Wide(std::sqrt(x.value()));
}
template <class Wide>
num<Wide> truncation(num<Wide> x) {
  return x.isNaN() ? x : num<Wide>(std::trunc(x.value()));
}

template <class Wide>
void recover(num<Wide> a, num<Wide> b, num<Wide> c, num<Wide> d, num<Wide>& re, num<Wide>& im) {
  using n = num<Wide>;
  const n zero = Wide(0), one = Wide(1), most = real<Wide>::most;
  if (b.isZero() && c.isZero()) {
    re = zero;
    im = a * d;
    return;
  }
  if (a.isZero() && d.isZero()) {
    re = zero;
    im = b * c;
    return;
  }
  const auto atLeast = [](n x, n y) { return x > y || x == y; };
  const n m1 = atLeast(a.magnitude(), b.magnitude()) || b.isNaN() ? a.magnitude() : b.magnitude();
  const n m2 = atLeast(c.magnitude(), d.magnitude()) || d.isNaN() ? c.magnitude() : d.magnitude();
  const auto scaled = [&](n x, n m) { return x.magnitude() == m ? signedAs(Wide(1), x) : x / m; };
  const n a1 = scaled(a, m1), b1 = scaled(b, m1), c1 = scaled(c, m2), d1 = scaled(d, m2);
  const bool flag = ((d.isZero() || c.isZero()) && m1 > most) || ((b.isZero() || a.isZero()) && m2 > most);
  const auto bad = [&](n x) { return x.isNaN() || (x.magnitude() > most && finite(m1) && finite(m2)); };
  const auto term = [](n x, n y, n x1, n y1) {
    const n product = x * y;
    return product.isNaN() ? signedAs(Wide(0), x1 * y1) : product;
  };
  if (bad(re)) {
    const n t = a1 * c1 - b1 * d1;
    if (!t.isZero()) {
      re = m2 * (m1 * t);
    } else {
      re = flag ? term(a, c, a1, c1) - term(b, d, b1, d1) : zero;
    }
  }
  if (bad(im)) {
    const n t = b1 * c1 + a1 * d1;
    if (!t.isZero()) {
      im = m2 * (m1 * t);
    } else {
      im = flag ? term(b, c, b1, c1) + term(a, d, a1, d1) : zero;
    }
  }
  (void)one;
}

template <class Wide>
pair<Wide> multiply(num<Wide> a, num<Wide> b, num<Wide> c, num<Wide> d) {
  if (b.isZero() && d.isZero()) return {a * c, Wide(0)};
  num<Wide> re = a * c - b * d, im = b * c + a * d;
  if (!finite(re) || !finite(im)) recover(a, b, c, d, re, im);
  return {re, im};
}

template <class Wide>
num<Wide> extremeRoot(num<Wide> x, num<Wide> y) {
  using n = num<Wide>;
  const bool big = x.magnitude() > real<Wide>::rootLimit() || y.magnitude() > real<Wide>::rootLimit();
  const n sc = big ? Wide(0.125) : real<Wide>::rootScale;
  const n back = big ? Wide(2) : real<Wide>::rootBack;
  const n ax = (sc * x).magnitude(), ys = sc * y, zero = Wide(0);
  if (ys.isZero()) return back * root((ax + ax) + zero);
  if (!finite(ax) || !finite(ys)) return back * root((ax + (ax + ys.magnitude())) + zero);
  return back * root((ax + real<Wide>::hypot(ax, ys)) + zero);
}

template <class Wide>
pair<Wide> sqrt(num<Wide> x, num<Wide> y) {
  using n = num<Wide>;
  const n zero = Wide(0), half = Wide(0.5);
  if (!(x < zero) && y.isZero()) return {root(x + zero), zero};
  if (x.isNaN() || y.isNaN()) return {real<Wide>::nan(), real<Wide>::nan()};
  const n yy = y + zero;
  const n h = real<Wide>::hypot(x, yy);
  n g = Wide(0);
  if (finite(h) && !(h < n(real<Wide>::leastNormal))) {
    g = root((x.magnitude() * half + h * half) + zero);
  } else {
    g = extremeRoot(x, yy);
  }
  if (x > zero) return {g, yy.isInfinite() ? yy * g : (yy / g) * half};
  const n gg = yy < zero ? -g : g;
  if (x < zero) return {yy.isInfinite() ? yy * gg : (yy / gg) * half, gg};
  return {g, gg};
}

template <class Wide>
pair<Wide> exp(num<Wide> x, num<Wide> y) {
  using n = num<Wide>;
  if (y.isZero()) return {real<Wide>::exp(x), Wide(0)};
  const n s = real<Wide>::sin(y), c = real<Wide>::cos(y);
  if (x > n(real<Wide>::splitFrom)) {
    const n e = real<Wide>::exp(x * n(Wide(0.5)));
    return {e * (e * c), e * (e * s)};
  }
  if (x.isInfinite() && x.hasSign()) {
    if (y.isNaN()) return {c, s};
    return {Wide(0), Wide(0)};
  }
  const n e = real<Wide>::exp(x);
  return {c * e, s * e};
}

template <class Wide>
pair<Wide> log(num<Wide> x, num<Wide> y) {
  using n = num<Wide>;
  const n zero = Wide(0), half = Wide(0.5), one = Wide(1);
  if (y.isZero()) {
    return {real<Wide>::log(x.magnitude()), x < zero ? (y.hasSign() ? -real<Wide>::pi() : real<Wide>::pi()) : zero};
  }
  const n angle = real<Wide>::atan2(y, x);
  const n h = real<Wide>::hypot(x, y);
  if (h.magnitude() > n(real<Wide>::most)) {
    return {real<Wide>::log(real<Wide>::hypot(x * half, y * half)) + real<Wide>::ln2(), angle};
  }
  if (h > n(Wide(0.875)) && h < n(Wide(1.125))) {
    const n k = x * x > y * y ? (one - x * x) - y * y : (one - y * y) - x * x;
    return {real<Wide>::log1p(-k) * half, angle};
  }
  return {real<Wide>::log(h), angle};
}

inline num<float> log2(num<float> v) {
  const num<float> zero = 0.0f;
  if (v.isZero()) return wordOf(0xFF800000);
  if (v < zero) return wordOf(0xFFC00000);
  if (v.isNaN() || v.isInfinite()) return v;
  int e = 0;
  const num<float> m = std::frexp(v.value(), &e);
  if (m == num<float>(0.5f)) return static_cast<float>(e - 1);
  const num<float> ln2 = wordOf(0x3F317218);
  if (e == 1 && m < num<float>(0.75f)) return real<float>::log(m + m) / ln2;
  return real<float>::log(m) / ln2 + num<float>(static_cast<float>(e));
}

inline num<float> log10(num<float> v) {
  if (v.isZero()) return wordOf(0xFF800000);
  if (v.hasSign()) return wordOf(0xFFC00000);
  if (v.isNaN() || v.isInfinite()) return v;
  int e = 0;
  const float half = std::frexp(v.value(), &e);  // in [0.5, 1)
  const int k = e - 1;
  const num<float> m = k < 0 ? half : half + half;
  const num<float> d = static_cast<float>(k < 0 ? k + 1 : k);
  return d * wordOf(0x3E9A2000) + (d * wordOf(0x369A84FC) + real<float>::log(m) * wordOf(0x3EDE5BD9));
}

inline pair<float> logToBase(num<float> x, num<float> y, num<float> (*log)(num<float>), num<float> ofTwo,
                             num<float> ofBase, num<float> piOverBase) {
  const num<float> zero = 0.0f, half = 0.5f;
  if (y.isZero()) return {log(x.magnitude()), x < zero ? (y.hasSign() ? -piOverBase : piOverBase) : zero};
  const num<float> angle = real<float>::atan2(y, x) / ofBase;
  const num<float> h = real<float>::hypot(x, y);
  if (h.magnitude() > num<float>(real<float>::most)) {
    return {log(real<float>::hypot(x * half, y * half)) + ofTwo, angle};
  }
  return {log(h), angle};
}
inline pair<float> log10(num<float> x, num<float> y) {
  return logToBase(x, y, log10, wordOf(0x3E9A209A), wordOf(0x40135D8E), wordOf(0x3FAEA3E3));
}
inline pair<float> log2(num<float> x, num<float> y) {
  return logToBase(x, y, log2, 1.0f, wordOf(0x3F317218), wordOf(0x40910918));
}

inline pair<float> expm1(num<float> x, num<float> y) {
  using n = num<float>;
  using r = real<float>;
  const n zero = 0.0f, half = 0.5f, one = 1.0f;
  if (y.isZero()) return {steps::expm1(x.value()).value(), zero};
  const auto exponential = exp<float>(x, y);
  const n u = exponential.re + n(-1.0f), v = exponential.im;
  if (u.magnitude() > half || u.magnitude() == half || y.magnitude() > r::halfPi()) return {u, v};
  const n vv = v + zero;
  n lr = zero, li = zero;
  if ((u > -one || u == -one) && vv.isZero()) {
    lr = r::log1p(u);
  } else {
    li = log<float>(u + one, vv).im;
    lr = r::log1p(((u + u) + u * u) + vv * vv) * half;
  }
  n wr = zero, wi = zero;
  if (li.isZero()) {
    wr = x.isZero() ? zero : x / lr;
    wi = y / lr;
  } else if (lr.isZero()) {
    wr = y / li;
    wi = x.isZero() ? zero : -x / li;
  } else if (lr.magnitude() > li.magnitude()) {
    const n t = li / lr, d = lr + li * t;
    wi = (y - t * x) / d;
    wr = (t * y + x) / d;
  } else if (lr.magnitude() == li.magnitude()) {
    const n p = signedAs(0.5f, lr), q = signedAs(0.5f, li);
    wi = (p * y - q * x) / lr.magnitude();
    wr = (p * x + q * y) / lr.magnitude();
  } else {
    const n t = lr / li, d = li + lr * t;
    wi = (t * y - x) / d;
    wr = (t * x + y) / d;
  }
  return multiply<float>(u, v, wr, wi);
}

template <class Wide>
pair<Wide> square(num<Wide> a, num<Wide> b) {
  if (b.isZero()) return {a * a, Wide(0)};
  num<Wide> re = a * a - b * b, im = a * b + a * b;
  if (!finite(re) || !finite(im)) recover(a, b, a, b, re, im);
  return {re, im};
}

template <class Wide>
pair<Wide> pow(num<Wide> a, num<Wide> b, num<Wide> c, num<Wide> d) {
  using n = num<Wide>;
  const n zero = Wide(0), one = Wide(1), half = Wide(0.5);
  const auto isWhole = [](n x) { return std::fmod(x.value(), Wide(1)) == 0; };
  if (c == n(Wide(2)) && d.isZero()) return square(a, b);
  if (b.isZero() && d.isZero()) {
    const bool complex = a < zero && finite(c) && !isWhole(c) && !(c < zero && a.isInfinite());
    if (!complex) return {real<Wide>::pow(a, c), zero};
  }
  if (!d.isZero() || !finite(c)) {
    const auto [lr, li] = log<Wide>(a, b + zero);
    const bool plusInfinity = c.isInfinite() && !c.hasSign();
    if (!plusInfinity && lr.isInfinite() && lr.hasSign() && d.isInfinite())
      return {real<Wide>::nan(), real<Wide>::nan()};
    if (d.isZero() && li.isZero()) return exp<Wide>(lr * c, zero);
    n re = lr * c - li * d, im = lr * d + li * c;
    if (!finite(re) || !finite(im)) recover(lr, li, c, d, re, im);
    return exp<Wide>(re, im);
  }
  if (c.isZero()) {
    if (a.isNaN() || b.isNaN()) return {real<Wide>::nan(), real<Wide>::nan()};
    return {one, zero};
  }
  n whole = truncation(c.magnitude());
  const n f = c.magnitude() - whole;
  pair<Wide> r = {one, zero}, p = {a, b};
  while (whole > zero) {
    if (std::fmod(whole.value(), Wide(2)) == 1) r = multiply<Wide>(r.re, r.im, p.re, p.im);
    p = square(p.re, p.im);
    whole = truncation(whole * half);
  }
  if (!f.isZero()) {
    pair<Wide> q = {zero, zero};
    if (f == half) {
      q = sqrt<Wide>(a, b);
    } else {
      const auto l = log<Wide>(a, b + zero);
      const auto product = multiply<Wide>(l.re, l.im, f, zero);
      q = exp<Wide>(product.re, product.im);
    }
    r = multiply<Wide>(r.re, r.im, q.re, q.im);
  }
  if (!(c < zero)) return r;
  const auto [re, im] = r;
  if (im.isZero()) return {one / re, zero};
  if (re.isZero()) return {zero, -one / im};
  if (re.magnitude() > im.magnitude()) {
    const n t = im / re, e = re + im * t;
    return {one / e, -t / e};
  }
  if (re.magnitude() == im.magnitude()) {
    return {signedAs(Wide(0.5), re) / re.magnitude(), -signedAs(Wide(0.5), im) / re.magnitude()};
  }
  const n t = re / im, e = im + re * t;
  return {t / e, -one / e};
}

}  // namespace zthalf::testing::complex_steps
