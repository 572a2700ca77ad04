// min and max: of two arrays, of whole arrays, and along dimensions, with and without the position of the winner.
#pragma once

#include <complex>

#include "zthalf/detail/export.h"
#include "zthalf/float_type.h"
#include "zthalf/half_t.h"

/// min and max. What holds for all of them:
///
/// Real elements. Where NaN wins, the first NaN is the result, otherwise the first of the smallest or largest elements.
/// Where NaNs are omitted, the result is the first of the smallest or largest numbers, and the last NaN if there is
/// nothing else. -0 and +0 are equal, so the first of them is kept. A NaN result is the quiet NaN with its sign.
///
/// Complex elements are ordered by length, then by angle from -pi to pi, and where rounding makes those equal, by their
/// parts. One whose length is a NaN counts as a NaN; (infinity, NaN) is one. Of equal elements the first is kept, and
/// of nothing but NaNs the first, omitted or not.
namespace half_vector {

/// c = the smaller (minBinOp) or larger (maxBinOp) element of a and b, with implicit expansion; shapes, overlap and
/// errors are those of plus in half_vector.h. typeA, complexA and typeB, complexB state the element types: at least one
/// operand is a half or complex half. A typeA of FloatTypeSingle or FloatTypeDouble says that b is half, and typeB is
/// not looked at. c is half, or complex half where an operand is complex. Another number in typeA, or in typeB where it
/// is looked at, does nothing at all.
///
/// The operands are compared in the wider of their types, a real one beside a complex one with an imaginary part of +0,
/// and only the one that is kept is rounded to half. Equal elements give the one of a. Of two omitted real NaNs b's is
/// kept. In complex results half parts are kept bit for bit, those of NaNs too.
ZTHALF_API void minBinOp(void* a, void* b, void* c, unsigned long na, unsigned long ndimsA, unsigned long const* dimsA,
                         unsigned long nb, unsigned long ndimsB, unsigned long const* dimsB, unsigned long nc,
                         unsigned long ndimsC, unsigned long const* dimsC, FloatTypeEnum typeA, FloatTypeEnum typeB,
                         bool complexA, bool complexB, bool omitNaN);
ZTHALF_API void maxBinOp(void* a, void* b, void* c, unsigned long na, unsigned long ndimsA, unsigned long const* dimsA,
                         unsigned long nb, unsigned long ndimsB, unsigned long const* dimsB, unsigned long nc,
                         unsigned long ndimsC, unsigned long const* dimsC, FloatTypeEnum typeA, FloatTypeEnum typeB,
                         bool complexA, bool complexB, bool omitNaN);

/// The smallest or largest element of n contiguous ones, NaN winning; with the index, counted from 1, in *index. dst
/// and index are one element each. The array must not be empty: src[0] is read whatever n is, and becomes the result of
/// n = 0, with an index of 0.
ZTHALF_API void minSimpleReduce(half_t* src, half_t* dst, unsigned long n);
ZTHALF_API void minSimpleReduce(std::complex<half_t>* src, std::complex<half_t>* dst, unsigned long n);
ZTHALF_API void maxSimpleReduce(half_t* src, half_t* dst, unsigned long n);
ZTHALF_API void maxSimpleReduce(std::complex<half_t>* src, std::complex<half_t>* dst, unsigned long n);
ZTHALF_API void minSimpleReduceWithIndex(half_t* src, half_t* dst, double* index, unsigned long n);
ZTHALF_API void minSimpleReduceWithIndex(std::complex<half_t>* src, std::complex<half_t>* dst, double* index,
                                         unsigned long n);
ZTHALF_API void maxSimpleReduceWithIndex(half_t* src, half_t* dst, double* index, unsigned long n);
ZTHALF_API void maxSimpleReduceWithIndex(std::complex<half_t>* src, std::complex<half_t>* dst, double* index,
                                         unsigned long n);

/// The smallest or largest elements of src along dimensions: half_t elements, or std::complex<half_t> where isComplex
/// says so, in src and dst alike.
///
/// dims[0] to dims[ndims - 1] are the sizes in memory order, first one fastest, and kept and reduced dimensions take
/// turns: neighbours of one kind are given as one. The first dimension is reduced where firstReduced is true, otherwise
/// it is kept. dst gets one element for each combination of the kept dimensions, the first of them fastest. A single
/// dimension is reduced whatever firstReduced says, and must not be empty, as above. dst must not overlap src. "First"
/// and "last" in the rules above count the elements of one output in memory order.
///
/// Of several dimensions a reduced one may have size 0: nothing is read, and each output is what any element would
/// replace. That is Infinity for min and -Infinity for max, of complex elements (-Infinity, 0) and (0, 0), and a NaN,
/// with an imaginary part of 0, where NaNs are omitted; the index is 0.
///
/// Up to 1024 outputs are computed on the calling thread, more on several, and a large array or column on several too;
/// the results do not depend on it. Working arrays are allocated: a failure to get them throws std::bad_alloc.
ZTHALF_API void minUnaryOp(void* src, void* dst, unsigned long ndims, unsigned long* dims, bool firstReduced,
                           bool omitNaN, bool isComplex);
ZTHALF_API void maxUnaryOp(void* src, void* dst, unsigned long ndims, unsigned long* dims, bool firstReduced,
                           bool omitNaN, bool isComplex);

/// The same with the index of each winner, counted from 1: where linear is true its position in src, otherwise its
/// position among the elements of its output. Of a single dimension the two are the same.
ZTHALF_API void minUnaryOpWithIndex(void* src, void* dst, double* index, unsigned long ndims, unsigned long* dims,
                                    bool firstReduced, bool omitNaN, bool isComplex, bool linear);
ZTHALF_API void maxUnaryOpWithIndex(void* src, void* dst, double* index, unsigned long ndims, unsigned long* dims,
                                    bool firstReduced, bool omitNaN, bool isComplex, bool linear);

}  // namespace half_vector
