#include "scalar/kernels/cplx_exp.h"

namespace qsl_scalar {

namespace {

// exp(x) (cos y + i sin y). In order:
//   y a zero of either sign   exp x, with an imaginary part of +0
//   x near its overflow       the exponential of x/2 twice, so that a small sine or cosine keeps the product finite
//   x = -infinity             two zeros +0; but for a NaN y its sine and cosine, which are NaNs
//   otherwise                 two products
// A NaN factor is the negative one of the kernels, and no zero meets an infinity: the products need no policy.
template <class Wide>
complexOf<Wide> cplxExp(complexOf<Wide> z) {
  using kernels = realKernels<Wide>;
  const auto [x, y] = z;
  if (y == 0) return {kernels::exp(x), 0};
  const auto [sine, cosine] = kernels::sincos(y);
  if (x > kernels::nearExpOverflow) {
    const Wide root = kernels::exp(x * Wide(0.5));
    return {root * (root * cosine), root * (root * sine)};
  }
  if (x < 0 && !isFiniteNumber(x)) {
    if (isNaN(y)) return {cosine, sine};
    return {0, 0};
  }
  const Wide length = kernels::exp(x);
  return {cosine * length, sine * length};
}

}  // namespace

complexOf<float> cplxExpSingle(complexOf<float> z) { return cplxExp(z); }
complexOf<double> cplxExpDouble(complexOf<double> z) { return cplxExp(z); }

}  // namespace qsl_scalar
