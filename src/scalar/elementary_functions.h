// The real functions of one half: X(function, how it is computed), a row for each.
//
// A row is all there is of a function beside its body. It gives
//
//   half_scalar::function(x)                elementary_functions.cpp
//   functionFtor, for the loops             functors/elementary_functors.h
//   half::function(src, dst, n)             frame/unary/elementary.cpp
//   its result table, for large arrays      results/result_tables.h
//
// How it is computed is one of the templates of functors/elementary_bodies.h with the body: a kernel in single, or a
// formula on the pattern.
#pragma once

#define ZTHALF_ROOTS(X)                 \
  X(sqrt, inQuickLanes<zthalf::sqrtOf>) \
  X(rsqrt, inQuickLanes<zthalf::rsqrtOf>)

#define ZTHALF_EXPONENTIALS(X)   \
  X(exp, inLanes<zthalf::expOf>) \
  X(expm1, byKernel<qsl_scalar::expm1Single>)

#define ZTHALF_LOGARITHMS(X)                  \
  X(log, inLanes<zthalf::logOf>)              \
  X(log1p, byKernel<qsl_scalar::log1pSingle>) \
  X(log2, byKernel<qsl_scalar::log2Single>)   \
  X(log10, byKernel<qsl_scalar::log10Single>)

#define ZTHALF_TRIGONOMETRIC_FUNCTIONS(X)     \
  X(sin, byKernel<qsl_scalar::sinSingle>)     \
  X(cos, byKernel<qsl_scalar::cosSingle>)     \
  X(tan, byKernel<qsl_scalar::tanSingle>)     \
  X(sinpi, byKernel<qsl_scalar::sinpiSingle>) \
  X(cospi, byKernel<qsl_scalar::cospiSingle>) \
  X(asin, byKernel<qsl_scalar::asinSingle>)   \
  X(acos, byKernel<qsl_scalar::acosSingle>)   \
  X(atan, byKernel<qsl_scalar::atanSingle>)

#define ZTHALF_HYPERBOLIC_FUNCTIONS(X)        \
  X(sinh, byKernel<qsl_scalar::sinhSingle>)   \
  X(cosh, byKernel<qsl_scalar::coshSingle>)   \
  X(tanh, byKernel<qsl_scalar::tanhSingle>)   \
  X(asinh, byKernel<qsl_scalar::asinhSingle>) \
  X(acosh, byKernel<qsl_scalar::acoshSingle>) \
  X(atanh, byKernel<qsl_scalar::atanhSingle>)

#define ZTHALF_ELEMENTARY_FUNCTIONS(X) \
  ZTHALF_ROOTS(X)                      \
  ZTHALF_EXPONENTIALS(X)               \
  ZTHALF_LOGARITHMS(X)                 \
  ZTHALF_TRIGONOMETRIC_FUNCTIONS(X)    \
  ZTHALF_HYPERBOLIC_FUNCTIONS(X)

// These have a table too, but a body each for a loop and for one value alone: functors/power_functors.h and
// power_of_halves.cpp.
#define ZTHALF_POWERS_OF_A_CONSTANT(X) X(pow2) X(pow10)
