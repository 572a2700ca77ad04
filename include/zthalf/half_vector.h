// Array operations on half data: the interface that most callers want.
#pragma once

#include "zthalf/detail/element_types.h"
#include "zthalf/detail/entries_begin.h"
#include "zthalf/detail/export.h"
#include "zthalf/float_type.h"
#include "zthalf/half_blas.h"
#include "zthalf/half_extrema.h"

/// Operations on arrays of half_t and std::complex<half_t>.
///
/// Common to all of them, where a function does not say otherwise:
/// - The caller owns every buffer, and the output has room for all results. Counts are numbers of elements. Nothing is
///   checked: neither pointers nor counts nor shapes. A count of 0 reads and writes nothing, and the pointers may then
///   be null.
/// - Element i of the output is computed from element i of the input exactly as the scalar function of half_scalar.h
///   computes it, bit for bit, whatever the processor, the array's length or its alignment.
/// - Elements are processed in ascending order. Source and destination may be the same array if their elements have the
///   same size; where they overlap in another way, each element is read after the earlier ones have been written.
/// - Work is done on the calling thread; large reductions take several. Calls on different arrays may run at the same
///   time.
/// - There are no errors and nothing is thrown: NaN and infinity are ordinary values.
namespace half_vector {

#define ZTHALF_DECLARE_UNARY(entry, facade, In, Out, ...) \
  ZTHALF_API void facade(element::In* src, element::Out* dst, unsigned long n);
#define ZTHALF_DECLARE_EARLY_EXIT(entry, facade, In, Out, function) \
  ZTHALF_API bool facade(element::In* src, element::Out* dst, unsigned long n);
#define ZTHALF_DECLARE_TWO_OUT(entry, facade, In, Out, function) \
  ZTHALF_API void facade(element::In* src, element::Out* first, element::Out* second, unsigned long n);
#define ZTHALF_DECLARE_QUERY(entry, facade, In, instance) ZTHALF_API bool facade(element::In* src, unsigned long n);
#define ZTHALF_DECLARE_BINARY(op, Left, Right, Out)                                                                  \
  ZTHALF_API void op(element::Left* a, element::Right* b, element::Out* c, unsigned long na, unsigned long ndimsA,   \
                     unsigned long const* dimsA, unsigned long nb, unsigned long ndimsB, unsigned long const* dimsB, \
                     unsigned long nc, unsigned long ndimsC, unsigned long const* dimsC);
#define ZTHALF_DECLARE_COMPARISON(entry, op, Left, Right)                                                            \
  ZTHALF_API void op(element::Left* a, element::Right* b, bool* c, unsigned long na, unsigned long ndimsA,           \
                     unsigned long const* dimsA, unsigned long nb, unsigned long ndimsB, unsigned long const* dimsB, \
                     unsigned long nc, unsigned long ndimsC, unsigned long const* dimsC);
#define ZTHALF_DECLARE_TERNARY(op, A, B, C, Out)                                                                     \
  ZTHALF_API void op(element::A* a, element::B* b, element::C* c, element::Out* d, unsigned long na,                 \
                     unsigned long ndimsA, unsigned long const* dimsA, unsigned long nb, unsigned long ndimsB,       \
                     unsigned long const* dimsB, unsigned long nc, unsigned long ndimsC, unsigned long const* dimsC, \
                     unsigned long nd, unsigned long ndimsD, unsigned long const* dimsD);
#define ZTHALF_DECLARE_PRODUCT(op, Left, Right, Out)                                                           \
  ZTHALF_API void op(element::Left* a, element::Right* b, element::Out* c, unsigned long m, unsigned long k, \
                     unsigned long n);

/// convertToHalf(T* src, half_t* dst, unsigned long n) and convertFromHalf(half_t* src, T* dst, unsigned long n), for T
/// any of float, double, unsigned char, signed char, unsigned short, short, unsigned int, int, unsigned long long,
/// long long and bool.
///
/// To half: nearest, ties to even, in one rounding from every type; from 65520 on an infinity; a NaN becomes 0x7E00
/// with its sign. A bool element is a byte, and every byte but 0 gives 1.0.
/// From half: float and double are exact, a NaN keeping its payload. An integer is rounded to nearest with ties away
/// from zero and held in its type's range; infinities give the range's ends, a NaN gives 0. A bool is true for
/// everything but the two zeros, a NaN included.
ZTHALF_CONVERSION_ENTRIES(ZTHALF_DECLARE_UNARY)

/// Sign, magnitude and parts: bit work on the patterns but for abs and sign of complex elements; NaNs keep their
/// payload in bit work.
///
/// uminus (real or complex): the sign bit flipped, NaN included; the imaginary part of a complex result is never -0.
/// abs: the sign bit cleared; of a complex element sqrt(re^2 + im^2), the root of the exact sum rounded once, where a
/// NaN keeps its sign, the real part's before the imaginary part's, also beside an infinity. real, imag: the parts of a
/// complex array. conj: the imaginary part negated, but never -0. realToComplex: the source as real part, an imaginary
/// part of +0. sign: -1, +0 or +1; a zero of either sign gives +0, a NaN gives itself. Of a complex element z / |z|,
/// each part rounded once; with an imaginary part of zero the sign of the real part, a NaN made quiet, and +0.
ZTHALF_BITWISE_ENTRIES(ZTHALF_DECLARE_UNARY)

/// isnan, isinf (real or complex): whether the element, or either of its parts, is a NaN or an infinity.
/// isfinite: whether the element, or both of its parts, are neither.
ZTHALF_CLASSIFICATION_ENTRIES(ZTHALF_DECLARE_UNARY)

/// eps: the distance from |x| to the next larger half, at least 2^-24; 0x7E00 for infinities and NaNs.
/// Of a complex element |x| is its magnitude as abs gives it.
ZTHALF_SPACING_ENTRIES(ZTHALF_DECLARE_UNARY)

/// ceil, floor, fix (towards zero), round (to nearest, ties away from zero). A zero result keeps the sign of the
/// source; infinities and NaNs come back unchanged.
ZTHALF_ROUNDING_ENTRIES(ZTHALF_DECLARE_UNARY)

/// sqrt, rsqrt (real): -0 counts as +0, a negative number gives the NaN 0x7E00.
ZTHALF_ROOT_ENTRIES(ZTHALF_DECLARE_UNARY)

/// exp, expm1, pow2 and pow10 (2 and 10 to the power of the element), real.
ZTHALF_EXPONENTIAL_ENTRIES(ZTHALF_DECLARE_UNARY)

/// log, log1p, log2, log10 (real): outside the domain the result is the NaN 0xFE00.
ZTHALF_LOGARITHM_ENTRIES(ZTHALF_DECLARE_UNARY)

/// sin, cos, tan, and sinpi, cospi, the sine and cosine of pi times the element, real. Infinities and NaNs give the NaN
/// 0xFE00.
ZTHALF_TRIGONOMETRIC_ENTRIES(ZTHALF_DECLARE_UNARY)
ZTHALF_ARC_TANGENT_ENTRIES(ZTHALF_DECLARE_UNARY)

/// sinh, cosh, tanh, asinh, acosh, real. acosh below 1 gives the NaN 0xFE00; tanh of a NaN gives 0x7E00.
ZTHALF_HYPERBOLIC_ENTRIES(ZTHALF_DECLARE_UNARY)

/// asin, acos, atanh, real: outside [-1, 1] the result is the NaN 0xFE00.
ZTHALF_BOUNDED_DOMAIN_ENTRIES(ZTHALF_DECLARE_UNARY)

/// sqrt, exp, expm1, pow2, pow10, log, log1p, log2, log10, sin, cos, tan, sinpi, cospi, asin, acos, atan, sinh, cosh,
/// tanh, asinh, acosh and atanh of complex elements, as the functions of half_scalar.h on std::complex<half_t>. There
/// is no rsqrt of them.
ZTHALF_COMPLEX_TEMPLATE_ENTRIES(ZTHALF_DECLARE_UNARY)
ZTHALF_COMPLEX_FUNCTION_ENTRIES(ZTHALF_DECLARE_UNARY)

/// sqrt, log, log1p, log2, log10, asin, acos and atanh of real elements with a complex output, for arrays that leave
/// the real domain: of x what the complex function gives of (x, +0). Within the domain that is the real result and +0.
ZTHALF_REAL_TO_COMPLEX_ENTRIES(ZTHALF_DECLARE_UNARY)

/// The same functions for a caller that wants to know when a result would not be real: sqrtWithEarlyExit,
/// logWithEarlyExit, log1pWithEarlyExit, log2WithEarlyExit, log10WithEarlyExit, asinWithEarlyExit, acosWithEarlyExit,
/// atanhWithEarlyExit.
///
/// The loop stops at the first element outside the real domain and returns false: that element's place in the output
/// and all later ones are left as they were, and the results before it are finished. It returns true when there is no
/// such element. Outside are the negative numbers, for log1p those below -1, -infinity included; -0, a NaN of either
/// sign, and for log1p -1 itself are inside. For asin, acos and atanh all numbers beyond 1 and below -1 are outside,
/// infinities included; 1, -1 and the NaNs are inside.
ZTHALF_ROOT_EARLY_EXIT_ENTRIES(ZTHALF_DECLARE_EARLY_EXIT)
ZTHALF_LOGARITHM_EARLY_EXIT_ENTRIES(ZTHALF_DECLARE_EARLY_EXIT)
ZTHALF_BOUNDED_DOMAIN_EARLY_EXIT_ENTRIES(ZTHALF_DECLARE_EARLY_EXIT)

/// log2(src, fraction, exponent, n), real or complex source: src[i] = fraction[i] * 2^exponent[i], exact, with
/// |fraction| in [0.5, 1) and a whole exponent. Zeros, infinities and NaNs are their own fraction, a NaN made quiet,
/// with an exponent of +0. Of a complex element only the real part is looked at.
ZTHALF_TWO_OUT_ENTRIES(ZTHALF_DECLARE_TWO_OUT)

/// isImagZero: whether every imaginary part is a zero of either sign; true for an empty array. More than 2048 elements
/// are scanned on several threads.
ZTHALF_QUERY_ENTRIES(ZTHALF_DECLARE_QUERY)

/// plus, minus, times, rdivide (a / b), ldivide (b / a), hypot, atan2 (the ordinate first), mod, rem, and realToComplex
/// of a real and an imaginary part: two arrays, element by element with implicit expansion.
///
/// Operands: halves, floats or doubles, real or complex, one of them made of halves at least; atan2, mod, rem and
/// realToComplex take real ones only. The result is half, complex half if an operand is complex. Each operation runs in
/// the wider of the two part types, at least in float, on operands taken there exactly, and its result is rounded to
/// half once. (A complex product beside floats, and hypot beside a float, run in double.) Two halves give what half_t's
/// operator or the half_scalar function of that name gives; two complex halves what the operator on
/// std::complex<half_t> gives.
///
/// Zero parts: a zero part of a complex factor takes no part in a product, and a zero part of a dividend none in a
/// division by zero, so infinities leave no NaN there. A sum with a real operand adds +0 to the imaginary part; a
/// difference keeps the left operand's imaginary part as it is, and takes a right one's from +0. A real divided by an
/// imaginary number has a zero real part with the sign of the divisor. hypot of a complex operand takes its magnitude,
/// and then has an imaginary part of +0.
///
/// NaN: a result's NaN is 0x7E00 with the sign of the operand that it comes from, positive where the operation itself
/// is invalid. With two NaN operands a signalling one goes before a quiet one, then the left one before the right one;
/// sums and products of two halves go by the rule of half_t's operators. atan2 and mod give 0xFE00, as their scalar
/// functions state.
///
/// Each array is described by its number of elements, its number of dimensions and their sizes, first dimension fastest
/// in memory. In each dimension the sizes of the two operands agree or one of them is 1, a missing dimension counting
/// as 1, and the output has the larger size; such an operand's elements are repeated along that dimension. These shapes
/// must be consistent: nothing is checked. Where both operands have as many elements as the output they meet one by
/// one, whatever their dimensions; one element meets every element of the other side. In these two cases the output may
/// be one of the operands. In the general case it must not overlap them, and small working arrays are allocated: a
/// failure to get them throws std::bad_alloc, or std::length_error for an absurd number of dimensions.
ZTHALF_BINARY_ENTRIES(ZTHALF_DECLARE_BINARY)
ZTHALF_REMAINDER_ENTRIES(ZTHALF_DECLARE_BINARY)

/// eq, ne, gt, ge, lt, le: comparisons of two arrays with implicit expansion, shapes as for plus. The left operand is
/// an array of half_t or std::complex<half_t>; the right one is of halves, floats, doubles, integers of 8 to 64 bits,
/// or complex numbers made of any of these. bool stands on either side of a real or complex half. In a bool operand
/// every byte but zero is true; in the output there are only 0 and 1.
///
/// Numbers are compared by their values, exactly: no operand is rounded to half, and a bool counts as 1 or 0. The two
/// zeros are equal. With a NaN every answer is false, but that of ne is true.
/// eq and ne of complex numbers look at both parts, a real operand's imaginary part being zero. gt, ge, lt, le look at
/// the real parts alone: an imaginary part changes nothing, even if it is a NaN.
ZTHALF_COMPARISON_ENTRIES(ZTHALF_DECLARE_COMPARISON)

/// fma(a, b, c, d): d = a * b + c with one effective rounding, for arrays of half_t, float and double in all mixtures,
/// with implicit expansion. The output has the narrowest of the three types.
///
/// Where neither a nor b is double, the product is exact and the result is the correctly rounded one as long as it is
/// in the output type's normal range and the sum loses no more than its last bit in the working type: float for two
/// halves beside a half or a float, otherwise double. Where a or b is double, product and sum are fused in double and
/// then rounded to the output type. A zero sum is +0 unless both terms are -0. An invalid operation gives the positive
/// default NaN; of several NaN operands the product's comes before c's, unless c's alone signals.
///
/// Each array is described as for plus. Here the sizes of operands that have more than one element are compared, and
/// not only their counts: where all such operands have one shape they meet one by one, a single element meeting every
/// element of the others, and the output may be one of the operands. All other shapes are expanded, with working arrays
/// and failures as for plus.
ZTHALF_FMA_ENTRIES(ZTHALF_DECLARE_TERNARY)

/// mtimes(a, b, c, m, k, n): the matrix product c = a * b of an m by k and a k by n matrix, dense and column by column:
/// element (i, j) of c is c[i + j * m], those of a and b are a[i + l * m] and b[l + j * k]. One operand is an array of
/// halves or complex halves, the other one of halves, floats or doubles, real or complex; c is half, or complex half
/// where an operand is complex. c must not overlap a or b.
///
/// Products and sums are made in float, in double where an operand is double, each rounded by itself, and an output is
/// rounded to half once at the end: only there can it overflow a half. The inner dimension is taken in stretches of
/// 256. In each of them eight sums are made, the t-th one of the products with index t, t + 8, t + 16, ..., beginning
/// with +0; then they are added to the output, the 0th one first, the output being the second operand. That order is
/// part of the result, whatever the processor and the sizes of the matrices; columns of c do not depend on each other.
///
/// A complex product has both parts of both factors, a real operand with an imaginary part of +0: (p r - q s) + (q r +
/// p s) i. Where both parts come out as NaNs beside an infinite factor or product, they are made anew as infinities in
/// the way of the C standard's Annex G. Every NaN goes by the order of operands as written here.
///
/// k = 0 gives +0 everywhere, and neither a nor b is read. k = 1 is an outer product: c is times(a, b, ...) with shapes
/// m by 1 and 1 by n, so that -0 stays, and complex numbers multiply as they do there. m = 0 or n = 0 writes nothing.
///
/// Working memory grows with the sizes up to 4 MiB (single; twice that for double, and again for complex), of which
/// small products take none but a little of the stack: a failure to get it throws std::bad_alloc before c is written.
ZTHALF_PRODUCT_ENTRIES(ZTHALF_DECLARE_PRODUCT)

#undef ZTHALF_DECLARE_UNARY
#undef ZTHALF_DECLARE_EARLY_EXIT
#undef ZTHALF_DECLARE_TWO_OUT
#undef ZTHALF_DECLARE_QUERY
#undef ZTHALF_DECLARE_BINARY
#undef ZTHALF_DECLARE_COMPARISON
#undef ZTHALF_DECLARE_TERNARY
#undef ZTHALF_DECLARE_PRODUCT

/// The distance of a[i] and b[i] in units in the last place of half, at the smaller exponent of the two: out[i] as
/// half_scalar::ulp tells. Operands that are not half are compared at full width; where neither is, the unit and the
/// question whether one is infinite are those of the halves that they round to. For complex operands the larger one of
/// the distances of the real and of the imaginary parts. All three arrays have n elements; there is no expansion.
ZTHALF_API void ulp(half_t* a, half_t* b, double* out, unsigned long n);
ZTHALF_API void ulp(half_t* a, float* b, double* out, unsigned long n);
ZTHALF_API void ulp(half_t* a, double* b, double* out, unsigned long n);
ZTHALF_API void ulp(float* a, half_t* b, double* out, unsigned long n);
ZTHALF_API void ulp(float* a, float* b, double* out, unsigned long n);
ZTHALF_API void ulp(float* a, double* b, double* out, unsigned long n);
ZTHALF_API void ulp(double* a, half_t* b, double* out, unsigned long n);
ZTHALF_API void ulp(double* a, float* b, double* out, unsigned long n);
ZTHALF_API void ulp(double* a, double* b, double* out, unsigned long n);
ZTHALF_API void ulp(std::complex<half_t>* a, std::complex<half_t>* b, double* out, unsigned long n);

/// sum, prod, mean: reduces src to its sums, products or means, the whole array or some of its dimensions.
///
/// Shape. `dims` has ndims sizes in memory order, first dimension fastest, in which reduced and kept dimensions take
/// turns; neighbours of one kind are merged into one before the call. With firstDimReduced dims[0] is a reduced one,
/// and ndims of 1 then reduces the whole array of dims[0] elements. Without it dims[0] is kept; ndims of 1 then reduces
/// nothing: each output is 0 + element, or 1 * element, so a sum turns -0 into +0. src has as many elements as the
/// product of all sizes, dst as many as the product of the kept ones, in the order of the kept dimensions. The two must
/// not overlap.
///
/// Types. With isComplex the elements are std::complex<half_t>. What dst holds and where the roundings fall:
///
///     outType            accumType          accumulator and output
///     FloatTypeDouble    any                double, unrounded; dst holds double or std::complex<double>
///     another            FloatTypeSingle    float, rounded to half once at the end
///     another            another            half: the result of every step is rounded to half
///
/// Order. The result is a function of the data and the shape, whatever the processor and the number of threads:
/// - With firstDimReduced each run of dims[0] neighbours is a tree. More than 256 elements are cut in the middle, the
///   first half being the shorter one, and the results of the halves are combined, left with right; up to 256 elements
///   are combined from first to last, beginning with 0 or 1. Where an output has several runs their trees are combined
///   from first to last, beginning with 0 or 1.
/// - Without it each output is one chain from its first element to its last, beginning with 0 or 1.
///
/// Complex sums are sums of the parts. Complex products with half accumulators are those of the operator * of complex
/// halves; in float and double a part that is zero takes no part in the product, so that no NaN comes from it and an
/// infinity, and the general case is rounded once in float, and fused in double.
///
/// A mean is the sum divided by the number of elements that went into it. The division is in double: a half sum's
/// quotient is rounded to half, that of a float sum to float and then to half. The mean of nothing is a NaN, 0x7E00 in
/// half, with an imaginary part of +0 if complex.
///
/// omitNaN. In a mean NaN elements, or complex ones with a NaN in either part, are left out of sum and count; a NaN
/// that the sum itself becomes stays. In sums and products each step looks at both of its operands: a NaN is dropped
/// for the other operand, two NaNs give 0 or 1. So a sum that has become a NaN, infinity minus infinity, is lost with
/// all that went into it when a next value comes; where that happens depends on the order stated above.
///
/// Without omitNaN one NaN makes the result a NaN. Its sign, and the payload of a double, is that of the first NaN in
/// the order of the additions, unless a signalling one comes later.
///
/// Nothing is reported. Dimensional forms allocate small working arrays: a failure to get them throws std::bad_alloc,
/// or std::length_error for an absurd number of dimensions. Large arrays are reduced on several threads.
ZTHALF_API void sum(void* src, void* dst, unsigned long ndims, unsigned long* dims, bool firstDimReduced,
                    bool isComplex, bool omitNaN, FloatTypeEnum accumType, FloatTypeEnum outType);
ZTHALF_API void prod(void* src, void* dst, unsigned long ndims, unsigned long* dims, bool firstDimReduced,
                     bool isComplex, bool omitNaN, FloatTypeEnum accumType, FloatTypeEnum outType);
ZTHALF_API void mean(void* src, void* dst, unsigned long ndims, unsigned long* dims, bool firstDimReduced,
                     bool isComplex, bool omitNaN, FloatTypeEnum accumType, FloatTypeEnum outType);

/// sumSimpleReduceHalf, sumSimpleReduceSingle, sumSimpleReduceDouble and the same for prod and mean: the whole array of
/// n elements, real or complex, NaNs kept, to *dst, which is double or std::complex<double> for the Double ones. They
/// allocate nothing of their own.
#define ZTHALF_DECLARE_SIMPLE_REDUCTION(entry, facade, function, In, Out, Accumulator) \
  ZTHALF_API void facade(element::In* src, element::Out* dst, unsigned long n);
ZTHALF_SIMPLE_REDUCTION_ENTRIES(ZTHALF_DECLARE_SIMPLE_REDUCTION)
#undef ZTHALF_DECLARE_SIMPLE_REDUCTION

}  // namespace half_vector

#include "zthalf/detail/entries_end.h"
