// powDouble as its steps one after the other.
#pragma once

#include "tests/scalar/kernels/steps_double.h"

namespace zthalf::testing::steps::doubles {

inline bool isOddInteger(step v) { return std::fmod(v.value(), 2.0) == 1.0; }

inline step pow(step x, step y) {
  if (y == 2.0) return x * x;
  if (y == 1.0) return x;
  if (y == 0.0) return isNaN(x) ? nan : step(1.0);
  if (y == -1.0) return step(1.0) / x;
  if (y == 0.5) {
    const step operand = x + 0.0;
    if (operand < 0.0) return of(0x7FF8000000000000);  // the default NaN of the defining unit is positive
    return root(operand);
  }
  if (isNaN(x) || isNaN(y)) return nan;
  const step ax = magnitude(x);
  const step ay = magnitude(y);
  if (isInfinite(ay)) {
    if (ax == 1.0) return 1.0;
    if (ax > 1.0) return y > 0.0 ? inf : step(0.0);
    return y < 0.0 ? inf : step(0.0);
  }
  const bool isInt = std::floor(ay.value()) == ay.value();
  if (isInfinite(ax) || isZero(x) || ax == 1.0) {
    step r = y < 0.0 ? step(1.0) / ax : ax;
    if (isNegative(x)) {
      if (isInt) {
        if (isOddInteger(ay)) r = -r;
      } else if (ax == 1.0 || (isInfinite(ax) && y > 0.0)) {
        return nan;
      }
    }
    return r;
  }
  if (x < 0.0 && !isInt) return nan;
  const step s = isInt && x < 0.0 && isOddInteger(ay) ? -1.0 : 1.0;

  step t1 = 0.0, t2 = 0.0;
  if (ay > 2147483648.0) {
    if (ay > 18446744073709551616.0) {
      if (ax < 1.0) return s * (y < 0.0 ? inf : step(0.0));
      return s * (y > 0.0 ? inf : step(0.0));
    }
    if (bits(ax) < 0x3FEFFFFF00000000) return y < 0.0 ? inf : step(0.0);
    if (bits(ax) > 0x3FF00000FFFFFFFF) return y > 0.0 ? inf : step(0.0);
    const step t = ax + -1.0;
    const step w = (t * t) * (step(0.5) - t * (t * -0.25 + of(0x3FD5555555555555)));
    const step u = t * of(0x3FF7154760000000);
    const step v = t * of(0x3E54AE0BF85DDF44) + w * of(0xBFF71547652B82FE);
    t1 = mask(u + v);
    t2 = v - (t1 - u);
  } else {
    step scaled = ax;
    std::int32_t bias = 1023;
    if (high(ax) < 0x00100000) {
      scaled = ax * 9007199254740992.0;
      bias = 1076;
    }
    std::int32_t n = static_cast<std::int32_t>(high(scaled) >> 20) - bias;
    const std::uint32_t im = high(scaled) & 0xFFFFF;
    std::uint32_t j = 0, ix = im | 0x3FF00000;
    if (im >= 0x3988E) {
      if (im < 0xBB67A) {
        j = 1;
      } else {
        n += 1;
        ix = im | 0x3FE00000;
      }
    }
    const step bp[] = {1.0, 1.5}, dpHi[] = {0.0, of(0x3FE2B80340000000)}, dpLo[] = {0.0, of(0x3E4CFDEB43CFD006)};
    const step a = words(ix, low(scaled));
    const step u = a - bp[j];
    const step vv = step(1.0) / (bp[j] + a);
    const step ss = u * vv;
    const step sh = mask(ss);
    const step th = words((j == 1 ? 0x40000 : 0) + (ix >> 1) + 0x20080000, 0);
    const step tl = a - (th - bp[j]);
    const step sl = vv * ((u - th * sh) - tl * sh);
    const step s2 = ss * ss;
    const step r =
        (ss + sh) * sl + (s2 * s2) * horner(s2, {0x3FCA7E284A454EEF, 0x3FCD864A93C9DB65, 0x3FD17460A91D4101,
                                                 0x3FD55555518F264D, 0x3FDB6DB6DB6FABFF, 0x3FE3333333333303});
    const step sh2 = sh * sh;
    const step big = mask((sh2 + 3.0) + r);
    const step small = r - ((big + -3.0) - sh2);
    const step uu = sh * big;
    const step vv2 = sl * big + ss * small;
    const step ph = mask(uu + vv2);
    const step pl = vv2 - (ph - uu);
    const step zh = ph * of(0x3FEEC709E0000000);
    const step zl = dpLo[j] + (ph * of(0xBE3E2FE0145B01F5) + pl * of(0x3FEEC709DC3A03FD));
    const step tn = static_cast<double>(n);
    t1 = mask((dpHi[j] + (zh + zl)) + tn);
    t2 = zl - (((t1 - tn) - dpHi[j]) - zh);
  }
  const step y1 = mask(y);
  const step pl = t2 * y + (y - y1) * t1;
  step ph = t1 * y1;
  const step z = ph + pl;
  const auto i = static_cast<std::int32_t>(high(z));
  if (i >= 0x40900000) {
    const bool stays = i == 0x40900000 && low(z) == 0 && pl + of(0x3C971547652B82FE) <= z - ph;
    if (!stays) return s * inf;
  } else if ((i & 0x7FFFFC00) >= 0x4090CC00) {
    const bool stays = high(z) == 0xC090CC00 && low(z) == 0 && pl > z - ph;
    if (!stays) return s * 0.0;
  }
  const std::uint32_t a = high(z) & 0x7FFFFFFF;
  std::int32_t m = 0;
  if (a >= 0x3FE00001) {
    const std::uint32_t nn = high(z) + (0x100000u >> ((a >> 20) - 0x3FE));
    const std::uint32_t field = nn >> 20 & 0x7FF;
    const step t = words(nn & ~(0xFFFFFu >> (field - 0x3FF)), 0);
    m = static_cast<std::int32_t>(((nn & 0xFFFFF) | 0x100000) >> (1043 - field));
    if (i < 0) m = -m;
    ph = ph - t;
  }
  const step t = mask(pl + ph);
  const step u = t * of(0x3FE62E4300000000);
  const step v = (pl - (t - ph)) * of(0x3FE62E42FEFA39EF) + t * of(0xBE205C610CA86C39);
  const step zz = u + v;
  const step w = v - (zz - u);
  const step q = zz * zz;
  const step c = zz - q * horner(q, {0x3E66376972BEA4D0, 0xBEBBBD41C5D26BF1, 0x3F11566AAF25DE2C, 0xBF66C16C16BEBD93,
                                     0x3FC555555555553E});
  const step r = (zz * c) / (c + -2.0) - (w + zz * w);
  const step res = (zz - r) + 1.0;
  const std::int64_t top = static_cast<std::int64_t>(high(res)) + m * std::int64_t{0x100000};
  const step value =
      top < 0x100000 ? step(std::ldexp(res.value(), m)) : words(static_cast<std::uint32_t>(top), low(res));
  return value * s;
}

}  // namespace zthalf::testing::steps::doubles
