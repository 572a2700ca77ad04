// The reductions behind the table, as templates on element types and the accumulator's type.
#pragma once

#include <complex>

#include "zthalf/detail/export.h"
#include "zthalf/half_t.h"

/// The templates are instantiated in the library for the types of the table only. Sums, products and means:
///
///     In                             Out                            Accumulator
///     fp16binary_t                   fp16binary_t                   fp16binary_t or float
///     fp16binary_t                   double                         double
///     std::complex<fp16binary_t>     std::complex<fp16binary_t>     std::complex<fp16binary_t> or std::complex<float>
///     std::complex<fp16binary_t>     std::complex<double>           std::complex<double>
///
/// What they compute, in which order and with which roundings, is stated at half_vector::sum, prod and mean. The
/// `...SimpleReduce` templates reduce n contiguous elements to *dst; of no elements they make 0, 1, and a NaN for a
/// mean. The `...ReduceFunc` templates reduce along dimensions; with firstDimReduced there are at least two of them.
/// Nothing is reported. The templates along dimensions allocate small working arrays: a failure to get them throws
/// std::bad_alloc, or std::length_error for an absurd number of dimensions.
namespace half {

#define ZTHALF_DECLARE_REDUCTION(op)                                                                                 \
  template <class In, class Out, class Accumulator>                                                                  \
  ZTHALF_API void op##SimpleReduce(In* src, Out* dst, unsigned long n);                                              \
  template <class In, class Out, class Accumulator>                                                                  \
  ZTHALF_API void op##SimpleReduceOmitNaN(In* src, Out* dst, unsigned long n);                                       \
  template <class In, class Out, class Accumulator>                                                                  \
  ZTHALF_API void op##ReduceFunc(In* src, Out* dst, unsigned long ndims, unsigned long* dims, bool firstDimReduced); \
  template <class In, class Out, class Accumulator>                                                                  \
  ZTHALF_API void op##ReduceFuncOmitNaN(In* src, Out* dst, unsigned long ndims, unsigned long* dims,                 \
                                        bool firstDimReduced);
ZTHALF_DECLARE_REDUCTION(sum)
ZTHALF_DECLARE_REDUCTION(prod)
ZTHALF_DECLARE_REDUCTION(mean)
#undef ZTHALF_DECLARE_REDUCTION

/// min and max. SrcT and DstT are the element type, fp16binary_t or std::complex of it, AccT the single type of the
/// same kind; arguments and results are those of half_vector::minUnaryOp, minUnaryOpWithIndex and so on, with the types
/// in the place of the flags.
#define ZTHALF_DECLARE_EXTREMUM(op, ending)                                                              \
  template <class SrcT, class DstT, class AccT>                                                          \
  ZTHALF_API void op##SimpleReduce##ending(SrcT* src, DstT* dst, unsigned long n);                       \
  template <class SrcT, class DstT, class AccT>                                                          \
  ZTHALF_API void op##SimpleReduce##ending(SrcT* src, DstT* dst, double* index, unsigned long n);        \
  template <class SrcT, class DstT, class AccT>                                                          \
  ZTHALF_API void op##ReduceFunc##ending(SrcT* src, DstT* dst, unsigned long ndims, unsigned long* dims, \
                                         bool firstReduced);                                             \
  template <class SrcT, class DstT, class AccT>                                                          \
  ZTHALF_API void op##ReduceFunc##ending(SrcT* src, DstT* dst, double* index, unsigned long ndims,       \
                                         unsigned long* dims, bool firstReduced, bool linear);
ZTHALF_DECLARE_EXTREMUM(min, )
ZTHALF_DECLARE_EXTREMUM(max, )
ZTHALF_DECLARE_EXTREMUM(min, OmitNaN)
ZTHALF_DECLARE_EXTREMUM(max, OmitNaN)
#undef ZTHALF_DECLARE_EXTREMUM

}  // namespace half
