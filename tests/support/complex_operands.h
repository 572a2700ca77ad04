// Complex operands for tests: every meeting of special parts, and values without order.
#pragma once

#include <complex>
#include <cstdint>
#include <limits>
#include <vector>

#include "tests/support/drawn_values.h"
#include "zthalf/half_t.h"

namespace zthalf::testing {

// Parts at which something changes: zeros, infinities, NaNs of both signs, quiet and signalling, and some numbers that
// repeat so that parts of equal magnitude meet.
template <class T>
std::vector<T> specialParts();

template <>
inline std::vector<half_t> specialParts<half_t>() {
  std::vector<half_t> parts;
  for (const std::uint16_t p : {0x0000, 0x8000, 0x3C00, 0xBC00, 0x4200, 0xC500, 0x0001, 0x7BFF, 0x7C00, 0xFC00, 0x7E00,
                                0xFE01, 0x7C01, 0xFD00}) {
    parts.push_back({p});
  }
  return parts;
}

template <class T>
std::vector<T> specialWideParts() {
  using word = std::conditional_t<sizeof(T) == 4, std::uint32_t, std::uint64_t>;
  constexpr T infinity = std::numeric_limits<T>::infinity();
  const word quiet = std::bit_cast<word>(std::numeric_limits<T>::quiet_NaN());
  const word signalling = std::bit_cast<word>(infinity) | 1;
  const word sign = word{1} << (8 * sizeof(T) - 1);
  return {T(0),
          T(-0.0),
          T(1),
          T(-1),
          T(3),
          T(-5),
          T(0x1p-24),
          std::numeric_limits<T>::max(),
          -std::numeric_limits<T>::max(),
          std::numeric_limits<T>::min(),
          infinity,
          -infinity,
          std::bit_cast<T>(quiet),
          std::bit_cast<T>(quiet | sign | 5),
          std::bit_cast<T>(signalling),
          std::bit_cast<T>(signalling | sign)};
}
template <>
inline std::vector<float> specialParts<float>() {
  return specialWideParts<float>();
}
template <>
inline std::vector<double> specialParts<double>() {
  return specialWideParts<double>();
}

// All special elements of a type: for a complex one every pair of special parts.
template <class T>
struct specialElements {
  static std::vector<T> all() { return specialParts<T>(); }
};
template <class T>
struct specialElements<std::complex<T>> {
  static std::vector<std::complex<T>> all() {
    std::vector<std::complex<T>> elements;
    for (const T re : specialParts<T>()) {
      for (const T im : specialParts<T>()) elements.push_back({re, im});
    }
    return elements;
  }
};

// visit(x, y) for every pair of special elements, then for pairs of drawn ones.
template <class A, class B, class Visit>
void forPairsOf(unsigned long drawn, Visit visit) {
  for (const A& x : specialElements<A>::all()) {
    for (const B& y : specialElements<B>::all()) visit(x, y);
  }
  bitSource bits(301);
  for (unsigned long i = 0; i < drawn; ++i) {
    const A x = drawer<A>::draw(bits);
    visit(x, drawer<B>::draw(bits));
  }
}

}  // namespace zthalf::testing
