// What the reductions of min and of max are made of, for each way with NaNs: whole arrays and along dimensions, with
// and without the winner's index.
#pragma once

#include "core/instantiate.h"
#include "reduce/extrema.h"
#include "zthalf/half_reductions.h"

#define ZTHALF_EXTREMUM_REDUCTIONS_OF(kind, whole, along)                                                      \
  template <class SrcT, class DstT, class AccT>                                                                \
  void whole(SrcT* src, DstT* dst, unsigned long n) {                                                          \
    *dst = half_utils::extremumOfAll<kind>(src, n).value;                                                      \
  }                                                                                                            \
  template <class SrcT, class DstT, class AccT>                                                                \
  void whole(SrcT* src, DstT* dst, double* index, unsigned long n) {                                           \
    const auto found = half_utils::extremumOfAll<kind>(src, n);                                                \
    *dst = found.value;                                                                                        \
    *index = found.index;                                                                                      \
  }                                                                                                            \
  template <class SrcT, class DstT, class AccT>                                                                \
  void along(SrcT* src, DstT* dst, unsigned long ndims, unsigned long* dims, bool firstReduced) {              \
    half_utils::extremaAlong<kind>(src, dst, ndims, dims, firstReduced);                                       \
  }                                                                                                            \
  template <class SrcT, class DstT, class AccT>                                                                \
  void along(SrcT* src, DstT* dst, double* index, unsigned long ndims, unsigned long* dims, bool firstReduced, \
             bool linear) {                                                                                    \
    half_utils::extremaAlong<kind>(src, dst, index, ndims, dims, firstReduced, linear);                        \
  }

#define ZTHALF_REDUCTIONS_OF(op)                                                    \
  ZTHALF_EXTREMUM_REDUCTIONS_OF(zthalf::op##Kind, op##SimpleReduce, op##ReduceFunc) \
  ZTHALF_EXTREMUM_REDUCTIONS_OF(zthalf::op##OmitNaNKind, op##SimpleReduceOmitNaN, op##ReduceFuncOmitNaN)
