// Inputs of the result sweep around underflow: small numbers, what makes small numbers of others, and what turns a zero
// in a small number's place into another result.
#pragma once

#include <cmath>
#include <concepts>
#include <cstdint>
#include <initializer_list>
#include <limits>
#include <vector>

#include "core/patterns.h"

namespace zthalf::golden {

// Whether the sweep runs over these inputs, and not over those whose results have committed hashes.
inline bool nearUnderflow = false;

template <class T>
void addWithBothSigns(std::vector<T>& list, T x) {
  list.push_back(x);
  list.push_back(-x);
}

inline std::vector<std::uint16_t> underflowPatterns() {
  std::vector<std::uint16_t> all;
  for (const int p :
       {0x0000, 0x0001, 0x0002, 0x0003, 0x0155, 0x0355, 0x03FF, 0x0400, 0x0401, 0x0555, 0x0FFF, 0x1400, 0x2C00,
        0x3555, 0x3800, 0x3C00, 0x3C01, 0x4200, 0x5800, 0x6C00, 0x7155, 0x72AA, 0x7800, 0x7BFF, 0x7C00, 0x7E00}) {
    all.push_back(static_cast<std::uint16_t>(p));
    all.push_back(static_cast<std::uint16_t>(p | pattern::signBit));
  }
  return all;
}

// Every subnormal half and some beyond, the halves around each power of two, and those above.
inline std::vector<std::uint16_t> underflowPatternSweep() {
  std::vector<std::uint16_t> all = underflowPatterns();
  const auto add = [&all](int p) {
    all.push_back(static_cast<std::uint16_t>(p));
    all.push_back(static_cast<std::uint16_t>(p | pattern::signBit));
  };
  for (int p = 0; p < 0x0420; ++p) add(p);
  for (int exponent = 2; exponent < 32; ++exponent)
    for (const int step : {-1, 0, 1, 0x155, 0x2AA}) add((exponent << 10) + step);
  return all;
}

template <std::floating_point T>
std::vector<T> underflowNumbers() {
  using limits = std::numeric_limits<T>;
  constexpr T least = limits::denorm_min(), normal = limits::min();
  std::vector<T> all;
  for (const T x : {T(0),
                    least,
                    3 * least,
                    normal / 2,
                    normal - least,
                    normal,
                    normal + least,
                    normal * 0x1p11f,
                    T(0x1p-24),
                    T(0x1.8p-24),
                    T(0x1p-14),
                    T(0.5),
                    T(1),
                    T(1.625),
                    T(2),
                    T(1024),
                    T(65504),
                    1 / normal,
                    limits::max() / 4,
                    limits::max(),
                    limits::infinity(),
                    limits::quiet_NaN()})
    addWithBothSigns(all, x);
  return all;
}

// Parts of complex numbers, all pairs of which are made: fewer, and both signs where they matter.
inline std::vector<std::uint16_t> underflowPartPatterns() {
  return {0x0000, 0x8000, 0x0001, 0x8001, 0x0400, 0x0555, 0x2C00, 0x3C00,
          0xBC00, 0x6C00, 0x7155, 0x72AA, 0x7BFF, 0xFBFF, 0x7C00, 0x7E00};
}
template <std::floating_point T>
std::vector<T> underflowParts() {
  using limits = std::numeric_limits<T>;
  constexpr T least = limits::denorm_min(), normal = limits::min();
  const T rootOfSubnormal = std::ldexp(T(1.25), limits::min_exponent / 2 - 4);
  return {0,
          T(-0.0),
          least,
          -least,
          normal / 2,
          -normal,
          rootOfSubnormal,
          -rootOfSubnormal,
          2 * rootOfSubnormal,
          1,
          -1,
          T(0x1.4p-14),
          1 / normal,
          limits::max(),
          limits::infinity(),
          limits::quiet_NaN()};
}

// Numbers of every exponent that the type has.
template <std::floating_point T>
std::vector<T> underflowNumberSweep() {
  using limits = std::numeric_limits<T>;
  std::vector<T> all = underflowNumbers<T>();
  for (int exponent = limits::min_exponent - limits::digits; exponent < limits::max_exponent; ++exponent)
    for (const T x : {T(1), T(1.25), T(1.625)}) addWithBothSigns(all, std::ldexp(x, exponent));
  for (const std::uint16_t p : underflowPatterns()) {
    const int field = (p >> 10) & 31, fraction = p & 1023;
    if (field != 0 && field != 31) addWithBothSigns(all, std::ldexp(T(1024 + fraction), field - 25));
  }
  return all;
}

// Whether the i-th element of a chain goes down. A running product goes down to the subnormal numbers and comes back,
// in single after few elements and in double after many.
inline bool goesDown(std::size_t i, std::size_t stepsDown) { return i / stepsDown % 2 == 0; }
inline constexpr std::size_t stepsInSingle = 10, stepsInDouble = 75, complexStepsInDouble = 78;

// Numbers around 2^-14, and around 2^14.
inline bool isStepDown(std::uint16_t p) { return (p & 0x7C00) == 0x0400; }
inline bool isStepUp(std::uint16_t p) { return (p & 0x7800) == 0x7000; }

}  // namespace zthalf::golden
