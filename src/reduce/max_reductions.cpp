#include "core/instantiate.h"
#include "reduce/extrema.h"
#include "zthalf/half_extrema.h"

namespace half {

namespace {

using zthalf::maxKind;
using zthalf::maxOmitNaNKind;

}  // namespace

template <class SrcT, class DstT, class AccT>
void maxSimpleReduce(SrcT* src, DstT* dst, unsigned long n) {
  *dst = half_utils::extremumOfAll<maxKind>(src, n).value;
}

template <class SrcT, class DstT, class AccT>
void maxSimpleReduce(SrcT* src, DstT* dst, double* index, unsigned long n) {
  const auto found = half_utils::extremumOfAll<maxKind>(src, n);
  *dst = found.value;
  *index = found.index;
}

template <class SrcT, class DstT, class AccT>
void maxReduceFunc(SrcT* src, DstT* dst, unsigned long ndims, unsigned long* dims, bool firstReduced) {
  half_utils::extremaAlong<maxKind>(src, dst, ndims, dims, firstReduced);
}

template <class SrcT, class DstT, class AccT>
void maxReduceFunc(SrcT* src, DstT* dst, double* index, unsigned long ndims, unsigned long* dims, bool firstReduced,
                   bool linear) {
  half_utils::extremaAlong<maxKind>(src, dst, index, ndims, dims, firstReduced, linear);
}

template <class SrcT, class DstT, class AccT>
void maxSimpleReduceOmitNaN(SrcT* src, DstT* dst, unsigned long n) {
  *dst = half_utils::extremumOfAll<maxOmitNaNKind>(src, n).value;
}

template <class SrcT, class DstT, class AccT>
void maxSimpleReduceOmitNaN(SrcT* src, DstT* dst, double* index, unsigned long n) {
  const auto found = half_utils::extremumOfAll<maxOmitNaNKind>(src, n);
  *dst = found.value;
  *index = found.index;
}

template <class SrcT, class DstT, class AccT>
void maxReduceFuncOmitNaN(SrcT* src, DstT* dst, unsigned long ndims, unsigned long* dims, bool firstReduced) {
  half_utils::extremaAlong<maxOmitNaNKind>(src, dst, ndims, dims, firstReduced);
}

template <class SrcT, class DstT, class AccT>
void maxReduceFuncOmitNaN(SrcT* src, DstT* dst, double* index, unsigned long ndims, unsigned long* dims,
                          bool firstReduced, bool linear) {
  half_utils::extremaAlong<maxOmitNaNKind>(src, dst, index, ndims, dims, firstReduced, linear);
}

ZTHALF_MAX_REDUCTION_ENTRIES(ZTHALF_EXTREMUM_ROW)

}  // namespace half
