// Functors of hypot, atan2, power and the scaling by a power of two, on real operands.
// Internal: promises nothing to users of the library.
#pragma once

#include "scalar/two_argument.h"
#include "zthalf/half_t.h"

namespace half::scalar::emulated {

// What the element functions take for an operand.
ZTHALF_INLINE std::uint16_t plainOperand(fp16binary_t x) { return x.bits; }
ZTHALF_INLINE float plainOperand(float x) { return x; }
ZTHALF_INLINE double plainOperand(double x) { return x; }

struct hypotFtor {
  static constexpr unsigned long grain = 256;

  template <class A, class B>
  ZTHALF_INLINE fp16binary_t operator()(A x, B y) const {
    return {zthalf::hypotOf(plainOperand(x), plainOperand(y))};
  }
};

// The ordinate comes first.
struct atan2Ftor {
  static constexpr unsigned long grain = 256;

  template <class A, class B>
  ZTHALF_INLINE fp16binary_t operator()(A y, B x) const {
    return {zthalf::atan2Of(plainOperand(y), plainOperand(x))};
  }
};

struct powerFtor {
  static constexpr unsigned long grain = 256;

  template <class A, class B>
  ZTHALF_INLINE fp16binary_t operator()(A x, B y) const {
    return {zthalf::powerInLanes(plainOperand(x), plainOperand(y))};
  }
};

struct pow2Ftor {
  static constexpr unsigned long grain = 256;

  template <class A, class B>
  ZTHALF_INLINE fp16binary_t operator()(A x, B y) const {
    return {zthalf::scaledByPowerOfTwo(plainOperand(x), plainOperand(y))};
  }
};

}  // namespace half::scalar::emulated
