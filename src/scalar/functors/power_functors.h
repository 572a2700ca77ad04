// Functors of the powers: x^y, 2^x, x 2^y and 10^x.
#pragma once

#include "host/api/warnings.h"
#include "scalar/complex/power.h"
#include "scalar/functors/operands.h"
#include "scalar/power.h"
#include "scalar/scaling.h"
#include "zthalf/half_t.h"

namespace half::scalar::emulated {

struct powerFtor {
  static constexpr unsigned long grain = 256;

  template <class A, class B>
  ZTHALF_INLINE fp16binary_t operator()(A x, B y) const {
    return {zthalf::powerInLanes(plainOperand(x), plainOperand(y))};
  }
};

// The same by a call for each pair.
struct onePowerFtor {
  static constexpr unsigned long grain = 256;
  static constexpr bool baseOnly = true;
  template <class A, class B>
  static constexpr bool repeatsSinglesFor = true;

  template <class A, class B>
  fp16binary_t operator()(A x, B y) const {
    return {zthalf::powerOf(plainOperand(x), plainOperand(y))};
  }
};

// Whether the power of a pair is no real number.
struct leavesTheRealLine {
  template <class A, class B>
  bool operator()(A x, B y) const {
    using wide = zthalf::workingTypeOf<operandOf<A>, operandOf<B>>;
    return zthalf::leavesTheRealLine(zthalf::exactly<wide>(plainOperand(x)), zthalf::exactly<wide>(plainOperand(y)));
  }
};

struct cplxPowerFtor {
  static constexpr unsigned long grain = 256;
  static constexpr bool baseOnly = true;  // a call for each pair
  template <class A, class B>
  static constexpr bool repeatsSinglesFor = true;

  template <class A, class B>
  element::CplxHalf operator()(A x, B y) const {
    return asElement(zthalf::complexPowerOf(plainOperand(x), plainOperand(y)));
  }
};

template <class T>
ZTHALF_INLINE T realPartOf(T x) {
  return x;
}
template <class T>
ZTHALF_INLINE T realPartOf(std::complex<T> z) {
  return z.real();
}

// 2^x, and x 2^y. Of complex operands the real parts count, and the host hears of each.
struct pow2Ftor {
  static constexpr unsigned long grain = 256;
  template <class... Elements>
  static constexpr bool baseOnlyFor = sizeof...(Elements) == 1 ||  // the table is faster than the widest vectors
                                      (partsOf<Elements>::areTwo || ...);  // a call of the host for each element
  // There are loops over two arrays alone.
  template <class A, class B>
  static constexpr bool repeatsSinglesFor = true;

  ZTHALF_INLINE fp16binary_t operator()(fp16binary_t x) const { return {zthalf::pow2Of(x.bits)}; }
  template <class A, class B>
  ZTHALF_INLINE fp16binary_t operator()(A x, B y) const {
    return {zthalf::scaledByPowerOfTwo(plainOperand(x), plainOperand(y))};
  }
  template <class A, class B>
  requires isComplexPair<A, B> element::CplxHalf operator()(A x, B y) const {
    zthalf::warnOfIgnoredImaginaryPart();
    return {(*this)(realPartOf(x), realPartOf(y)), {zthalf::pattern::zero}};
  }
};

struct pow10Ftor {
  static constexpr unsigned long grain = 256;
  static constexpr bool baseOnly = true;
  ZTHALF_INLINE fp16binary_t operator()(fp16binary_t x) const { return {zthalf::pow10Of(x.bits)}; }
};

}  // namespace half::scalar::emulated
