#include "core/instantiate.h"
#include "reduce/extrema.h"
#include "zthalf/half_extrema.h"

namespace half {

namespace {

using zthalf::minKind;
using zthalf::minOmitNaNKind;

}  // namespace

template <class SrcT, class DstT, class AccT>
void minSimpleReduce(SrcT* src, DstT* dst, unsigned long n) {
  *dst = half_utils::extremumOfAll<minKind>(src, n).value;
}

template <class SrcT, class DstT, class AccT>
void minSimpleReduce(SrcT* src, DstT* dst, double* index, unsigned long n) {
  const auto found = half_utils::extremumOfAll<minKind>(src, n);
  *dst = found.value;
  *index = found.index;
}

template <class SrcT, class DstT, class AccT>
void minReduceFunc(SrcT* src, DstT* dst, unsigned long ndims, unsigned long* dims, bool firstReduced) {
  half_utils::extremaAlong<minKind>(src, dst, ndims, dims, firstReduced);
}

template <class SrcT, class DstT, class AccT>
void minReduceFunc(SrcT* src, DstT* dst, double* index, unsigned long ndims, unsigned long* dims, bool firstReduced,
                   bool linear) {
  half_utils::extremaAlong<minKind>(src, dst, index, ndims, dims, firstReduced, linear);
}

template <class SrcT, class DstT, class AccT>
void minSimpleReduceOmitNaN(SrcT* src, DstT* dst, unsigned long n) {
  *dst = half_utils::extremumOfAll<minOmitNaNKind>(src, n).value;
}

template <class SrcT, class DstT, class AccT>
void minSimpleReduceOmitNaN(SrcT* src, DstT* dst, double* index, unsigned long n) {
  const auto found = half_utils::extremumOfAll<minOmitNaNKind>(src, n);
  *dst = found.value;
  *index = found.index;
}

template <class SrcT, class DstT, class AccT>
void minReduceFuncOmitNaN(SrcT* src, DstT* dst, unsigned long ndims, unsigned long* dims, bool firstReduced) {
  half_utils::extremaAlong<minOmitNaNKind>(src, dst, ndims, dims, firstReduced);
}

template <class SrcT, class DstT, class AccT>
void minReduceFuncOmitNaN(SrcT* src, DstT* dst, double* index, unsigned long ndims, unsigned long* dims,
                          bool firstReduced, bool linear) {
  half_utils::extremaAlong<minOmitNaNKind>(src, dst, index, ndims, dims, firstReduced, linear);
}

ZTHALF_MIN_REDUCTION_ENTRIES(ZTHALF_EXTREMUM_ROW)

}  // namespace half
