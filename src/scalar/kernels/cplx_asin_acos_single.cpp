#include "scalar/kernels/cplx_asin_acos_single.h"

#include "scalar/kernels/asin_acos_single.h"
#include "scalar/kernels/asinh_acosh_single.h"
#include "scalar/kernels/cplx_multiply.h"
#include "scalar/kernels/cplx_sqrt.h"

namespace qsl_scalar {

namespace {

// With p = sqrt(1 + z) and q = sqrt(1 - z), neither with a negative real part:
//
//   asin z = atan(x / re(q p)) + i asinh(im(conj(q) p))
//   acos z = 2 atan(re q / re p) + i asinh(im(conj(p) q))
//
// and with q = sqrt(z - 1): acosh z = asinh(re(conj(q) p)) + 2 i atan(im q / re p). The products under the sines are
// repaired where they overflow; those of the other two are not.
struct roots {
  complexOf<float> p, q;
};

roots rootsAroundOne(complexOf<float> z) {
  return {cplxSqrtSingle({z.re + 1.0f, z.im + 0.0f}), cplxSqrtSingle({1.0f - z.re, 0.0f - z.im})};
}

// q p with one real product where both are real.
template <class Unit>
complexOf<float> productOf(complexOf<float> q, complexOf<float> p) {
  if (q.im == 0.0f && p.im == 0.0f) return {Unit::product(q.re, p.re), 0.0f};
  return recovered<Unit>(q, p,
                         {Unit::difference(Unit::product(q.re, p.re), Unit::product(q.im, p.im)),
                          Unit::sum(Unit::product(q.im, p.re), Unit::product(q.re, p.im))});
}

bool isBeyondOne(float x) { return magnitudeOf(x) > 1.0f; }

float twice(float angle) { return angle + angle; }

}  // namespace

complexOf<float> cplxAsinSingle(complexOf<float> z) {
  if (z.im == 0.0f && !isBeyondOne(z.re)) return {asinSingle(z.re), 0.0f};
  return zthalf::onCalledUnit([=]<class Unit>(Unit) -> complexOf<float> {
    const auto [p, q] = rootsAroundOne(z);
    const complexOf<float> conjugate = {q.re, Unit::difference(0.0f, q.im)};
    return {realKernels<float>::atan2(z.re, productOf<Unit>(q, p).re), asinhSingle(productOf<Unit>(conjugate, p).im)};
  });
}

complexOf<float> cplxAcosSingle(complexOf<float> z) {
  if (z.im == 0.0f && !isBeyondOne(z.re)) return {acosSingle(z.re), 0.0f};
  return zthalf::onCalledUnit([=]<class Unit>(Unit) -> complexOf<float> {
    const auto [p, q] = rootsAroundOne(z);
    const float across = Unit::difference(Unit::product(q.im, p.re), Unit::product(q.re, p.im));
    return {twice(realKernels<float>::atan2(q.re, p.re)), asinhSingle(across)};
  });
}

complexOf<float> cplxAcoshSingle(complexOf<float> z) {
  if (z.im == 0.0f && !(z.re < 1.0f)) return {acoshSingle(z.re), 0.0f};
  return zthalf::onCalledUnit([=]<class Unit>(Unit) -> complexOf<float> {
    const float y = z.im + 0.0f;
    const complexOf<float> p = cplxSqrtSingle({z.re + 1.0f, y});
    const complexOf<float> q = cplxSqrtSingle({z.re + -1.0f, y});
    const float along = Unit::sum(Unit::product(q.re, p.re), Unit::product(q.im, p.im));
    return {asinhSingle(along), twice(realKernels<float>::atan2(q.im, p.re))};
  });
}

}  // namespace qsl_scalar
