// Functors of the powers: x^y, 2^x, x 2^y and 10^x.
#pragma once

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
