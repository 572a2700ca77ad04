// The functions that a host calls by its usual entry shape: how many outputs are wanted and where they go, how many
// inputs there are and which.
#pragma once

#include "zthalf/detail/export.h"
#include "zthalf/host/vq_array.h"

/// Both are exported under their plain C name, and under the C++ name too for a caller that declares them without
/// `extern "C"`. Inputs stay the caller's; an output is a new array that the caller owns. Errors are told in the order
/// in which they are looked for; those of counts are the host's own, the others those of host_errors.h. plhs has room
/// for one output even where nlhs is 0.
extern "C" {

/// plhs[0] becomes a double array: the distances of the elements of two arrays of the same size in units in the last
/// place of half, as half_scalar::ulp tells; of complex elements the larger one of the two parts. Each input is half,
/// single or double, real or complex: 36 pairs.
///
/// Errors: nlhs above 1, nrhs above 2, nrhs below 2; half::error::PropInvalidDataType for an input of another class;
/// half::error::dimagree where the sizes differ in any dimension, a single element beside an array included. Sparse
/// inputs are read as if they were full.
ZTHALF_API void ulpFcn(int nlhs, vqArray_tag** plhs, int nrhs, vqArray_tag const** prhs);

/// plhs[0] becomes the double 0: there is no code that depends on the processor's conversions. Sets
/// half_ptr::initialized. An input is looked at and changes nothing.
///
/// Errors: nlhs above 1, nrhs above 1, nrhs below 0; half::error::PropInvalidDataType unless the input is a real scalar
/// with vq_flags::numeric, which text, logicals and halves have not.
ZTHALF_API void useF16CforHalfFcn(int nlhs, vqArray_tag** plhs, int nrhs, vqArray_tag const** prhs);
}
