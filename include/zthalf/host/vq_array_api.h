// The array operations that a host provides. This library calls them by these names, through the dynamic linker.
#pragma once

#include "zthalf/detail/export.h"
#include "zthalf/host/vq_array.h"

/// Pointers must not be null unless it is said. What an operation does with bad arguments, and when memory is short, is
/// the host's affair: it may throw whatever it likes, and this library lets it pass.
namespace matrix::detail::noninlined::vq_array_api {

/// Whether the array is of the class with this name, built in or not.
ZTHALF_API bool vqIsA(vqArray_tag const* array, char const* className);
/// Whether a dimension is 0; all are 1; there are two and one of them is 1.
ZTHALF_API bool vqIsEmpty(vqArray_tag const* array);
ZTHALF_API bool vqIsScalar(vqArray_tag const* array);
ZTHALF_API bool vqIsVector(vqArray_tag const* array);
/// Whether the array has a single element and no imaginary part, whatever its class.
ZTHALF_API bool vqIsRealScalar(vqArray_tag const* array);
/// Whether the array is numeric and no part of an element is an infinity or a NaN.
ZTHALF_API bool vqIsFiniteNumericArray(vqArray_tag const* array);

/// Bytes of an element, with its imaginary part where there is one.
ZTHALF_API unsigned long vqGetElementSize(vqArray_tag const* array);
ZTHALF_API unsigned long vqGetElementSizeofClassID(vqClassID id, bool complex);
/// The real part of the first element.
ZTHALF_API double vqGetScalar(vqArray_tag const* array);
ZTHALF_API int vqGetScalarInt(vqArray_tag const* array);
/// The number of columns: the product of all dimensions but the first.
ZTHALF_API unsigned long vqGetN(vqArray_tag const* array);

/// The number of elements of start, start + step, ... up to stop in the class.
ZTHALF_API double vqColonop_size(double start, double step, double stop, vqClassID id);
/// The class with this name, and the name of a class.
ZTHALF_API vqClassID vqClassIDFromClassName(char const* className);
ZTHALF_API char const* vqArrayClassIDName(vqClassID id);

/// Makes a complex array whose imaginary parts are all zero a real one.
ZTHALF_API void vqFreeImagIfZero(vqArray_tag* array);
/// Makes the array's data its own before it is changed.
ZTHALF_API void vqUnshare(vqArray_tag* array);

/// Gives the array a data buffer, and lets go of the one that it had. A null function says that the buffer comes from
/// vqMallocEx; from now on it belongs to the array.
ZTHALF_API void vqSetData(vqArray_tag* array, void* data, vqFreeFunction free);
/// Sets the shape and leaves the data as it is. vqSetM sets the first dimension and keeps the others; vqSetN leaves the
/// first, and makes the array two-dimensional.
ZTHALF_API void vqSetM(vqArray_tag* array, unsigned long m);
ZTHALF_API void vqSetN(vqArray_tag* array, unsigned long n);
ZTHALF_API void vqSetDimensions(vqArray_tag* array, unsigned long const* dims, unsigned long ndims);

/// A buffer of the host's own, to be given to an array by vqSetData.
ZTHALF_API void* vqMallocEx(unsigned long bytes);

/// New arrays, of zeros; the caller owns them. The uninitialised one has whatever was in its memory.
ZTHALF_API vqArray_tag* vqCreateNumericArray(unsigned long ndims, unsigned long const* dims, vqClassID id,
                                             vqComplexity complexity);
ZTHALF_API vqArray_tag* vqCreateNumericMatrix(unsigned long m, unsigned long n, vqClassID id, vqComplexity complexity);
ZTHALF_API vqArray_tag* vqCreateNumericScalar(vqClassID id, vqComplexity complexity);
ZTHALF_API vqArray_tag* vqCreateUninitNumericArray(unsigned long ndims, unsigned long const* dims, vqClassID id,
                                                   vqComplexity complexity);

}  // namespace matrix::detail::noninlined::vq_array_api
