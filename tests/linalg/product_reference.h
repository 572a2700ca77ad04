// Matrix products one output at a time, by recursion over the stated order: no lanes, no tiles, no vectors.
#pragma once

#include <bit>
#include <cmath>
#include <complex>
#include <cstdint>
#include <limits>
#include <type_traits>
#include <vector>

#include "tests/support/reference.h"
#include "zthalf/half_t.h"

namespace zthalf::reference {

// A number of the working type with the rules of the defining unit for NaNs, written on its bits.
template <class Base>
struct unitOf {
  using word = std::conditional_t<sizeof(Base) == 4, std::uint32_t, std::uint64_t>;
  static constexpr word quiet = word{1} << (std::numeric_limits<Base>::digits - 2);

  static bool isNaN(Base x) { return x != x; }
  static bool signals(Base x) { return isNaN(x) && (std::bit_cast<word>(x) & quiet) == 0; }
  static Base quieted(Base x) { return std::bit_cast<Base>(std::bit_cast<word>(x) | quiet); }

  // The NaN of an operation on x and y that gave one.
  static Base nanOf(Base x, Base y) {
    if (signals(x)) return quieted(x);
    if (signals(y)) return quieted(y);
    if (isNaN(x)) return x;
    if (isNaN(y)) return y;
    return std::bit_cast<Base>(std::bit_cast<word>(std::numeric_limits<Base>::infinity()) | quiet);
  }
  static Base settled(Base result, Base x, Base y) { return isNaN(result) ? nanOf(x, y) : result; }

  static Base plus(Base x, Base y) {
    volatile Base a = x, b = y;
    volatile Base sum = a + b;
    return settled(sum, x, y);
  }
  static Base minus(Base x, Base y) {
    volatile Base a = x, b = y;
    volatile Base difference = a - b;
    return settled(difference, x, y);
  }
  static Base times(Base x, Base y) {
    volatile Base a = x, b = y;
    volatile Base product = a * b;
    return settled(product, x, y);
  }
};

// Real and complex numbers of a working type.
template <class Base>
Base productOf(Base a, Base b) {
  return unitOf<Base>::times(a, b);
}
template <class Base>
Base sumOf(Base a, Base b) {
  return unitOf<Base>::plus(a, b);
}

template <class Base>
std::complex<Base> sumOf(std::complex<Base> a, std::complex<Base> b) {
  return {sumOf(a.real(), b.real()), sumOf(a.imag(), b.imag())};
}

// The steps of the C standard's Annex G, case by case on the four parts in an array.
template <class Base>
std::complex<Base> productOf(std::complex<Base> a, std::complex<Base> b) {
  using unit = unitOf<Base>;
  constexpr Base infinity = std::numeric_limits<Base>::infinity();
  const auto isInfinite = [](Base x) { return x == infinity || x == -infinity; };
  const auto unitOrZero = [&](Base x) { return std::copysign(isInfinite(x) ? Base{1} : Base{0}, x); };
  const auto zeroForNaN = [](Base x) { return x != x ? std::copysign(Base{0}, x) : x; };

  Base part[4] = {a.real(), a.imag(), b.real(), b.imag()};
  const Base ac = unit::times(part[0], part[2]), bd = unit::times(part[1], part[3]);
  const Base ad = unit::times(part[0], part[3]), bc = unit::times(part[1], part[2]);
  const std::complex<Base> plain(unit::minus(ac, bd), unit::plus(bc, ad));
  if (!unit::isNaN(plain.real()) || !unit::isNaN(plain.imag())) return plain;

  bool restores = false;
  for (const int own : {0, 2}) {
    const int other = 2 - own;
    if (!isInfinite(part[own]) && !isInfinite(part[own + 1])) continue;
    restores = true;
    for (const int i : {own, own + 1}) part[i] = unitOrZero(part[i]);
    for (const int i : {other, other + 1}) part[i] = zeroForNaN(part[i]);
  }
  if (!restores) {
    for (const Base product : {ac, bd, ad, bc}) restores = restores || isInfinite(product);
    if (!restores) return plain;
    for (Base& x : part) x = zeroForNaN(x);
  }
  const Base re = unit::minus(unit::times(part[0], part[2]), unit::times(part[1], part[3]));
  const Base im = unit::plus(unit::times(part[0], part[3]), unit::times(part[1], part[2]));
  return {unit::times(infinity, re), unit::times(infinity, im)};
}

// Operands and results in the working type.
template <class W>
struct baseOf {
  using type = W;
};
template <class Base>
struct baseOf<std::complex<Base>> {
  using type = Base;
};

template <class Base>
Base partAs(half_t x) {
  if constexpr (sizeof(Base) == 4) {
    return widenedToSingle(x.bits);
  } else {
    return widenedToDouble(x.bits);
  }
}
template <class Base>
Base partAs(float x) {
  return static_cast<Base>(x);
}
template <class Base>
Base partAs(double x) {
  return static_cast<Base>(x);
}

template <class W>
struct workingNumber {
  template <class T>
  static W of(T x) {
    return partAs<W>(x);
  }
};
template <class Base>
struct workingNumber<std::complex<Base>> {
  template <class T>
  static std::complex<Base> of(T x) {
    return {partAs<Base>(x), Base{0}};
  }
  template <class T>
  static std::complex<Base> of(std::complex<T> z) {
    return {partAs<Base>(z.real()), partAs<Base>(z.imag())};
  }
};

// The sum of the products of indices t, t + 8, ... up to l, all in one stretch.
template <class W>
W laneSum(W const* a, W const* b, unsigned long t, unsigned long l) {
  const W before = l == t ? W{} : laneSum(a, b, t, l - 8);
  return sumOf(before, productOf(a[l], b[l]));
}

// What stands in an output after the first k indices. A lane is there as soon as its first index is.
template <class W>
W outputAfter(W const* a, W const* b, unsigned long k) {
  if (k == 0) return W{};
  const unsigned long begin = (k - 1) / 256 * 256, depth = k - begin;
  W output = outputAfter(a, b, begin);
  for (unsigned long t = 0; t < 8; ++t) {
    const W lane = t < depth ? laneSum(a + begin, b + begin, t, (depth - 1 - t) / 8 * 8 + t) : W{};
    output = sumOf(lane, output);
  }
  return output;
}

}  // namespace zthalf::reference
