// The single-precision kernels once more, as their steps one after the other: the reference of the kernel tests. No
// selection, no shared helper, and every operation is stored and read back, so that nothing can be fused or reordered.
#pragma once

#include <bit>
#include <cmath>
#include <cstdint>

namespace zthalf::testing::steps {

class step {
 public:
  step(float v) : value_(v) {}
  float value() const { return value_; }

  friend step operator+(step a, step b) { return stored(a.value_ + b.value_); }
  friend step operator-(step a, step b) { return stored(a.value_ - b.value_); }
  friend step operator*(step a, step b) { return stored(a.value_ * b.value_); }
  friend step operator/(step a, step b) { return stored(a.value_ / b.value_); }
  friend auto operator<=>(step, step) = default;
  step operator-() const { return std::bit_cast<float>(std::bit_cast<std::uint32_t>(value_) ^ 0x80000000u); }

 private:
  static step stored(float v) {
    volatile float memory = v;
    return memory;
  }
  float value_;
};

inline std::uint32_t bits(step v) { return std::bit_cast<std::uint32_t>(v.value()); }
inline step of(std::uint32_t word) { return std::bit_cast<float>(word); }
inline step mask(step v) { return of(bits(v) & 0xFFFFF000u); }
inline step raise(step v, int k) { return of(bits(v) + (static_cast<std::uint32_t>(k) << 23)); }

inline const step nan = of(0xFFC00000u);
inline const step inf = of(0x7F800000u);
inline const step ln2Hi = of(0x3F317200u);
inline const step ln2Lo = of(0x35BFBE8Eu);
inline const step lg1 = of(0x3F2AAAABu);
inline const step lg2 = of(0x3ECCCCCAu);
inline const step lg3 = of(0x3E92392Du);
inline const step lg4 = of(0x3E6D49B7u);

inline step log(step x) {
  auto ix = static_cast<std::int32_t>(bits(x));
  std::int32_t k = -127;
  if (ix < 0x00800000) {
    if ((ix & 0x7FFFFFFF) == 0) return -inf;
    if (ix < 0) return nan;
    x = x * 33554432.0f;
    ix = static_cast<std::int32_t>(bits(x));
    k = -152;
  }
  if (ix > 0x7F7FFFFF) return x;
  const std::int32_t i = ix % 0x800000;
  const std::int32_t t = i + 0x4AFB0D;
  k += ix / 0x800000 + t / 0x800000;
  const step f = of(t >= 0x800000 ? 0x3F000000u + i : 0x3F800000u + i) - 1.0f;
  const step n = static_cast<float>(k);
  if (i > 0x7FFFF0 || i == 0) {
    if (f == 0.0f) return k == 0 ? step(0.0f) : n * ln2Hi + n * ln2Lo;
    const step r = (f * f) * (f * of(0xBEAAAAABu) + 0.5f);
    if (k == 0) return f - r;
    return n * ln2Hi - ((r + n * of(0xB5BFBE8Eu)) - f);
  }
  const step s = f / (f + 2.0f);
  const step z = s * s;
  const step w = z * z;
  const step r = z * (w * lg3 + lg1) + w * (w * lg4 + lg2);
  if (k == 0) return f - s * (f - r);
  return n * ln2Hi - ((s * (f - r) + n * of(0xB5BFBE8Eu)) - f);
}

inline step log1p(step x) {
  const auto hx = static_cast<std::int32_t>(bits(x));
  step u = x, c = 0.0f, f = 0.0f, h = 0.0f;
  std::int32_t k = 0;
  std::uint32_t hu = 1;
  bool direct = false, rounded = true;
  if (hx > 0x3ED413CF) {
    if (hx >> 23 > 0xFE) return x;
    rounded = hx >> 23 <= 0x96;
  } else {
    const std::uint32_t ax = bits(x) & 0x7FFFFFFFu;
    if (ax >> 23 >= 0x7F) return x == -1.0f ? -inf : nan;
    if (ax >> 24 <= 0x30) return ax >> 23 < 0x49 ? x : x - (x * x) * 0.5f;
    if (bits(x) - 1 <= 0xBE95F617u) {
      f = x;
      h = (x * 0.5f) * x;
      direct = true;
    }
  }
  if (!direct && rounded) {
    u = x + 1.0f;
    c = bits(u) > 0x3FFFFFFFu ? (x - u) + 1.0f : x - (u + -1.0f);
    c = c / u;
  }
  if (!direct) {
    const auto e = static_cast<std::int32_t>(bits(u) >> 23 & 0xFF);
    const std::uint32_t m = bits(u) & 0x7FFFFFu;
    if (m > 0x3504F6u) {
      k = e - 0x7E;
      f = of(m | 0x3F000000u) - 1.0f;
      hu = (0x800000u - m) >> 2;
    } else {
      k = e - 0x7F;
      f = of(m | 0x3F800000u) - 1.0f;
      hu = m;
    }
    h = f * (f * 0.5f);
  }
  const step n = static_cast<float>(k);
  if (hu == 0) {
    if (f == 0.0f) return k == 0 ? step(0.0f) : n * ln2Hi + (c + n * ln2Lo);
    const step r = h * (f * of(0xBF2AAAABu) + 1.0f);
    if (k == 0) return f - r;
    return n * ln2Hi - ((r - (c + n * ln2Lo)) - f);
  }
  const step s = f / (f + 2.0f);
  const step z = s * s;
  const step r = z * (z * (z * (z * lg4 + lg3) + lg2) + lg1);
  if (k == 0) return f - (h - s * (h + r));
  return n * ln2Hi - ((h - ((c + n * ln2Lo) + s * (h + r))) - f);
}

inline step expm1(step x) {
  const std::uint32_t hx = bits(x) & 0x7FFFFFFFu;
  const bool negative = bits(x) >> 31 != 0;
  if (hx > 0x7F800000u) return x;
  if (hx == 0x7F800000u) return negative ? step(-1.0f) : x;
  if (hx >= 0x42B17218u) {
    if (x > of(0x42B17217u)) return inf;
    if (negative) return -1.0f;
  }
  if (hx >= 0x4195B844u && negative) return -1.0f;
  std::int32_t k = 0;
  step r = x, c = 0.0f;
  if (hx < 0x3EB17218u) {
    if (hx == 0) return x;
  } else {
    step hi = negative ? -of(0x3F317000u) : of(0x3F317000u);
    step lo = negative ? -of(0x3805FDF4u) : of(0x3805FDF4u);
    k = negative ? -1 : 1;
    if (hx > 0x3F851591u) {
      k = static_cast<std::int32_t>((x * of(0x3FB8AA3Bu) + (negative ? -0.5f : 0.5f)).value());
      hi = step(static_cast<float>(k)) * of(0x3F317000u);
      lo = step(static_cast<float>(k)) * of(0x3805FDF4u);
    }
    const step t = x - hi;
    r = t - lo;
    c = (t - r) - lo;
  }
  const step a = r * 0.5f;
  const step b = r * a;
  const step r1 = b * (b * (b * of(0xB8A5ACB7u) + of(0x3AD00CB9u)) + of(0xBD088889u)) + 1.0f;
  const step t = step(3.0f) - a * r1;
  step e = b * ((r1 - t) / (step(6.0f) - r * t));
  if (k == 0) return r - (r * e - b);
  e = (r * (e - c) - c) - b;
  if (k == 1) {
    if (r < -0.25f) return (e - (r + 0.5f)) * -2.0f;
    const step d = r - e;
    return (d + d) + 1.0f;
  }
  if (k == -1) return (r - e) * 0.5f + -0.5f;
  if (k <= -2 || k >= 57) return raise((r - e) + 1.0f, k) + -1.0f;
  if (k <= 22) return raise(of(0x3F800000u - (0x1000000u >> k)) - (e - r), k);
  return raise((r - (e + of(0x3F800000u - (static_cast<std::uint32_t>(k) << 23)))) + 1.0f, k);
}

inline step scalbn(step v, std::int32_t n) {
  std::int64_t e = bits(v) >> 23 & 0xFF;
  if (e == 255) return v;
  if (e == 0) {
    if (v == 0.0f) return v;
    v = v * 33554432.0f;
    if (n < -50000) return v * 0.0f;
    e = static_cast<std::int64_t>(bits(v) >> 23 & 0xFF) - 25;
  }
  const std::uint32_t rest = bits(v) & 0x807FFFFFu;
  if (e + n > 254) return of((bits(v) & 0x80000000u) | 0x7F800000u);
  if (e + n <= -25) return v * 0.0f;
  if (e + n >= 1) return of(rest | static_cast<std::uint32_t>(e + n) << 23);
  return of(rest | static_cast<std::uint32_t>(e + n + 25) << 23) * of(0x33000000u);
}

inline bool isOddInteger(step v) { return std::fmod(v.value(), 2.0f) == 1.0f; }

inline step pow(step x, step y) {
  const bool xIsNaN = (bits(x) & 0x7FFFFFFFu) > 0x7F800000u;
  const bool yIsNaN = (bits(y) & 0x7FFFFFFFu) > 0x7F800000u;
  if (y == 2.0f) return x * x;
  if (y == 1.0f) return x;
  if (y == 0.0f) return xIsNaN ? nan : step(1.0f);
  if (y == -1.0f) return step(1.0f) / x;
  if (y == 0.5f) {
    const step operand = x + 0.0f;
    if (operand < 0.0f) return of(0x7FC00000u);  // the default NaN of the defining unit is positive
    return std::sqrt(operand.value());
  }
  if (xIsNaN || yIsNaN) return nan;
  const step ax = of(bits(x) & 0x7FFFFFFFu);
  const step ay = of(bits(y) & 0x7FFFFFFFu);
  if (bits(ay) == 0x7F800000u) {
    if (ax == 1.0f) return 1.0f;
    if (ax > 1.0f) return y > 0.0f ? inf : step(0.0f);
    return y < 0.0f ? inf : step(0.0f);
  }
  const bool isInt = ay >= 16777216.0f || ay == static_cast<float>(static_cast<std::int32_t>(ay.value()));
  const bool signSet = bits(x) >> 31 != 0;
  if (bits(ax) == 0x7F800000u || bits(ax) == 0 || ax == 1.0f) {
    step r = y < 0.0f ? step(1.0f) / ax : ax;
    if (signSet) {
      if (isInt) {
        if (isOddInteger(ay)) r = -r;
      } else if (ax == 1.0f) {
        return nan;
      } else if (bits(ax) == 0x7F800000u && y > 0.0f) {
        return nan;
      }
    }
    return r;
  }
  if (x < 0.0f && !isInt) return nan;
  const bool negate = isInt && x < 0.0f && isOddInteger(ay);

  step t1 = 0.0f, t2 = 0.0f;
  if (ay > 134217728.0f) {
    if (bits(ax) < 0x3F7FFFF0u) return y < 0.0f ? inf : step(0.0f);
    if (bits(ax) > 0x3F800008u) return y > 0.0f ? inf : step(0.0f);
    const step t = ax + -1.0f;
    const step w = (t * t) * (step(0.5f) - t * (t * -0.25f + of(0x3EAAAAABu)));
    const step u = t * of(0x3FB8A000u);
    const step v = t * of(0x39A3B296u) + w * of(0xBFB8AA3Bu);
    t1 = mask(u + v);
    t2 = v - (t1 - u);
  } else {
    step scaled = ax;
    std::int32_t bias = 127;
    if (bits(ax) < 0x00800000u) {
      scaled = ax * 16777216.0f;
      bias = 151;
    }
    std::int32_t n = static_cast<std::int32_t>(bits(scaled) >> 23) - bias;
    const std::uint32_t im = bits(scaled) & 0x7FFFFFu;
    std::uint32_t j = 0, ix = im | 0x3F800000u;
    if (im >= 0x1CC472u) {
      if (im < 0x5DB3D7u) {
        j = 1;
      } else {
        n += 1;
        ix = im | 0x3F000000u;
      }
    }
    const step bp[] = {1.0f, 1.5f}, dpHi[] = {0.0f, of(0x3F15C000u)}, dpLo[] = {0.0f, of(0x35D1CFDCu)};
    const step a = of(ix);
    const step u = a - bp[j];
    const step vv = step(1.0f) / (bp[j] + a);
    const step s = u * vv;
    const step sh = mask(s);
    const step th = of(((j << 21) + (ix >> 1) + 0x20040000u) & 0x7FFFF000u);
    const step tl = a - (th - bp[j]);
    const step sl = vv * ((u - th * sh) - tl * sh);
    const step s2 = s * s;
    const step r = (s2 * s2) * (s2 * (s2 * of(0x3EACDAD6u) + of(0x3EDB6B88u)) + of(0x3F19999Au)) + (s + sh) * sl;
    const step sh2 = sh * sh;
    const step big = mask((sh2 + 3.0f) + r);
    const step small = r - ((big + -3.0f) - sh2);
    const step uu = sh * big;
    const step vv2 = sl * big + s * small;
    const step ph = mask(uu + vv2);
    const step pl = vv2 - (ph - uu);
    const step zh = ph * of(0x3F763800u);
    const step zl = dpLo[j] + (ph * of(0x369DC3A0u) + pl * of(0x3F76384Fu));
    const step tn = static_cast<float>(n);
    t1 = mask((dpHi[j] + (zh + zl)) + tn);
    t2 = zl - (((t1 - tn) - dpHi[j]) - zh);
  }
  const step y1 = mask(y);
  const step pl = t2 * y + (y - y1) * t1;
  step ph = t1 * y1;
  const step z = ph + pl;
  const auto i = static_cast<std::int32_t>(bits(z));
  const step overflow = negate ? -inf : inf;
  const step underflow = negate ? step(-0.0f) : step(0.0f);
  if (i > 0x43000000) return overflow;
  if (i == 0x43000000 && pl + of(0x3338AA3Cu) > z - ph) return overflow;
  if ((bits(z) & 0x7FFFFFFFu) > 0x43160000u) return underflow;
  if (bits(z) == 0xC3160000u && pl <= z - ph) return underflow;
  const std::uint32_t magnitude = bits(z) & 0x7FFFFFFFu;
  std::int32_t m = 0;
  if (magnitude >= 0x3F000001u) {
    const std::uint32_t nn = bits(z) + (0x800000u >> ((magnitude >> 23) - 0x7E));
    const std::uint32_t field = nn >> 23 & 0xFF;
    const step t = of(nn & ~(0x007FFFFFu >> (field - 0x7F)));
    m = static_cast<std::int32_t>(((nn & 0x7FFFFFu) | 0x800000u) >> (0x96 - field));
    if (i < 0) m = -m;
    ph = ph - t;
  }
  const step t = mask(pl + ph);
  const step u = t * ln2Hi;
  const step v = (pl - (t - ph)) * of(0x3F317218u) + t * of(0x35BFBE8Cu);
  const step zz = u + v;
  const step w = v - (zz - u);
  const step q = zz * zz;
  const step c = zz - q * (q * (q * of(0x388A4F5Fu) + of(0xBB360B70u)) + of(0x3E2AAAABu));
  const step r = (zz * c) / (c + -2.0f) - (w + zz * w);
  const step res = (zz - r) + 1.0f;
  const std::int64_t word = static_cast<std::int64_t>(bits(res)) + m * std::int64_t{0x800000};
  const step value = word >= 0x800000 ? raise(res, m) : step(scalbn(res, m));
  return negate ? -value : value;
}

}  // namespace zthalf::testing::steps
