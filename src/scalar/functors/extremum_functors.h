// Functors and conditions of min and max.
// Internal: promises nothing to users of the library.
#pragma once

#include <complex>
#include <type_traits>

#include "scalar/complex_extremum.h"
#include "scalar/extremum.h"
#include "zthalf/half_t.h"

namespace half::scalar::emulated {

namespace templates {

// What an extremum is of: the parts of an operand, a half part widened to the type of the comparison.
template <class T>
struct extremumOperand {
  using part = T;
  static constexpr bool isComplex = false;
};
template <class T>
struct extremumOperand<std::complex<T>> {
  using part = T;
  static constexpr bool isComplex = true;
};

ZTHALF_INLINE std::uint16_t plainPart(fp16binary_t x) { return x.bits; }
ZTHALF_INLINE float plainPart(float x) { return x; }
ZTHALF_INLINE double plainPart(double x) { return x; }

// A real operand beside a complex one has an imaginary part of plus zero.
template <class Wide, class T>
ZTHALF_INLINE std::complex<Wide> asComplex(T x) {
  return {zthalf::exactly<Wide>(plainPart(x)), Wide{0}};
}
template <class Wide, class T>
ZTHALF_INLINE std::complex<Wide> asComplex(std::complex<T> z) {
  return {zthalf::exactly<Wide>(plainPart(z.real())), zthalf::exactly<Wide>(plainPart(z.imag()))};
}

// A part of the operand that is kept: a half as its pattern is, the bits of a NaN too; the others rounded.
ZTHALF_INLINE fp16binary_t asHalf(fp16binary_t x) { return x; }
ZTHALF_INLINE fp16binary_t asHalf(float x) { return {zthalf::narrow(x)}; }
ZTHALF_INLINE fp16binary_t asHalf(double x) { return {zthalf::narrow(x)}; }

template <class T>
ZTHALF_INLINE std::complex<fp16binary_t> asCplxHalf(T x) {
  return {asHalf(x), fp16binary_t{0}};
}
template <class T>
ZTHALF_INLINE std::complex<fp16binary_t> asCplxHalf(std::complex<T> z) {
  return {asHalf(z.real()), asHalf(z.imag())};
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
  static constexpr bool baseOnlyFor = extremumOperand<A>::isComplex || extremumOperand<B>::isComplex;

  template <class A, class B>
  ZTHALF_INLINE auto operator()(A x, B y) const {
    using partA = typename extremumOperand<A>::part;
    using partB = typename extremumOperand<B>::part;
    if constexpr (baseOnlyFor<A, B>) {
      using wide = zthalf::widestOf<partA, partB>;
      return zthalf::isReplaced<Kind>(asComplex<wide>(x), asComplex<wide>(y)) ? asCplxHalf(y) : asCplxHalf(x);
    } else {
      return fp16binary_t{zthalf::extremumOf<Kind>(plainPart(x), plainPart(y))};
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
