// From the elements of arrays to what the element functions take, and back.
#pragma once

#include <complex>

#include "scalar/complex/complex_value.h"
#include "zthalf/detail/element_types.h"
#include "zthalf/half_t.h"

namespace half::scalar::emulated {

// What an element is made of.
template <class T>
struct partsOf {
  static constexpr bool areTwo = false;
  using type = T;
};
template <class T>
struct partsOf<std::complex<T>> {
  static constexpr bool areTwo = true;
  using type = T;
};

ZTHALF_INLINE std::uint16_t plainOperand(fp16binary_t x) { return x.bits; }
ZTHALF_INLINE float plainOperand(float x) { return x; }
ZTHALF_INLINE double plainOperand(double x) { return x; }
template <class T>
ZTHALF_INLINE auto plainOperand(std::complex<T> z) {
  return zthalf::complexOf<decltype(plainOperand(T{}))>{plainOperand(z.real()), plainOperand(z.imag())};
}

template <class T>
using operandOf = decltype(plainOperand(T{}));

template <class A, class B>
inline constexpr bool isComplexPair = zthalf::isComplexOperand<operandOf<A>> || zthalf::isComplexOperand<operandOf<B>>;

template <class A, class B>
inline constexpr bool isComplexPairOfHalves = isComplexPair<A, B>&& zthalf::areMadeOfHalves<operandOf<A>, operandOf<B>>;

// Complex operands beside floats or doubles gain nothing from the wide levels: most of the work is moving parts.
template <class A, class B>
inline constexpr bool isMixedComplexPair = isComplexPair<A, B> && !zthalf::areMadeOfHalves<operandOf<A>, operandOf<B>>;

// The same of element i of an operand that is an array or one value, read in a way that compilers take to vector lanes.
ZTHALF_INLINE zthalf::complexHalf laneOperand(element::CplxHalf const* z, unsigned long i) {
  auto const* parts = reinterpret_cast<std::uint16_t const*>(z);
  return {parts[2 * i], parts[2 * i + 1]};
}
ZTHALF_INLINE std::uint16_t laneOperand(fp16binary_t const* x, unsigned long i) { return x[i].bits; }
template <class T>
ZTHALF_INLINE operandOf<T> laneOperand(T value, unsigned long) {
  return plainOperand(value);
}

ZTHALF_INLINE fp16binary_t asElement(std::uint16_t bits) { return {bits}; }
ZTHALF_INLINE float asElement(float x) { return x; }
ZTHALF_INLINE double asElement(double x) { return x; }
ZTHALF_INLINE std::complex<fp16binary_t> asElement(zthalf::complexHalf z) { return {{z.re}, {z.im}}; }

}  // namespace half::scalar::emulated
