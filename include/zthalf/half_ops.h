// The operations behind the table, as templates on element types.
#pragma once

#include <complex>

#include "zthalf/detail/export.h"
#include "zthalf/half_blas.h"
#include "zthalf/half_t.h"

/// What the entries of half_ptr.h point to. The templates are declared here and instantiated in the library for the
/// element types of the table only; another instance does not link. Arguments, results and overlap are those of the
/// half_vector function of the same name, with fp16binary_t for half_t.
namespace half {

template <class From, class To>
ZTHALF_API void convert(From* src, To* dst, unsigned long n);

template <class T>
ZTHALF_API void uminus(T* src, T* dst, unsigned long n);
template <class T>
ZTHALF_API void abs(T* src, typename realType<T>::type* dst, unsigned long n);
template <class T>
ZTHALF_API void cplxReal(std::complex<T>* src, T* dst, unsigned long n);
template <class T>
ZTHALF_API void cplxImag(std::complex<T>* src, T* dst, unsigned long n);
template <class T>
ZTHALF_API void cplxConj(std::complex<T>* src, std::complex<T>* dst, unsigned long n);
template <class T>
ZTHALF_API void realToComplex(T* src, std::complex<T>* dst, unsigned long n);
template <class T>
ZTHALF_API void sign(T* src, T* dst, unsigned long n);

template <class T>
ZTHALF_API void isnan(T* src, bool* dst, unsigned long n);
template <class T>
ZTHALF_API void isinf(T* src, bool* dst, unsigned long n);
template <class T>
ZTHALF_API void isfinite(T* src, bool* dst, unsigned long n);

template <class T>
ZTHALF_API void eps(T* src, typename realType<T>::type* dst, unsigned long n);

ZTHALF_API void ceil(fp16binary_t* src, fp16binary_t* dst, unsigned long n);
ZTHALF_API void fix(fp16binary_t* src, fp16binary_t* dst, unsigned long n);
ZTHALF_API void floor(fp16binary_t* src, fp16binary_t* dst, unsigned long n);
ZTHALF_API void round(fp16binary_t* src, fp16binary_t* dst, unsigned long n);

template <class T>
ZTHALF_API void exp(T* src, T* dst, unsigned long n);
template <class T>
ZTHALF_API void expm1(T* src, T* dst, unsigned long n);
template <class T>
ZTHALF_API void pow2(T* src, T* dst, unsigned long n);
template <class T>
ZTHALF_API void pow10(T* src, T* dst, unsigned long n);

ZTHALF_API void sqrt(fp16binary_t* src, fp16binary_t* dst, unsigned long n);
ZTHALF_API void rsqrt(fp16binary_t* src, fp16binary_t* dst, unsigned long n);
ZTHALF_API void log(fp16binary_t* src, fp16binary_t* dst, unsigned long n);
ZTHALF_API void log1p(fp16binary_t* src, fp16binary_t* dst, unsigned long n);
ZTHALF_API void log2(fp16binary_t* src, fp16binary_t* dst, unsigned long n);
ZTHALF_API void log10(fp16binary_t* src, fp16binary_t* dst, unsigned long n);

template <class T>
ZTHALF_API void sin(T* src, T* dst, unsigned long n);
template <class T>
ZTHALF_API void sinpi(T* src, T* dst, unsigned long n);
template <class T>
ZTHALF_API void cos(T* src, T* dst, unsigned long n);
template <class T>
ZTHALF_API void cospi(T* src, T* dst, unsigned long n);
template <class T>
ZTHALF_API void tan(T* src, T* dst, unsigned long n);
template <class T>
ZTHALF_API void atan(T* src, T* dst, unsigned long n);
template <class T>
ZTHALF_API void sinh(T* src, T* dst, unsigned long n);
template <class T>
ZTHALF_API void cosh(T* src, T* dst, unsigned long n);
template <class T>
ZTHALF_API void tanh(T* src, T* dst, unsigned long n);
template <class T>
ZTHALF_API void asinh(T* src, T* dst, unsigned long n);
template <class T>
ZTHALF_API void acosh(T* src, T* dst, unsigned long n);

ZTHALF_API void asin(fp16binary_t* src, fp16binary_t* dst, unsigned long n);
ZTHALF_API void acos(fp16binary_t* src, fp16binary_t* dst, unsigned long n);
ZTHALF_API void atanh(fp16binary_t* src, fp16binary_t* dst, unsigned long n);

/// Complex forms of the functions that are no templates, and real elements with a complex result.
ZTHALF_API void cplxSqrt(std::complex<fp16binary_t>* src, std::complex<fp16binary_t>* dst, unsigned long n);
ZTHALF_API void cplxLog(std::complex<fp16binary_t>* src, std::complex<fp16binary_t>* dst, unsigned long n);
ZTHALF_API void cplxLog1p(std::complex<fp16binary_t>* src, std::complex<fp16binary_t>* dst, unsigned long n);
ZTHALF_API void cplxLog2(std::complex<fp16binary_t>* src, std::complex<fp16binary_t>* dst, unsigned long n);
ZTHALF_API void cplxLog10(std::complex<fp16binary_t>* src, std::complex<fp16binary_t>* dst, unsigned long n);
ZTHALF_API void cplxAsin(std::complex<fp16binary_t>* src, std::complex<fp16binary_t>* dst, unsigned long n);
ZTHALF_API void cplxAcos(std::complex<fp16binary_t>* src, std::complex<fp16binary_t>* dst, unsigned long n);
ZTHALF_API void cplxAtanh(std::complex<fp16binary_t>* src, std::complex<fp16binary_t>* dst, unsigned long n);
ZTHALF_API void sqrt(fp16binary_t* src, std::complex<fp16binary_t>* dst, unsigned long n);
ZTHALF_API void log(fp16binary_t* src, std::complex<fp16binary_t>* dst, unsigned long n);
ZTHALF_API void log1p(fp16binary_t* src, std::complex<fp16binary_t>* dst, unsigned long n);
ZTHALF_API void log2(fp16binary_t* src, std::complex<fp16binary_t>* dst, unsigned long n);
ZTHALF_API void log10(fp16binary_t* src, std::complex<fp16binary_t>* dst, unsigned long n);
ZTHALF_API void asin(fp16binary_t* src, std::complex<fp16binary_t>* dst, unsigned long n);
ZTHALF_API void acos(fp16binary_t* src, std::complex<fp16binary_t>* dst, unsigned long n);
ZTHALF_API void atanh(fp16binary_t* src, std::complex<fp16binary_t>* dst, unsigned long n);

/// The stopping forms, half_vector::sqrtWithEarlyExit and so on.
ZTHALF_API bool sqrtEarlyExit(fp16binary_t* src, fp16binary_t* dst, unsigned long n);
ZTHALF_API bool logEarlyExit(fp16binary_t* src, fp16binary_t* dst, unsigned long n);
ZTHALF_API bool log1pEarlyExit(fp16binary_t* src, fp16binary_t* dst, unsigned long n);
ZTHALF_API bool log2EarlyExit(fp16binary_t* src, fp16binary_t* dst, unsigned long n);
ZTHALF_API bool log10EarlyExit(fp16binary_t* src, fp16binary_t* dst, unsigned long n);
ZTHALF_API bool asinEarlyExit(fp16binary_t* src, fp16binary_t* dst, unsigned long n);
ZTHALF_API bool acosEarlyExit(fp16binary_t* src, fp16binary_t* dst, unsigned long n);
ZTHALF_API bool atanhEarlyExit(fp16binary_t* src, fp16binary_t* dst, unsigned long n);

/// The two-output forms of half_vector::log2.
ZTHALF_API void log2TwoOut(fp16binary_t* src, fp16binary_t* fraction, fp16binary_t* exponent, unsigned long n);
ZTHALF_API void cplxLog2TwoOut(std::complex<fp16binary_t>* src, fp16binary_t* fraction, fp16binary_t* exponent,
                               unsigned long n);

/// Whether every imaginary part is a zero of either sign; true for an empty array.
ZTHALF_API bool isImagZero(std::complex<unsigned short>* src, unsigned long n);

/// Whether no element, or no part of one, is an infinity or a NaN; true for an empty array. For T fp16binary_t or
/// std::complex of it. More than 2048 elements are scanned on several threads.
template <class T>
ZTHALF_API bool isWholeArrayFinite(T* src, unsigned long n);

/// The operations with implicit expansion, each over the pairs of element types of its rows in detail/entries.h.
#define ZTHALF_DECLARE_EXPANDING(op)                                                                                \
  template <class Left, class Right, class Out>                                                                     \
  ZTHALF_API void op(Left* a, Right* b, Out* c, unsigned long na, unsigned long ndimsA, unsigned long const* dimsA, \
                     unsigned long nb, unsigned long ndimsB, unsigned long const* dimsB, unsigned long nc,          \
                     unsigned long ndimsC, unsigned long const* dimsC);
ZTHALF_DECLARE_EXPANDING(plus)
ZTHALF_DECLARE_EXPANDING(minus)
ZTHALF_DECLARE_EXPANDING(times)
ZTHALF_DECLARE_EXPANDING(rdivide)
ZTHALF_DECLARE_EXPANDING(ldivide)
ZTHALF_DECLARE_EXPANDING(hypot)
ZTHALF_DECLARE_EXPANDING(atan2)
ZTHALF_DECLARE_EXPANDING(realToComplex)
ZTHALF_DECLARE_EXPANDING(min)
ZTHALF_DECLARE_EXPANDING(max)
ZTHALF_DECLARE_EXPANDING(minOmitNaN)
ZTHALF_DECLARE_EXPANDING(maxOmitNaN)
#undef ZTHALF_DECLARE_EXPANDING

/// On bare patterns: an unsigned short operand is a half, and so is every result.
template <class Left, class Right>
ZTHALF_API void mod(Left* a, Right* b, unsigned short* c, unsigned long na, unsigned long ndimsA,
                    unsigned long const* dimsA, unsigned long nb, unsigned long ndimsB, unsigned long const* dimsB,
                    unsigned long nc, unsigned long ndimsC, unsigned long const* dimsC);
template <class Left, class Right>
ZTHALF_API void rem(Left* a, Right* b, unsigned short* c, unsigned long na, unsigned long ndimsA,
                    unsigned long const* dimsA, unsigned long nb, unsigned long ndimsB, unsigned long const* dimsB,
                    unsigned long nc, unsigned long ndimsC, unsigned long const* dimsC);

/// The comparisons, on the pairs of element types of their rows.
#define ZTHALF_DECLARE_COMPARISON(op)                                                                                \
  template <class Left, class Right>                                                                                 \
  ZTHALF_API void op(Left* a, Right* b, bool* c, unsigned long na, unsigned long ndimsA, unsigned long const* dimsA, \
                     unsigned long nb, unsigned long ndimsB, unsigned long const* dimsB, unsigned long nc,           \
                     unsigned long ndimsC, unsigned long const* dimsC);
ZTHALF_DECLARE_COMPARISON(eq)
ZTHALF_DECLARE_COMPARISON(ne)
ZTHALF_DECLARE_COMPARISON(gt)
ZTHALF_DECLARE_COMPARISON(ge)
ZTHALF_DECLARE_COMPARISON(lt)
ZTHALF_DECLARE_COMPARISON(le)
#undef ZTHALF_DECLARE_COMPARISON

/// a * b + c, on the triples of element types of its rows.
template <class A, class B, class C, class Out>
ZTHALF_API void fma(A* a, B* b, C* c, Out* d, unsigned long na, unsigned long ndimsA, unsigned long const* dimsA,
                    unsigned long nb, unsigned long ndimsB, unsigned long const* dimsB, unsigned long nc,
                    unsigned long ndimsC, unsigned long const* dimsC, unsigned long nd, unsigned long ndimsD,
                    unsigned long const* dimsD);

/// The matrix product, on the pairs of element types of its rows.
template <class Left, class Right, class Out>
ZTHALF_API void mtimes(Left* a, Right* b, Out* c, unsigned long m, unsigned long k, unsigned long n);

}  // namespace half
