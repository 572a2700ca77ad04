// The steps of sums and products once more: one operation after the other, each NaN decided before it is met. Sums and
// products of real halves are the operators, which scalar/half_arithmetic tests.
#pragma once

#include <bit>
#include <cmath>
#include <complex>
#include <cstdint>
#include <limits>
#include <type_traits>

#include "tests/scalar/complex/complex_rules.h"
#include "tests/support/reference.h"
#include "zthalf/half_t.h"

namespace zthalf::reference {

template <class Wide>
using wordOf = std::conditional_t<sizeof(Wide) == 4, std::uint32_t, std::uint64_t>;

template <class Wide>
bool isQuiet(Wide nan) {
  return (std::bit_cast<wordOf<Wide>>(nan) >> (std::numeric_limits<Wide>::digits - 2) & 1) != 0;
}

template <class Wide>
Wide madeQuiet(Wide nan) {
  return std::bit_cast<Wide>(std::bit_cast<wordOf<Wide>>(nan) | wordOf<Wide>{1}
                                                                    << (std::numeric_limits<Wide>::digits - 2));
}

// An operation on the defining unit: the first signalling NaN, or else the first NaN, made quiet; the positive default
// NaN where the operation is invalid.
template <class Wide, class Operation>
Wide onUnit(Operation operation, std::initializer_list<Wide> operands) {
  for (const Wide x : operands) {
    if (std::isnan(x) && !isQuiet(x)) return madeQuiet(x);
  }
  for (const Wide x : operands) {
    if (std::isnan(x)) return x;
  }
  const Wide result = operation();
  if (!std::isnan(result)) return result;
  return std::bit_cast<Wide>(sizeof(Wide) == 4 ? wordOf<Wide>{0x7FC00000}
                                               : static_cast<wordOf<Wide>>(0x7FF8000000000000u));
}

template <class Wide>
Wide unitSum(Wide first, Wide second) {
  volatile Wide a = first, b = second;
  return onUnit<Wide>([&] { return a + b; }, {first, second});
}
template <class Wide>
Wide unitProduct(Wide first, Wide second) {
  volatile Wide a = first, b = second;
  return onUnit<Wide>([&] { return a * b; }, {first, second});
}

// Of two halves the operators take the right one first.
inline half_t unitSum(half_t first, half_t second) { return second + first; }
inline half_t unitProduct(half_t first, half_t second) { return second * first; }

inline bool isNaN(half_t x) { return (x.bits & 0x7FFF) > 0x7C00; }
inline bool isNaN(float x) { return std::isnan(x); }
inline bool isNaN(double x) { return std::isnan(x); }

template <class Part>
Part partFrom(std::uint16_t pattern) {
  if constexpr (std::is_same_v<Part, half_t>) {
    return {pattern};
  } else if constexpr (std::is_same_v<Part, float>) {
    return widenedToSingle(pattern);
  } else {
    return widenedToDouble(pattern);
  }
}

// A real value has an imaginary part that nobody looks at.
template <class Part>
struct number {
  Part re, im;
};

// A NaN becomes quiet on its way to double, whatever the processor does.
inline double inDouble(float x) { return std::isnan(x) ? static_cast<double>(madeQuiet(x)) : static_cast<double>(x); }

// a z + b w in single: exact products in double, and the two corrections of their sum.
inline float sumOfTwoProducts(float a, float z, float b, float w) {
  const double p = unitProduct(inDouble(a), inDouble(z)), q = unitProduct(inDouble(b), inDouble(w));
  const double s = unitSum(p, q);
  volatile double s1 = s - p, s2 = s - q;
  volatile double e1 = s1 - q, e2 = s2 - p;
  volatile double e = e1 + e2;
  auto bits = std::bit_cast<std::uint64_t>(s);
  if (std::isfinite(s) && e != 0) {
    if (std::signbit(e) == std::signbit(s)) {
      if ((bits & 0x1FFFFFFF) == 0x10000000) bits -= 1;
    } else {
      bits |= 1;
    }
  }
  return static_cast<float>(std::bit_cast<double>(bits));
}

inline double sumOfTwoProducts(double a, double z, double b, double w) {
  const double second = unitProduct(b, w);
  return onUnit<double>([&] { return std::fma(a, z, second); }, {a, z, second});
}

template <class Wide>
Wide opposite(Wide x) {
  return std::bit_cast<Wide>(std::bit_cast<wordOf<Wide>>(x) ^ wordOf<Wide>{1} << (sizeof(Wide) * 8 - 1));
}

template <class Wide>
number<Wide> complexProductOf(number<Wide> x, number<Wide> y) {
  const Wide a = x.re, b = x.im, c = y.re, d = y.im;
  number<Wide> r;
  if (b == 0) {
    r.re = d != 0 && c == 0 ? 0 : unitProduct(a, c);
    r.im = d != 0 ? unitProduct(a, d) : 0;
  } else if (d == 0) {
    r.re = a == 0 ? 0 : unitProduct(a, c);
    r.im = unitProduct(b, c);
  } else if (a == 0) {
    r.re = unitProduct(d, opposite(b));
    r.im = c == 0 ? 0 : unitProduct(b, c);
  } else if (c == 0) {
    r.re = unitProduct(d, opposite(b));
    r.im = unitProduct(a, d);
  } else {
    r.re = sumOfTwoProducts(a, c, b, opposite(d));
    r.im = sumOfTwoProducts(a, d, b, c);
  }
  return r;
}

// Of halves: the rules of the operator, which are the reference of its own test, too.
namespace halves = zthalf::testing::rules;

inline halves::pairOf<float> inSingle(number<half_t> x) { return {halves::in<float>(x.re), halves::in<float>(x.im)}; }
inline number<half_t> rounded(halves::pairOf<float> z) { return {{halves::rounded(z.re)}, {halves::rounded(z.im)}}; }

inline number<half_t> complexProductOf(number<half_t> x, number<half_t> y) {
  return rounded(halves::timesComplex<halves::way::nudgedSingle>(inSingle(x), inSingle(y)));
}
inline number<half_t> totalTimesRun(number<half_t> total, number<half_t> run) {
  return rounded(halves::totalTimesRun(inSingle(total), inSingle(run)));
}

}  // namespace zthalf::reference
