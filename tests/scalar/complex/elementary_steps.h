// The elementary functions of complex halves as the steps they are defined by, on numbers of the defining unit: the
// reference of their bits. Real functions of one half are the library's own, which have tests of theirs.
#pragma once

#include "tests/scalar/kernels/complex_inverse_steps.h"
#include "zthalf/half_scalar.h"

namespace zthalf::testing::complex_steps {

using halfPair = std::complex<half_t>;
using single = num<float>;

inline single widened(half_t x) { return half_scalar::impl::convertHalfToSingle(x.bits); }
inline half_t narrowed(single x) { return {half_scalar::impl::convertSingleToHalf(x.value())}; }
inline halfPair narrowed(pair<float> z) { return {narrowed(z.re), narrowed(z.im)}; }

inline bool isZero(half_t x) { return (x.bits & 0x7FFF) == 0; }
inline bool isNaN(half_t x) { return (x.bits & 0x7FFF) > 0x7C00; }
inline bool isNegativeNumber(half_t x) { return x.bits > 0x8000 && x.bits <= 0xFC00; }
inline half_t withSign(std::uint16_t magnitude, half_t sign) {
  return {static_cast<std::uint16_t>(magnitude | (sign.bits & 0x8000))};
}
inline half_t magnitude(half_t x) { return {static_cast<std::uint16_t>(x.bits & 0x7FFF)}; }

inline halfPair sqrtOfHalves(halfPair z) {
  half_t re = z.real(), im = z.imag();
  if (im.bits == 0x8000) im = {0};
  if (isZero(im) && !isNegativeNumber(re)) return {half_scalar::sqrt(re), {0}};
  if (isNaN(re) || isNaN(im)) return {{0x7E00}, {0x7E00}};
  if ((im.bits & 0x7FFF) == 0x7C00) return {{0x7C00}, im};
  using n = num<double>;
  const n x = half_scalar::impl::convertHalfToDouble(re.bits), y = half_scalar::impl::convertHalfToDouble(im.bits);
  const n X = x * x, Y = y * y, s = X + Y;
  const n e = ((s - X) - Y) + ((s - Y) - X);
  n r = std::sqrt(s.value());
  if (!e.isZero() && finite(s)) {
    const n dd = s - r * r;
    const std::uint64_t low = r.bits & 0x3FFFFFFF;
    if (low == 0x10000000 && e < dd) {
      r = n::ofBits(r.bits | 1);
    } else if (low == 0x30000000 && e > dd) {
      r = n::ofBits(r.bits - 1);
    }
  }
  const single fx = widened(re), fy = widened(im), half = 0.5f;
  const single g = std::sqrt(((fx.magnitude() + single(static_cast<float>(r.value()))) * half).value());
  const half_t G = narrowed(g);
  if (fx > single(0.0f)) return {G, narrowed((fy / g) * half)};
  if (fx.isZero()) return {G, withSign(G.bits, im)};
  return {narrowed((fy.magnitude() / g) * half), withSign(G.bits, im)};
}

inline halfPair exp(halfPair z) { return narrowed(exp<float>(widened(z.real()), widened(z.imag()))); }
inline halfPair expm1(halfPair z) { return narrowed(expm1(widened(z.real()), widened(z.imag()))); }
inline halfPair powerOfReal(float base, halfPair z) {
  return narrowed(pow<float>(base, 0.0f, widened(z.real()), widened(z.imag())));
}
inline halfPair pow2(halfPair z) { return powerOfReal(2.0f, z); }
inline halfPair pow10(halfPair z) { return powerOfReal(10.0f, z); }
inline halfPair power(halfPair z, halfPair w) {
  return narrowed(pow<float>(widened(z.real()), widened(z.imag()), widened(w.real()), widened(w.imag())));
}

// The logarithm of a real number, complex where it has to be.
template <class Log>
halfPair logOfReal(half_t v, Log log, std::uint16_t pi) {
  if (isNegativeNumber(v)) return {log(half_t{static_cast<std::uint16_t>(v.bits ^ 0x8000)}), {pi}};
  return {log(v), {0}};
}
template <class Log>
halfPair logOfHalves(halfPair z, Log log, pair<float> (*kernel)(single, single), std::uint16_t pi,
                     std::uint16_t halfPi) {
  if (isZero(z.imag())) return logOfReal(z.real(), log, pi);
  if (isZero(z.real())) return {log(magnitude(z.imag())), withSign(halfPi, z.imag())};
  return narrowed(kernel(widened(z.real()), widened(z.imag())));
}
inline half_t realLog(half_t x) { return half_scalar::log(x); }
inline half_t realLog2(half_t x) { return half_scalar::log2(x); }
inline half_t realLog10(half_t x) { return half_scalar::log10(x); }
inline halfPair log(halfPair z) { return logOfHalves(z, realLog, log<float>, 0x4248, 0x3E48); }
inline halfPair log2(halfPair z) { return logOfHalves(z, realLog2, log2, 0x4488, 0x4088); }
inline halfPair log10(halfPair z) { return logOfHalves(z, realLog10, log10, 0x3D75, 0x3975); }

inline halfPair log1p(halfPair z) {
  const single one = 1.0f, half = 0.5f;
  if (isZero(z.imag())) {
    const half_t v = z.real();
    if (v.bits > 0xBC00 && v.bits <= 0xFC00) return {narrowed(real<float>::log(-one - widened(v))), {0x4248}};
    return {half_scalar::log1p(v), {0}};
  }
  if (z.real().bits == 0xBC00) {
    return {narrowed(real<float>::log(widened(magnitude(z.imag())))), withSign(0x3E48, z.imag())};
  }
  const single x = widened(z.real()), y = widened(z.imag()) + single(0.0f), u = x + one;
  if (u.magnitude() < half) return narrowed(log<float>(u, y));
  if ((x > -one || x == -one) && y.isZero()) return narrowed(pair<float>{real<float>::log1p(x), 0.0f});
  pair<float> result = log<float>(u, y);
  if (x.magnitude() < half) result.re = real<float>::log1p(((x + x) + x * x) + y * y) * half;
  return narrowed(result);
}

inline halfPair real1(half_t x) { return {x, {0}}; }
inline single sinhOf(single x) { return unary(steps::sinh, x); }
inline single coshOf(single x) { return unary(steps::cosh, x); }

inline halfPair sin(halfPair z) {
  if (isZero(z.imag())) return real1(half_scalar::sin(z.real()));
  const single x = widened(z.real()), y = widened(z.imag());
  if (x.isZero()) return {{0}, narrowed(sinhOf(y))};
  return narrowed(pair<float>{coshOf(y) * real<float>::sin(x), sinhOf(y) * real<float>::cos(x)});
}
inline halfPair cos(halfPair z) {
  if (isZero(z.imag())) return real1(half_scalar::cos(z.real()));
  const single x = widened(z.real()), y = widened(z.imag());
  if (x.isZero()) return real1(narrowed(coshOf(y)));
  return narrowed(pair<float>{real<float>::cos(x) * coshOf(y), real<float>::sin(x) * -sinhOf(y)});
}
inline halfPair sinh(halfPair z) {
  const single x = widened(z.real()), y = widened(z.imag());
  if (y.isZero()) return real1(narrowed(sinhOf(x)));
  return narrowed(pair<float>{sinhOf(x) * real<float>::cos(y), coshOf(x) * real<float>::sin(y)});
}
inline halfPair cosh(halfPair z) {
  const single x = widened(z.real()), y = widened(z.imag());
  if (y.isZero()) return real1(narrowed(coshOf(x)));
  return narrowed(pair<float>{real<float>::cos(y) * coshOf(x), sinhOf(x) * real<float>::sin(y)});
}
inline halfPair sinpi(halfPair z) {
  if (isZero(z.imag())) return real1(half_scalar::sinpi(z.real()));
  const single x = widened(z.real()), t = widened(z.imag()) * real<float>::pi();
  const single s = unary(steps::sinpi, x), c = unary(steps::cospi, x);
  return narrowed(pair<float>{s.isZero() ? s : coshOf(t) * s, c.isZero() ? c : sinhOf(t) * c});
}
inline halfPair cospi(halfPair z) {
  if (isZero(z.imag())) return real1(half_scalar::cospi(z.real()));
  const single x = widened(z.real()), t = widened(z.imag()) * real<float>::pi();
  const single s = unary(steps::sinpi, x), c = unary(steps::cospi, x);
  return narrowed(pair<float>{c.isZero() ? c : coshOf(t) * c, s.isZero() ? s : s * -sinhOf(t)});
}

inline halfPair tan(halfPair z) { return narrowed(tan(widened(z.real()), widened(z.imag()))); }
inline halfPair tanh(halfPair z) { return narrowed(tanh(widened(z.real()), widened(z.imag()))); }
inline halfPair asin(halfPair z) { return narrowed(asin(widened(z.real()), widened(z.imag()))); }
inline halfPair acos(halfPair z) { return narrowed(acos(widened(z.real()), widened(z.imag()))); }
inline halfPair acosh(halfPair z) { return narrowed(acosh(widened(z.real()), widened(z.imag()))); }
inline halfPair atanh(halfPair z) { return narrowed(atanh(widened(z.real()), widened(z.imag()))); }
inline halfPair atan(halfPair z) {
  if (isZero(z.imag())) return real1(half_scalar::atan(z.real()));
  const auto [u, v] = atanh(-widened(z.imag()), widened(z.real()));
  return narrowed(pair<float>{v, -u});
}
inline halfPair asinh(halfPair z) {
  if (isZero(z.imag())) return real1(half_scalar::asinh(z.real()));
  const auto [u, v] = asin(-widened(z.imag()), widened(z.real()));
  return narrowed(pair<float>{v, -u});
}

}  // namespace zthalf::testing::complex_steps
