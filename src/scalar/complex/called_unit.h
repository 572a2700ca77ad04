// The defining unit as functions that are called, for long formulas.
//
// A complex kernel is some thousand steps long, and a NaN comes out of it now and then. What decides about NaNs is
// merged into its second run nowhere: that would be most of the kernel's code.
#pragma once

#include "scalar/complex/complex_value.h"

namespace zthalf {

struct calledUnit {
  static float sum(float x, float y);
  static double sum(double x, double y);
  static float difference(float x, float y);
  static double difference(double x, double y);
  static float product(float x, float y);
  static double product(double x, double y);
  static float quotient(float x, float y);
  static double quotient(double x, double y);
};

// As onDefinedUnit.
template <class Formula>
ZTHALF_INLINE auto onCalledUnit(Formula formula) {
  const auto plain = formula(plainUnit{});
  return __builtin_expect(hasNaN(plain), false) ? formula(calledUnit{}) : plain;
}

}  // namespace zthalf
