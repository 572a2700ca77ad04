#include "scalar/complex/power.h"

#include "scalar/kernels/cplx_pow.h"

namespace zthalf {

complexHalf powerOfComplex(complexOf<float> z, complexOf<float> w) { return narrowed(qsl_scalar::cplxPowSingle(z, w)); }
complexHalf powerOfComplex(complexOf<double> z, complexOf<double> w) {
  return narrowed(qsl_scalar::cplxPowDouble(z, w));
}

}  // namespace zthalf
