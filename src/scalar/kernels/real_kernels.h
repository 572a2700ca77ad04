// The real kernels of single and of double precision under one name each: the complex kernels are formulas that are
// written once for both.
#pragma once

#include "scalar/complex/called_unit.h"
#include "scalar/kernels/atan2_double.h"
#include "scalar/kernels/atan2_single.h"
#include "scalar/kernels/double_fields.h"
#include "scalar/kernels/exp_double.h"
#include "scalar/kernels/exp_single.h"
#include "scalar/kernels/float_fields.h"
#include "scalar/kernels/hypot_double.h"
#include "scalar/kernels/hypot_single.h"
#include "scalar/kernels/log1p_double.h"
#include "scalar/kernels/log1p_single.h"
#include "scalar/kernels/log_double.h"
#include "scalar/kernels/log_single.h"
#include "scalar/kernels/pi_constants.h"
#include "scalar/kernels/pow_double.h"
#include "scalar/kernels/pow_single.h"
#include "scalar/kernels/sincos_double.h"
#include "scalar/kernels/sincos_single.h"

namespace qsl_scalar {

using zthalf::complexOf;

template <class Wide>
struct realKernels;

template <>
struct realKernels<float> {
  static constexpr float largestFinite = floatOf(0x7F7FFFFFu);
  static constexpr float smallestNormal = 0x1p-126f;
  static constexpr float nan = domainNaN;
  static constexpr float pi = piUpper;
  static constexpr float ln2 = qsl_scalar::ln2;
  static constexpr float nearExpOverflow = 88.0f;     // above it an exponential may overflow and its product not

  // Both are long, and would be merged wherever they stand.
  __attribute__((noinline)) static float log(float x) { return logSingle(x); }
  __attribute__((noinline)) static float atan2(float y, float x) { return atan2Single(y, x); }

  static float log1p(float x) { return log1pSingle(x); }
  static float exp(float x) { return expSingle(x); }
  static float pow(float x, float y) { return powSingle(x, y); }
  static float hypot(float x, float y) { return hypotSingle(x, y); }
  static sineAndCosine<float> sincos(float x) { return sincosSingle(x); }
};

template <>
struct realKernels<double> {
  static constexpr double largestFinite = doubles::largestFinite;
  static constexpr double smallestNormal = 0x1p-1022;
  static constexpr double nan = doubles::domainNaN;
  static constexpr double pi = zthalf::doubleOf(0x400921FB54442D18u);   // 3.141592653589793
  static constexpr double ln2 = zthalf::doubleOf(0x3FE62E42FEFA39EFu);  // 0.6931471805599453
  static constexpr double nearExpOverflow = 709.0;

  static double log(double x) { return logDouble(x); }
  static double log1p(double x) { return log1pDouble(x); }
  static double exp(double x) { return expDouble(x); }
  static double pow(double x, double y) { return powDouble(x, y); }
  static double hypot(double x, double y) { return hypotDouble(x, y); }
  static double atan2(double y, double x) { return atan2Double(y, x); }
  static sineAndCosine<double> sincos(double x) { return sincosDouble(x); }
};

// Whether x is a number of finite size; with isFinite false a NaN or an infinity.
template <class Wide>
ZTHALF_INLINE bool isFiniteNumber(Wide x) {
  return zthalf::withoutSign(x) <= realKernels<Wide>::largestFinite;
}

template <class Wide>
ZTHALF_INLINE bool isNaN(Wide x) {
  return x != x;
}

// The magnitude of the first with the sign of the second.
template <class Wide>
ZTHALF_INLINE Wide withSignOf(Wide magnitude, Wide sign) {
  return zthalf::valueOf(zthalf::bitsOf(zthalf::withoutSign(magnitude)) |
                         (zthalf::bitsOf(sign) ^ zthalf::bitsOf(zthalf::withoutSign(sign))));
}

}  // namespace qsl_scalar
