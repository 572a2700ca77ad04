#include "scalar/complex/exponential.h"

#include "scalar/kernels/cplx_exp.h"
#include "scalar/kernels/cplx_expm1_single.h"
#include "scalar/kernels/cplx_pow.h"

namespace zthalf {

complexHalf expOf(complexHalf z) { return narrowed(qsl_scalar::cplxExpSingle(exactly<float>(z))); }
complexHalf expm1Of(complexHalf z) { return narrowed(qsl_scalar::cplxExpm1Single(exactly<float>(z))); }
complexHalf pow2Of(complexHalf z) { return narrowed(qsl_scalar::cplxPowSingle({2.0f, 0.0f}, exactly<float>(z))); }
complexHalf pow10Of(complexHalf z) { return narrowed(qsl_scalar::cplxPowSingle({10.0f, 0.0f}, exactly<float>(z))); }

}  // namespace zthalf
