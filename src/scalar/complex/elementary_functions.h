// The elementary functions of one complex half: X(function, Function, body), a row for each.
//
// A row is all there is of a function beside its body. It gives half_scalar::function(z) in elementary_functions.cpp
// and cplxFunctionFtor, for the loops, in functors/complex_elementary_functors.h.
#pragma once

#define ZTHALF_COMPLEX_FUNCTIONS(X) \
  X(sqrt, Sqrt, sqrtOf)             \
  X(exp, Exp, expOf)                \
  X(expm1, Expm1, expm1Of)          \
  X(pow2, Pow2, pow2Of)             \
  X(pow10, Pow10, pow10Of)          \
  X(log, Log, logOf)                \
  X(log1p, Log1p, log1pOf)          \
  X(log2, Log2, log2Of)             \
  X(log10, Log10, log10Of)          \
  X(sin, Sin, sinOf)                \
  X(cos, Cos, cosOf)                \
  X(tan, Tan, tanOf)                \
  X(sinpi, SinPi, sinpiOf)          \
  X(cospi, CosPi, cospiOf)          \
  X(asin, Asin, asinOf)             \
  X(acos, Acos, acosOf)             \
  X(atan, Atan, atanOf)             \
  X(sinh, Sinh, sinhOf)             \
  X(cosh, Cosh, coshOf)             \
  X(tanh, Tanh, tanhOf)             \
  X(asinh, Asinh, asinhOf)          \
  X(acosh, Acosh, acoshOf)          \
  X(atanh, Atanh, atanhOf)

// The complex values of real functions, inside and outside of their real domains: X(function, body)
#define ZTHALF_REAL_TO_COMPLEX_FUNCTIONS(X) \
  X(sqrt, complexSqrtOf)                    \
  X(log, complexLogOf)                      \
  X(log1p, complexLog1pOf)                  \
  X(log2, complexLog2Of)                    \
  X(log10, complexLog10Of)                  \
  X(asin, complexAsinOf)                    \
  X(acos, complexAcosOf)                    \
  X(atanh, complexAtanhOf)
