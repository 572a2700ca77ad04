#include "scalar/complex/inverse_functions.h"

#include "core/patterns.h"
#include "scalar/kernels/asinh_acosh_single.h"
#include "scalar/kernels/atan_single.h"
#include "scalar/kernels/cplx_asin_acos_single.h"
#include "scalar/kernels/cplx_atanh_single.h"

namespace zthalf {

namespace {

// f(z) = -i g(i z): the kernel g at (-y, x) gives (u, v), and the result is (v, -u).
complexHalf turned(complexOf<float> (*kernel)(complexOf<float>), complexHalf z) {
  const auto [x, y] = exactly<float>(z);
  const complexOf<float> result = kernel({withSignFlipped(y), x});
  return narrowed(complexOf<float>{result.im, withSignFlipped(result.re)});
}

}  // namespace

complexHalf asinOf(complexHalf z) { return narrowed(qsl_scalar::cplxAsinSingle(exactly<float>(z))); }
complexHalf acosOf(complexHalf z) { return narrowed(qsl_scalar::cplxAcosSingle(exactly<float>(z))); }
complexHalf acoshOf(complexHalf z) { return narrowed(qsl_scalar::cplxAcoshSingle(exactly<float>(z))); }
complexHalf atanhOf(complexHalf z) { return narrowed(qsl_scalar::cplxAtanhSingle(exactly<float>(z))); }

// The real functions have no cut on the real axis, and are what they are there.

complexHalf atanOf(complexHalf z) {
  if (pattern::isZero(z.im)) return {narrow(qsl_scalar::atanSingle(widen<float>(z.re))), pattern::zero};
  return turned(qsl_scalar::cplxAtanhSingle, z);
}

complexHalf asinhOf(complexHalf z) {
  if (pattern::isZero(z.im)) return {narrow(qsl_scalar::asinhSingle(widen<float>(z.re))), pattern::zero};
  return turned(qsl_scalar::cplxAsinSingle, z);
}

}  // namespace zthalf
