// The real unary functions whose large arrays read a result table: X(function). A name is that of half_scalar, and
// name##Ftor is its functor; naming a function here is all it takes for a family to have its table.
// Internal: promises nothing to users of the library.
#pragma once

#define ZTHALF_ROOT_RESULT_TABLES(X) X(sqrt) X(rsqrt)
#define ZTHALF_EXPONENTIAL_RESULT_TABLES(X) X(exp) X(expm1) X(pow2) X(pow10)
#define ZTHALF_LOGARITHM_RESULT_TABLES(X) X(log) X(log1p) X(log2) X(log10)
#define ZTHALF_TRIGONOMETRIC_RESULT_TABLES(X) X(sin) X(cos) X(tan) X(sinpi) X(cospi) X(asin) X(acos) X(atan)
#define ZTHALF_HYPERBOLIC_RESULT_TABLES(X) X(sinh) X(cosh) X(tanh) X(asinh) X(acosh) X(atanh)

#define ZTHALF_RESULT_TABLES(X)         \
  ZTHALF_ROOT_RESULT_TABLES(X)          \
  ZTHALF_EXPONENTIAL_RESULT_TABLES(X)   \
  ZTHALF_LOGARITHM_RESULT_TABLES(X)     \
  ZTHALF_TRIGONOMETRIC_RESULT_TABLES(X) \
  ZTHALF_HYPERBOLIC_RESULT_TABLES(X)
