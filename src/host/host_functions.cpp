// The functions that a host calls by its entry shape. The checks stand in the order in which they are made: what is
// wrong first is what the host hears of.
#include "zthalf/host_functions.h"

#include <algorithm>

#include "host/array_reading.h"
#include "host/errors.h"
#include "host/ulp_loops.h"
#include "zthalf/half_ptr.h"
#include "zthalf/host.h"
#include "zthalf/host/class_objects.h"
#include "zthalf/host/vq_array_api.h"

namespace api = matrix::detail::noninlined::vq_array_api;

namespace {

using half::error::dimagree;
using half::error::PropInvalidDataType;

zthalf::elementKind kindOf(vqArray_tag const* array) {
  const vqClassID id = zthalf::classOf(array);
  const bool isHalf = half::isVqArrayHalf(array);
  const bool complex = half::isVqArrayComplex(array);
  if (isHalf) return complex ? zthalf::complexHalves : zthalf::halves;
  if (id == vqSingleClass) return complex ? zthalf::complexSingles : zthalf::singles;
  if (id == vqDoubleClass) return complex ? zthalf::complexDoubles : zthalf::doubles;
  zthalf::raise<PropInvalidDataType>(u"PropInvalidDataType");
}

bool haveEqualSizes(zthalf::dimensionList a, zthalf::dimensionList b) {
  return a.count == b.count && std::equal(a.sizes, a.sizes + a.count, b.sizes);
}

}  // namespace

void ulpFcn(int nlhs, vqArray_tag** plhs, int nrhs, vqArray_tag const** prhs) {
  if (nlhs >= 2) matrix::detail::error_maxlhs();
  if (nrhs > 2) matrix::detail::error_maxrhs();
  if (nrhs < 2) matrix::detail::error_minrhs();

  const zthalf::elementKind kindA = kindOf(prhs[0]);
  const zthalf::elementKind kindB = kindOf(prhs[1]);
  vqArray_tag const* const a = omGetUnderlyingArray(prhs[0]);
  vqArray_tag const* const b = omGetUnderlyingArray(prhs[1]);
  const zthalf::dimensionList dims = zthalf::dimensionsOf(a);
  if (!haveEqualSizes(dims, zthalf::dimensionsOf(b))) zthalf::raise<dimagree>(u"dimagree");

  vqArray_tag* const distances = api::vqCreateUninitNumericArray(dims.count, dims.sizes, vqDoubleClass, vqReal);
  const zthalf::ulpLoop loop = zthalf::ulpLoopFor(kindA, kindB);
  loop(vq_fields::data(a), vq_fields::data(b), static_cast<double*>(vq_fields::data(distances)),
       zthalf::elementCount(dims));
  plhs[0] = distances;
}

void useF16CforHalfFcn(int nlhs, vqArray_tag** plhs, int nrhs, vqArray_tag const** prhs) {
  if (nlhs >= 2) matrix::detail::error_maxlhs();
  if (nrhs >= 2) matrix::detail::error_maxrhs();
  if (nrhs < 0) matrix::detail::error_minrhs();

  if (nrhs == 1) {
    vqArray_tag const* const wish = prhs[0];
    if (!zthalf::hasFlags(wish, vq_flags::numeric) || !api::vqIsRealScalar(wish))
      zthalf::raise<PropInvalidDataType>(u"PropInvalidDataType");
    api::vqGetScalarInt(wish);  // an answer that it does not change
  }
  vqArray_tag* const answer = api::vqCreateNumericScalar(vqDoubleClass, vqReal);
  plhs[0] = answer;
  half_ptr::CPU_Dispatch(0);
  *static_cast<double*>(vq_fields::data(answer)) = 0.0;
}

// The same functions under the names that a C++ declaration gives them.
extern "C" {
ZTHALF_API void ulpUnderCxxName(int, vqArray_tag**, int, vqArray_tag const**) __asm__("_Z6ulpFcniPP11vqArray_tagiPPKS_")
    __attribute__((alias("ulpFcn")));
ZTHALF_API void useF16CUnderCxxName(int, vqArray_tag**, int,
                                    vqArray_tag const**) __asm__("_Z17useF16CforHalfFcniPP11vqArray_tagiPPKS_")
    __attribute__((alias("useF16CforHalfFcn")));
}
