// The complex product inside of the complex kernels, in single and double precision.
#pragma once

#include "scalar/kernels/real_kernels.h"

namespace qsl_scalar {

// What a product is after its terms overflowed, or met as infinity minus infinity: plain is the product of x and y as
// computed, with a part that is not finite. A product of finite numbers overflows only where its parts do; one with an
// infinite factor is infinite. The terms' NaNs are those of the defining unit.
template <class Wide>
complexOf<Wide> cmulRecover(complexOf<Wide> x, complexOf<Wide> y, complexOf<Wide> plain);
extern template complexOf<float> cmulRecover(complexOf<float>, complexOf<float>, complexOf<float>);
extern template complexOf<double> cmulRecover(complexOf<double>, complexOf<double>, complexOf<double>);

// The product as computed, repaired where one of its parts is not finite.
template <class Unit, class Wide>
ZTHALF_INLINE complexOf<Wide> recovered(complexOf<Wide> x, complexOf<Wide> y, complexOf<Wide> plain) {
  if (__builtin_expect(isFiniteNumber(plain.re) && isFiniteNumber(plain.im), true)) return plain;
  return cmulRecover(x, y, plain);
}

// (a + b i)(c + d i) with both terms of each part; two real factors have a real product.
template <class Unit, class Wide>
ZTHALF_INLINE complexOf<Wide> cmul(complexOf<Wide> x, complexOf<Wide> y) {
  if (x.im == 0 && y.im == 0) return {Unit::product(x.re, y.re), 0};
  return recovered<Unit>(x, y,
                         {Unit::difference(Unit::product(x.re, y.re), Unit::product(x.im, y.im)),
                          Unit::sum(Unit::product(x.im, y.re), Unit::product(x.re, y.im))});
}

// The square: the two terms of its imaginary part are one number.
template <class Unit, class Wide>
ZTHALF_INLINE complexOf<Wide> csquare(complexOf<Wide> z) {
  if (z.im == 0) return {Unit::product(z.re, z.re), 0};
  const Wide cross = Unit::product(z.re, z.im);
  return recovered<Unit>(
      z, z, {Unit::difference(Unit::product(z.re, z.re), Unit::product(z.im, z.im)), Unit::sum(cross, cross)});
}

// In single precision, with the NaN of the defining unit. Each part is within 1 ulp of the larger of its two terms.
inline complexOf<float> cmulSingle(complexOf<float> x, complexOf<float> y) {
  return zthalf::onCalledUnit([=]<class Unit>(Unit) { return cmul<Unit>(x, y); });
}

}  // namespace qsl_scalar
