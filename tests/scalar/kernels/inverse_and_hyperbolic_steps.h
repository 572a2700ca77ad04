// The inverse trigonometric and the hyperbolic kernels as the steps they are defined by, with the tests on patterns
// written out and every operation rounded on its own: the reference of the kernels' bits.
#pragma once

#include <cmath>

#include "tests/scalar/kernels/trigonometric_steps.h"

namespace zthalf::testing::steps {

inline step squareRoot(step x) { return std::sqrt(x.value()); }

inline step arcP(step t) { return t * (t * (t * of(0x3BB30EBC) + of(0xBDF4B1CB)) + of(0x3E2AAAAB)); }
inline step arcQ(step t) { return t * (t * of(0x3E947AD3) + of(0xBF955C3E)) + 1.0f; }

inline step asin(step v) {
  const std::uint32_t i = magnitudeBits(v);
  if (field(v) >= 127) {
    return magnitude(v) == 1.0f ? (v * piOver2 + v * -piOver2Low) : nan;
  }
  if (i >> 24 > 62) {
    const step w = (step(1.0f) - magnitude(v)) * 0.5f;
    const step s = squareRoot(w);
    const step df = mask(s);
    const step c = (w - df * df) / (s + df);
    const step r = arcP(w) / arcQ(w);
    step t = 0.0f;
    if (i < 0x3F79999A) {
      t = (piOver4 - (df + df)) - ((s + s) * r - (-piOver2Low - (c + c))) + piOver4;
    } else {
      const step g = s + s * r;
      t = piOver2 - ((g + g) + piOver2Low);
    }
    return signedBits(v) > 0 ? t : -t;
  }
  if (i >= 0x32000000) {
    const step t = v * v;
    return v + v * (arcP(t) / arcQ(t));
  }
  return v;
}

inline step acos(step v) {
  if (magnitude(v) <= 0.5f) {
    if (magnitude(v) < of(0x23000000)) return piOver2;
    const step t = v * v;
    return ((-piOver2Low - v * (arcP(t) / arcQ(t))) - v) + piOver2;
  }
  if (magnitude(v) < 1.0f && v < 0.0f) {
    const step z = (v + 1.0f) * 0.5f;
    const step s = squareRoot(z);
    const step g = s + (s * (arcP(z) / arcQ(z)) + piOver2Low);
    return pi - (g + g);
  }
  if (magnitude(v) < 1.0f && v > 0.0f) {
    const step z = (step(1.0f) - v) * 0.5f;
    const step s = squareRoot(z);
    const step df = mask(s);
    const step c = (z - df * df) / (s + df);
    const step g = (s * (arcP(z) / arcQ(z)) + c) + df;
    return g + g;
  }
  if (v == 1.0f) return 0.0f;
  if (v == -1.0f) return pi;
  return nan;
}

inline step atan(step v) {
  static constexpr std::array<std::uint32_t, 4> high = {0x3EED6000, 0x3F490000, 0x3F7B9000, 0x3FC90000};
  static constexpr std::array<std::uint32_t, 4> low = {0x37CE0AC3, 0x397DAA22, 0x3905E941, 0x39FDAA22};
  const std::uint32_t i = magnitudeBits(v);
  if (field(v) >= 193) {
    if (isNaN(v)) return nan;
    return isNegative(v) ? -piOver2 : piOver2;
  }
  int id = -1;
  step a = v;
  if (i >> 21 <= 502) {
    if (i >> 24 < 49) return v;
  } else {
    const step t = magnitude(v);
    if (i >> 19 >= 2035) {
      id = i < 0x401C0000 ? 2 : 3;
      a = id == 2 ? (t + -1.5f) / (t * 1.5f + 1.0f) : step(-1.0f) / t;
    } else if (i >> 20 > 1010) {
      id = 1;
      a = (t + -1.0f) / (t + 1.0f);
    } else {
      id = 0;
      a = ((t + t) + -1.0f) / (t + 2.0f);
    }
  }
  const step z = a * a;
  const step w = z * z;
  const step R =
      w * (w * of(0xBDDA7B04) + of(0xBE4CCB05)) + z * (w * (w * of(0x3D7E7ADE) + of(0x3E11FCE2)) + of(0x3EAAAAAA));
  if (id < 0) return a - a * R;
  const step result = of(high[id]) - ((a * R - of(low[id])) - a);
  return isNegative(v) ? -result : result;
}

inline step exp(step v) {
  const std::uint32_t a = magnitudeBits(v);
  if (a > 0x42B17217) {
    if (a > 0x7F800000) return nan;
    if (a == 0x7F800000) return isNegative(v) ? step(0.0f) : v;
    if (v > of(0x42B17217)) return inf;
    if (v < of(0xC2CE8ED0)) return 0.0f;
  }
  const std::uint32_t sign = bits(v) & 0x80000000u;
  std::int32_t k = 0;
  step hi = 0.0f, lo = 0.0f;
  step x = v;
  if (a > 0x3EB17217) {
    if (a < 0x3F851592) {
      hi = v - of(0x3F317000 | sign);
      lo = of(0x3805FDF4 | sign);
      k = sign != 0 ? -1 : 1;
    } else {
      k = truncated(v * of(0x3FB8AA3B) + of(0x3F000000 | sign));
      hi = v - ofInteger(k) * of(0x3F317000);
      lo = ofInteger(k) * of(0x3805FDF4);
    }
    x = hi - lo;
  } else if (a < 0x31800016) {
    return v + 1.0f;
  }
  const step q = x * x;
  const step c = x - q * (q * (q * of(0x388A4F5F) + of(0xBB360B70)) + of(0x3E2AAAAB));
  if (k == 0) return (x - (x * c) / (c + -2.0f)) + 1.0f;
  const step y = (hi - (lo - (x * c) / (step(2.0f) - c))) + 1.0f;
  const std::uint32_t raised = static_cast<std::uint32_t>(k) << 23;
  if (k < -125) return of(bits(y) + raised + 0x32000000) * of(0x0D800000);
  return of(bits(y) + raised);
}

inline step sinh(step v) {
  const std::uint32_t i = magnitudeBits(v);
  const step h = isNegative(v) ? -0.5f : 0.5f;
  if (field(v) == 255) return v;
  if (i >> 20 <= 0x41A) {
    if (i < 0x31800016) return v;
    const step t = expm1(magnitude(v));
    if (i >> 23 <= 0x7E) return h * ((t + t) - (t * t) / (t + 1.0f));
    return h * (t + t / (t + 1.0f));
  }
  if (i <= 0x42B17217) return h * exp(magnitude(v));
  if (i <= 0x42B2D4FC) {
    const step w = exp(magnitude(v) * 0.5f);
    return w * (h * w);
  }
  return v * inf;
}

inline step cosh(step v) {
  const std::uint32_t i = magnitudeBits(v);
  if (field(v) == 255) return v * v;
  if (i < 0x3EB17217) {
    const step t = expm1(magnitude(v));
    const step w = t + 1.0f;
    if (i < 0x0DA24260) return w;
    return (t * t) / (w + w) + 1.0f;
  }
  if (i >> 20 <= 0x41A) {
    const step t = exp(magnitude(v));
    return t * 0.5f + step(0.5f) / t;
  }
  if (i <= 0x42B17217) return exp(magnitude(v)) * 0.5f;
  if (i <= 0x42B2D4FC) {
    const step w = exp(magnitude(v) * 0.5f);
    return w * (w * 0.5f);
  }
  return inf;
}

inline step tanh(step v) {
  const step a = magnitude(v);
  if (a < of(0x24000000)) return v;
  step r = 0.0f;
  if (a < 0.125f) {
    const step z = v * v;
    const step inner = ((z * 17.0f) / 21.0f) + -2.0f;
    const step middle = (z * inner) / 5.0f + 1.0f;
    r = ((z * middle) / 3.0f + -1.0f) * -a;
  } else if (a < 1.0f) {
    const step t = expm1(a * -2.0f);
    r = (-t) / (t + 2.0f);
  } else if (a < 9.125f) {
    r = step(1.0f) - step(2.0f) / (expm1(a + a) + 2.0f);
  } else {
    r = isNaN(v) ? nan : step(1.0f);
  }
  return v > 0.0f ? r : -r;
}

inline step asinh(step v) {
  const step a = magnitude(v);
  const std::uint32_t i = magnitudeBits(v);
  if (field(v) == 255) return v + v;
  if (i >> 27 < 7) return v;
  step r = 0.0f;
  if (i > 0x47000000) {
    r = log(a) + of(0x3F317218);
  } else {
    const step t = v * v;
    const step s = squareRoot(t + 1.0f);
    r = i > 0x40000000 ? log((a + a) + step(1.0f) / (a + s)) : log1p(a + t / (s + 1.0f));
  }
  return signedBits(v) > 0 ? r : -r;
}

inline step acosh(step v) {
  const std::uint32_t u = bits(v);
  if (signedBits(v) < 0x3F800000) return nan;
  if (u >> 23 >= 255) return v;
  if (u >> 23 >= 155) return log(v) + of(0x3F317218);
  if (u == 0x3F800000) return 0.0f;
  if (u > 0x40000000) return log((v + v) + step(-1.0f) / (v + squareRoot(v * v + -1.0f)));
  const step t = v + -1.0f;
  return log1p(t + squareRoot((t + t) + t * t));
}

inline step atanh(step v) {
  const std::uint32_t i = magnitudeBits(v);
  if (i > 0x3F800000) return nan;
  if (i == 0x3F800000) return isNegative(v) ? -inf : inf;
  if (i <= 0x31800015) return v;
  const step a = magnitude(v);
  const step d = a + a;
  const step e = step(1.0f) - a;
  const step g = i >> 24 < 63 ? log1p(d + (d * a) / e) : log1p(d / e);
  return isNegative(v) ? -(g * 0.5f) : g * 0.5f;
}

}  // namespace zthalf::testing::steps
