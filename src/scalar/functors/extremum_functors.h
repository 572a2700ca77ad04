// Functors and conditions of min and max.
#pragma once

#include <complex>
#include <type_traits>

#include "scalar/complex_extremum.h"
#include "scalar/extremum.h"
#include "scalar/functors/operands.h"
#include "zthalf/half_t.h"

namespace half::scalar::emulated {

namespace templates {

// A real operand beside a complex one has an imaginary part of plus zero.
template <class Wide, class T>
ZTHALF_INLINE std::complex<Wide> asComplex(T x) {
  return {zthalf::exactly<Wide>(plainOperand(x)), Wide{0}};
}
template <class Wide, class T>
ZTHALF_INLINE std::complex<Wide> asComplex(std::complex<T> z) {
  return {zthalf::exactly<Wide>(plainOperand(z.real())), zthalf::exactly<Wide>(plainOperand(z.imag()))};
}

// The operand that is kept, as an element of the output: a half as its pattern is, the bits of a NaN too; the others
// rounded.
template <class T>
ZTHALF_INLINE element::CplxHalf asCplxHalf(T x) {
  return {{zthalf::asHalf(plainOperand(x))}, {zthalf::pattern::zero}};
}
template <class T>
ZTHALF_INLINE element::CplxHalf asCplxHalf(std::complex<T> z) {
  return {{zthalf::asHalf(plainOperand(z.real()))}, {zthalf::asHalf(plainOperand(z.imag()))}};
}

// Whether the accumulator is to be replaced by the candidate.
template <class Kind>
struct extremumCondition {
  using kind = Kind;

  template <class T>
  ZTHALF_INLINE bool operator()(T accumulator, T candidate) const {
    return zthalf::isReplaced<Kind>(accumulator, candidate);
  }
};

// As a fold step the accumulator comes first; of two arrays the left operand is in its place.
template <class Kind>
struct extremumFtor {
  using kind = Kind;
  static constexpr unsigned long grain = 256;

  // Lengths and angles are calls, and gain nothing from wide registers.
  template <class A, class B>
  static constexpr bool baseOnlyFor = partsOf<A>::areTwo || partsOf<B>::areTwo;

  template <class A, class B>
  ZTHALF_INLINE auto operator()(A x, B y) const {
    using partA = typename partsOf<A>::type;
    using partB = typename partsOf<B>::type;
    if constexpr (baseOnlyFor<A, B>) {
      using wide = zthalf::widestOf<partA, partB>;
      return zthalf::isReplaced<Kind>(asComplex<wide>(x), asComplex<wide>(y)) ? asCplxHalf(y) : asCplxHalf(x);
    } else {
      return fp16binary_t{zthalf::extremumOf<Kind>(plainOperand(x), plainOperand(y))};
    }
  }
};

}  // namespace templates

struct minFtor : templates::extremumFtor<zthalf::minKind> {};
struct maxFtor : templates::extremumFtor<zthalf::maxKind> {};
struct minOmitNaNFtor : templates::extremumFtor<zthalf::minOmitNaNKind> {};
struct maxOmitNaNFtor : templates::extremumFtor<zthalf::maxOmitNaNKind> {};

struct minCondition : templates::extremumCondition<zthalf::minKind> {};
struct maxCondition : templates::extremumCondition<zthalf::maxKind> {};
struct minOmitNaNCondition : templates::extremumCondition<zthalf::minOmitNaNKind> {};
struct maxOmitNaNCondition : templates::extremumCondition<zthalf::maxOmitNaNKind> {};

}  // namespace half::scalar::emulated
