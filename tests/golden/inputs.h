// The fixed inputs of the result sweep. Changing one changes hashes without any result having changed.
#pragma once

#include <array>
#include <bit>
#include <cmath>
#include <complex>
#include <concepts>
#include <cstdint>
#include <limits>
#include <vector>

#include "core/patterns.h"
#include "tests/golden/underflow_inputs.h"
#include "zthalf/half_t.h"

namespace zthalf::golden {

// What an array of T is made of here: logical arrays are bytes of which any bit may be set.
template <class T>
struct storageOf {
  using type = T;
};
template <>
struct storageOf<bool> {
  using type = unsigned char;
};
template <class T>
using storage = typename storageOf<T>::type;

// A fixed sequence of words without visible order; each call advances it.
class scrambler {
 public:
  std::uint64_t next() {
    state_ += 0x9E3779B97F4A7C15u;
    std::uint64_t z = state_;
    z = (z ^ (z >> 30)) * 0xBF58476D1CE4E5B9u;
    z = (z ^ (z >> 27)) * 0x94D049BB133111EBu;
    return z ^ (z >> 31);
  }

 private:
  std::uint64_t state_ = 2019;
};

inline std::vector<std::uint16_t> everyPattern() {
  std::vector<std::uint16_t> all;
  for (std::uint32_t p = 0; p < 0x10000; ++p) all.push_back(static_cast<std::uint16_t>(p));
  return all;
}

// Halves that are special or next to something special, of both signs.
inline std::vector<std::uint16_t> notablePatterns() {
  constexpr std::array<std::uint16_t, 18> positive = {0x0000, 0x0001, 0x0200, 0x03FF, 0x0400, 0x1400,
                                                      0x37FF, 0x3800, 0x3C00, 0x3C01, 0x4000, 0x4248,
                                                      0x63FF, 0x7BFF, 0x7C00, 0x7C01, 0x7E00, 0x7FFF};
  std::vector<std::uint16_t> all;
  for (const std::uint16_t p : positive) {
    all.push_back(p);
    all.push_back(p | pattern::signBit);
  }
  return all;
}

// The exact value of a finite half, by arithmetic of its own.
inline double valueOfPattern(std::uint16_t p) {
  const int field = (p >> 10) & 31;
  const int fraction = p & 1023;
  const double magnitude = field == 0 ? std::ldexp(fraction, -24) : std::ldexp(1024 + fraction, field - 25);
  return (p & 0x8000) != 0 ? -magnitude : magnitude;
}

// Every finite half, the point halfway to its neighbour, and the floating-point numbers on both sides of that point;
// what lies beyond the halves; words without order; NaNs with and without the quiet bit.
template <std::floating_point T>
std::vector<T> floatingSweep() {
  constexpr T infinity = std::numeric_limits<T>::infinity();
  using word = std::conditional_t<sizeof(T) == 4, std::uint32_t, std::uint64_t>;
  std::vector<T> all;
  for (std::uint32_t p = 0; p < 0x10000; ++p) {
    if ((p & 0x7C00) == 0x7C00) continue;
    const double value = valueOfPattern(static_cast<std::uint16_t>(p));
    const double spacing = std::ldexp(1.0, std::max(static_cast<int>((p >> 10) & 31), 1) - 25);
    const T halfway = static_cast<T>(value + std::copysign(spacing / 2, value));
    for (const T x : {static_cast<T>(value), halfway, std::nextafter(halfway, T(0)), std::nextafter(halfway, infinity)})
      all.push_back(x);
  }
  for (int exponent = std::numeric_limits<T>::min_exponent - std::numeric_limits<T>::digits;
       exponent < std::numeric_limits<T>::max_exponent; ++exponent) {
    for (const T x : {T(1), T(1.625)}) {
      all.push_back(std::ldexp(x, exponent));
      all.push_back(-std::ldexp(x, exponent));
    }
  }
  scrambler words;
  for (int i = 0; i < 0x8000; ++i) all.push_back(std::bit_cast<T>(static_cast<word>(words.next())));
  constexpr word exponentBits = std::bit_cast<word>(infinity);
  constexpr word quietBit = word{1} << (std::numeric_limits<T>::digits - 2);
  for (const word w : {exponentBits, exponentBits | 1, exponentBits | quietBit, exponentBits | quietBit | 5}) {
    all.push_back(std::bit_cast<T>(w));
    all.push_back(std::bit_cast<T>(w | word{1} << (8 * sizeof(T) - 1)));
  }
  return all;
}

// Every integer of 8 or 16 bits; of wider types those around each power of two, and words without order and size.
template <std::integral T>
std::vector<T> integerSweep() {
  using word = std::make_unsigned_t<T>;
  std::vector<T> all;
  if constexpr (sizeof(T) <= 2) {
    for (std::uint32_t i = 0; i < std::uint32_t{1} << (8 * sizeof(T)); ++i) all.push_back(static_cast<T>(i));
  } else {
    for (unsigned bit = 0; bit < 8 * sizeof(T); ++bit) {
      for (int offset = -3; offset <= 3; ++offset) {
        const word w = (word{1} << bit) + static_cast<word>(offset);
        all.push_back(static_cast<T>(w));
        all.push_back(static_cast<T>(word{0} - w));
      }
    }
    for (word i = 0; i < 0x11000; ++i) all.push_back(static_cast<T>(i));
    scrambler words;
    for (unsigned i = 0; i < 0x8000; ++i) all.push_back(static_cast<T>(words.next() >> (i % 64)));
  }
  return all;
}

template <class T>
struct inputs;

template <class T>
requires(sizeof(T) == 2 && !std::same_as<T, short>) struct inputs<T> {  // a half under any of its names
  static std::vector<T> ofPatterns(std::vector<std::uint16_t> const& patterns) {
    std::vector<T> all;
    for (const std::uint16_t p : patterns) all.push_back(std::bit_cast<T>(p));
    return all;
  }
  static std::vector<T> sweep() { return ofPatterns(nearUnderflow ? underflowPatternSweep() : everyPattern()); }
  static std::vector<T> notable() { return ofPatterns(nearUnderflow ? underflowPatterns() : notablePatterns()); }
  static std::vector<T> parts() { return ofPatterns(nearUnderflow ? underflowPartPatterns() : notablePatterns()); }
};

template <std::floating_point T>
struct inputs<T> {
  static std::vector<T> parts() { return nearUnderflow ? underflowParts<T>() : notable(); }
  static std::vector<T> sweep() { return nearUnderflow ? underflowNumberSweep<T>() : floatingSweep<T>(); }
  static std::vector<T> notable() {
    if (nearUnderflow) return underflowNumbers<T>();
    std::vector<T> all;
    for (const std::uint16_t p : notablePatterns())
      if (pattern::isFinite(p)) all.push_back(static_cast<T>(valueOfPattern(p)));
    for (const T x : {T(0.1), T(1e5), T(1e-9), std::numeric_limits<T>::max(), std::numeric_limits<T>::denorm_min(),
                      std::numeric_limits<T>::infinity(), std::numeric_limits<T>::quiet_NaN()}) {
      all.push_back(x);
      all.push_back(-x);
    }
    return all;
  }
};

template <class T>
requires(std::integral<T> && !std::same_as<T, bool> && !std::same_as<T, unsigned short>) struct inputs<T> {
  static std::vector<T> sweep() { return integerSweep<T>(); }
  static std::vector<T> parts() { return notable(); }
  static std::vector<T> notable() {
    std::vector<T> all;
    for (int i = -4; i <= 4; ++i) all.push_back(static_cast<T>(i));
    for (const long long i : {127LL, 128LL, 255LL, 2049LL, 32767LL, 32768LL, 65519LL, 65520LL, 65535LL, 1LL << 40})
      all.push_back(static_cast<T>(i));
    all.push_back(std::numeric_limits<T>::min());
    all.push_back(std::numeric_limits<T>::max());
    return all;
  }
};

template <>
struct inputs<bool> {
  static std::vector<unsigned char> sweep() { return integerSweep<unsigned char>(); }
  static std::vector<unsigned char> notable() { return {0, 1, 2, 128, 255}; }
};

// Every pattern as a real part, with another in no visible order beside it; then all pairs of notable ones. parts() are
// what notable parts are.
template <class T>
struct inputs<std::complex<T>> {
  static std::vector<std::complex<T>> sweep() {
    const auto parts = inputs<T>::sweep();
    std::vector<std::complex<T>> all;
    for (std::size_t i = 0; i < parts.size(); ++i)
      all.emplace_back(parts[i], parts[(i * 40503 + 12345) % parts.size()]);
    const auto special = notable();
    all.insert(all.end(), special.begin(), special.end());
    return all;
  }
  static std::vector<std::complex<T>> notable() {
    const auto parts = inputs<T>::parts();
    std::vector<std::complex<T>> all;
    for (const T re : parts)
      for (const T im : parts) all.emplace_back(re, im);
    return all;
  }
};

}  // namespace zthalf::golden
