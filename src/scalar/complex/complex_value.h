// A complex value as the element functions see it: two half patterns, floats or doubles, and the type it is worked in.
#pragma once

#include <complex>
#include <cstdint>
#include <type_traits>

#include "core/float_conversion.h"
#include "core/float_unit.h"
#include "scalar/mixed_operands.h"
#include "zthalf/half_t.h"

namespace zthalf {

template <class T>
struct complexOf {
  T re, im;
};

using complexHalf = complexOf<std::uint16_t>;

// What a part or a real operand is made of.
template <class T>
struct partOf {
  using type = T;
};
template <class T>
struct partOf<complexOf<T>> {
  using type = T;
};

template <class T>
inline constexpr bool isComplexOperand = !std::is_same_v<T, typename partOf<T>::type>;

template <class A, class B>
concept hasComplexOperand = isComplexOperand<A> || isComplexOperand<B>;

// Whether both operands are made of halves: such pairs have rules of their own for which NaN is delivered.
template <class A, class B>
inline constexpr bool areMadeOfHalves =
    isHalfOperand<typename partOf<A>::type>&& isHalfOperand<typename partOf<B>::type>;

// float, or double if a part of an operand is one.
template <class A, class B>
using workingTypeOf = widestOf<typename partOf<A>::type, typename partOf<B>::type>;

template <class Wide, class T>
ZTHALF_INLINE complexOf<Wide> exactly(complexOf<T> z) {
  return {exactly<Wide>(z.re), exactly<Wide>(z.im)};
}

template <class Wide>
ZTHALF_INLINE complexHalf narrowed(complexOf<Wide> z) {
  return {narrow(z.re), narrow(z.im)};
}

template <class Wide>
ZTHALF_INLINE bool hasNaN(complexOf<Wide> z) {
  return (z.re != z.re) | (z.im != z.im);
}

// From the value type, and back.
inline complexHalf bare(std::complex<half_t> z) { return {z.real().bits, z.imag().bits}; }
inline std::complex<half_t> dressed(complexHalf z) { return {half_t{z.re}, half_t{z.im}}; }

// The formula on the processor's unit, or where a NaN comes out, on the defining one.
template <class Formula>
ZTHALF_INLINE auto onDefinedUnit(Formula formula) {
  const auto plain = formula(plainUnit{});
  return __builtin_expect(hasNaN(plain), false) ? formula(definedUnit{}) : plain;
}

}  // namespace zthalf
