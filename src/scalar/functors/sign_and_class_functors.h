// Functors of sign, magnitude, parts and class: bit work on a pattern, but for the magnitude and direction of a complex
// element.
#pragma once

#include <complex>

#include "scalar/complex/magnitude.h"
#include "scalar/functors/operands.h"
#include "scalar/sign_and_class.h"

namespace half::scalar::emulated {

struct uminusFtor {
  static constexpr unsigned long grain = 4096;
  ZTHALF_INLINE fp16binary_t operator()(fp16binary_t x) const { return {zthalf::negated(x.bits)}; }
  ZTHALF_INLINE element::CplxHalf operator()(element::CplxHalf z) const {
    return {{zthalf::negated(z.real().bits)}, {zthalf::negatedUnlessZero(z.imag().bits)}};
  }
};

struct conjFtor {
  static constexpr unsigned long grain = 4096;
  ZTHALF_INLINE element::CplxHalf operator()(element::CplxHalf z) const {
    return {z.real(), {zthalf::negatedUnlessZero(z.imag().bits)}};
  }
};

struct realFtor {
  static constexpr unsigned long grain = 4096;
  ZTHALF_INLINE fp16binary_t operator()(element::CplxHalf z) const { return z.real(); }
};

struct imagFtor {
  static constexpr unsigned long grain = 4096;
  ZTHALF_INLINE fp16binary_t operator()(element::CplxHalf z) const { return z.imag(); }
};

struct absFtor {
  static constexpr unsigned long grain = 512;
  ZTHALF_INLINE fp16binary_t operator()(fp16binary_t x) const { return {zthalf::pattern::magnitudeOf(x.bits)}; }
  ZTHALF_INLINE fp16binary_t operator()(element::CplxHalf z) const { return {zthalf::magnitudeOf(plainOperand(z))}; }
};

// Of one operand, or of two: a part that is not a half is rounded to one.
struct realToComplexFtor {
  static constexpr unsigned long grain = 512;
  ZTHALF_INLINE element::CplxHalf operator()(fp16binary_t x) const { return {x, {zthalf::pattern::zero}}; }
  template <class A, class B>
  ZTHALF_INLINE element::CplxHalf operator()(A x, B y) const {
    return {{zthalf::asHalf(plainOperand(x))}, {zthalf::asHalf(plainOperand(y))}};
  }
};

struct signFtor {
  static constexpr unsigned long grain = 256;
  template <class T>
  static constexpr bool baseOnlyFor = std::is_same_v<T, element::CplxHalf>;  // a call for each element
  ZTHALF_INLINE fp16binary_t operator()(fp16binary_t x) const { return {zthalf::signumOf(x.bits)}; }
  element::CplxHalf operator()(element::CplxHalf z) const { return asElement(zthalf::directionOf(plainOperand(z))); }
};

namespace realOps {

struct isnanFtor {
  ZTHALF_INLINE bool operator()(fp16binary_t x) const { return zthalf::pattern::isNaN(x.bits); }
};

struct isinfFtor {
  ZTHALF_INLINE bool operator()(fp16binary_t x) const { return zthalf::pattern::isInfinite(x.bits); }
};

struct isfiniteFtor {
  ZTHALF_INLINE bool operator()(fp16binary_t x) const { return zthalf::pattern::isFinite(x.bits); }
};

}  // namespace realOps

}  // namespace half::scalar::emulated
