// Half arrays as arrays of a host: making and inspecting them, and the host's array functions for half and other arrays
// alike.
#pragma once

#include "zthalf/detail/export.h"
#include "zthalf/half_t.h"
#include "zthalf/host/vq_array.h"

/// A half array is an object of the host's class "half" around an array that carries dimensions, flags and data: 16-bit
/// patterns, column by column, the parts of a complex element side by side in the one buffer. Everything here runs on
/// the calling thread, but for scans of more than 2048 elements, and locks nothing: two threads must not change one
/// array, or change it while the other reads. Arrays must not be null. What a host operation throws passes through.
namespace half {

/// Whether the array is an object of the class "half".
ZTHALF_API bool isVqArrayHalf(vqArray_tag const* array);
/// Whether the name is "half"; null is no name.
ZTHALF_API bool isHalfClassname(char const* name);
/// Whether a half or any other array has imaginary parts: both bits of vq_flags::complexNumeric.
ZTHALF_API bool isVqArrayComplex(vqArray_tag const* array);
/// Sets or clears vq_flags::complex of a half array and of the array inside. The data stays as it is.
ZTHALF_API void setComplexity(vqArray_tag* array, bool complex);

/// New half arrays, which the caller owns under the host's rules. The first two have the data that the host gives a new
/// array, the others whatever was in memory. count is the product of the dimensions; no dimension at all makes one
/// element.
///
/// createHalfMatrix alone looks whether the class "half" is there, and raises half::error::HalfPrecisionNotAvailable
/// (host_errors.h) if it is not; once it was there it does not look again. In the others the host finds out.
ZTHALF_API vqArray_tag* createHalfMatrix(unsigned long m, unsigned long n, bool complex);
ZTHALF_API vqArray_tag* createHalfArray(unsigned long ndims, unsigned long const* dims, bool complex);
ZTHALF_API vqArray_tag* createUninitHalfArray(unsigned long count, unsigned long ndims, unsigned long const* dims,
                                              bool complex);
ZTHALF_API vqArray_tag* createUninitHalfMatrix(unsigned long m, unsigned long n, bool complex);

/// The elements of a half array. Writing through the pointer is for who knows that the data is not shared.
ZTHALF_API half_t* getHalfPointer(vqArray_tag const* array);
/// Gives a half array a buffer that came from vqMallocEx and belongs to the array from then on. The shape stays: that
/// there are enough elements is not checked.
ZTHALF_API void setHalfData(vqArray_tag* array, half_t* data);

/// How many elements start, start + step, ... up to stop has, as a whole number that a double holds; NaN where one of
/// the three is NaN, 0 where step leads away from stop or is 0. An end that is missed by less than 2^-9 of the larger
/// of |start| and |stop| counts as reached: the tolerance is that of halves, whatever the values come from.
ZTHALF_API double vqColonop_size(double start, double step, double stop);

/// Makes a complex half array whose imaginary parts are all zeros of either sign a real one, in place: the real parts
/// move to the front of the buffer, which keeps its size. Nothing happens where an imaginary part is something else, a
/// NaN included, where the array is real, where two or more hold it, or where vq_flags::dataHeld is set. Data that is
/// shared with another array is made the array's own first. An empty complex array becomes real.
ZTHALF_API void freeImagIfZero(vqArray_tag* array);

}  // namespace half

/// The host's array functions by the same names for half and other arrays: a half array answers by the array inside it,
/// any other goes to the host. Where a field of the array holds the answer, it is read without a call.
namespace vq_or_half {

ZTHALF_API bool vqIsEmpty(vqArray_tag const* array);
ZTHALF_API bool vqIsScalar(vqArray_tag const* array);
ZTHALF_API bool vqIsVector(vqArray_tag const* array);
/// Whether the array counts as numeric; a half array always does.
ZTHALF_API bool vqIsNumeric(vqArray_tag const* array);
ZTHALF_API bool vqIsSparse(vqArray_tag const* array);
ZTHALF_API bool vqIsComplex(vqArray_tag const* array);
ZTHALF_API bool vqIsLogical(vqArray_tag const* array);
/// Whether no element, and no part of one, is an infinity or a NaN; true for an empty half array.
ZTHALF_API bool vqIsFiniteNumericArray(vqArray_tag const* array);
/// Whether the array is complex and every imaginary part is a zero of either sign. The data of an array that is not
/// half is looked at as if it were complex halves.
ZTHALF_API bool vqIsHalfVectorComplexWithZeroImag(vqArray_tag const* array);

/// vqHalfClass for a half array.
ZTHALF_API vqClassID vqGetClassID(vqArray_tag const* array);
/// vqHalfClass for "half"; null counts as an empty name.
ZTHALF_API vqClassID vqClassIDFromClassName(char const* name);
/// "half" for vqHalfClass.
ZTHALF_API char const* vqArrayClassIDName(vqClassID id);

/// The number of bytes of an element: of halves 2, and 4 of complex ones.
ZTHALF_API unsigned long vqGetElementSize(vqArray_tag const* array);
ZTHALF_API unsigned long vqGetElementSizeofClassID(vqClassID id, bool complex);

/// Rows: the first dimension. Columns: the product of the others.
ZTHALF_API unsigned long vqGetM(vqArray_tag const* array);
ZTHALF_API unsigned long vqGetN(vqArray_tag const* array);
ZTHALF_API unsigned long vqGetNumberOfDimensions(vqArray_tag const* array);
/// The dimensions, in the array: until its shape changes.
ZTHALF_API unsigned long const* vqGetDimensions(vqArray_tag const* array);
ZTHALF_API unsigned long vqGetNumberOfElements(vqArray_tag const* array);
ZTHALF_API void vqSetDimensions(vqArray_tag* array, unsigned long const* dims, unsigned long ndims);

ZTHALF_API void* vqGetData(vqArray_tag const* array);
ZTHALF_API void vqSetData(vqArray_tag* array, void* data, vqFreeFunction free);
/// The real part of the first element, which must be there.
ZTHALF_API double vqGetScalar(vqArray_tag const* array);

/// half::vqColonop_size for vqHalfClass.
ZTHALF_API double vqColonop_size(double start, double step, double stop, vqClassID id);

/// half::createHalfArray and half::createHalfMatrix for vqHalfClass, complex where the complexity is vqComplex.
ZTHALF_API vqArray_tag* vqCreateNumericArray(unsigned long ndims, unsigned long const* dims, vqClassID id,
                                             vqComplexity complexity);
ZTHALF_API vqArray_tag* vqCreateNumericMatrix(unsigned long m, unsigned long n, vqClassID id, vqComplexity complexity);
ZTHALF_API vqArray_tag* vqCreateNumericScalar(vqClassID id, vqComplexity complexity);

/// half::freeImagIfZero for a half array.
ZTHALF_API void vqFreeImagIfZero(vqArray_tag* array);

}  // namespace vq_or_half
