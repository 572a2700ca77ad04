#include "scalar/complex/exponential.h"

#include "scalar/kernels/cplx_exp.h"
#include "scalar/kernels/cplx_expm1_single.h"
#include "scalar/kernels/cplx_pow.h"
#include "scalar/kernels/float_fields.h"

namespace zthalf {

namespace {

// A real part below the given one counts as that, but for -infinity. Either result vanishes in half with the signs of
// sine and cosine, and no step comes to a subnormal float, where many processors are slow.
complexOf<float> withRealPartFrom(float least, complexHalf z) {
  const auto [x, y] = exactly<float>(z);
  return {x < least && x != qsl_scalar::negativeInfinity ? least : x, y};
}

}  // namespace

complexHalf expOf(complexHalf z) { return narrowed(qsl_scalar::cplxExpSingle(withRealPartFrom(-30.0f, z))); }
complexHalf expm1Of(complexHalf z) { return narrowed(qsl_scalar::cplxExpm1Single(withRealPartFrom(-30.0f, z))); }
complexHalf pow2Of(complexHalf z) {
  return narrowed(qsl_scalar::cplxPowSingle({2.0f, 0.0f}, withRealPartFrom(-44.0f, z)));
}
complexHalf pow10Of(complexHalf z) {
  return narrowed(qsl_scalar::cplxPowSingle({10.0f, 0.0f}, withRealPartFrom(-14.0f, z)));
}

}  // namespace zthalf
