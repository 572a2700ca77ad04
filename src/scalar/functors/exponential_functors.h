// Functors of the exponentials.
// Internal: promises nothing to users of the library.
#pragma once

#include "scalar/exponential.h"
#include "scalar/functors/operands.h"
#include "scalar/power_of_halves.h"
#include "scalar/two_argument.h"
#include "zthalf/half_t.h"

namespace half::scalar::emulated {

struct expFtor {
  static constexpr unsigned long grain = 256;
  ZTHALF_INLINE fp16binary_t operator()(fp16binary_t x) const { return {zthalf::expOf(x.bits)}; }
};

struct expm1Ftor {
  static constexpr unsigned long grain = 256;
  static constexpr bool baseOnly = true;  // a call for each element
  fp16binary_t operator()(fp16binary_t x) const { return {zthalf::expm1Of(x.bits)}; }
};

// 2^x, and x 2^y.
struct pow2Ftor {
  static constexpr unsigned long grain = 256;
  template <class... Elements>
  static constexpr bool baseOnlyFor = sizeof...(Elements) == 1;  // the table is faster than the widest vectors

  ZTHALF_INLINE fp16binary_t operator()(fp16binary_t x) const { return {zthalf::pow2Of(x.bits)}; }
  template <class A, class B>
  ZTHALF_INLINE fp16binary_t operator()(A x, B y) const {
    return {zthalf::scaledByPowerOfTwo(plainOperand(x), plainOperand(y))};
  }
};

struct pow10Ftor {
  static constexpr unsigned long grain = 256;
  static constexpr bool baseOnly = true;
  ZTHALF_INLINE fp16binary_t operator()(fp16binary_t x) const { return {zthalf::pow10Of(x.bits)}; }
};

}  // namespace half::scalar::emulated
