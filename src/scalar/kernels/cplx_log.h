// Complex logarithms: the natural one in single and double precision, those to base 2 and 10 in single precision.
#pragma once

#include "scalar/kernels/real_kernels.h"

namespace qsl_scalar {

// The angle of z: pi with the sign of y on the negative real axis, +0 on the rest of it, a NaN included.
template <class Wide>
ZTHALF_INLINE Wide logAngle(complexOf<Wide> z) {
  if (z.im == 0) return z.re < 0 ? withSignOf(realKernels<Wide>::pi, z.im) : Wide(0);
  return realKernels<Wide>::atan2(z.im, z.re);
}

// The principal logarithm, cut along the negative real axis, where the imaginary part has the sign of y, minus zero
// included. Of a zero of any signs it is (-infinity, +0). A real NaN gives its positive magnitude and +0; another NaN
// gives a positive NaN as real part and the negative one as imaginary part, beside an infinity too.
//
// The imaginary part is within 1.5 ulp, the real part within 4 ulp for |z| up to 0.7. Towards the unit circle, where the
// real part vanishes, the whole value is within 8 units in the last place of its larger part.
complexOf<float> cplxLogSingle(complexOf<float> z);
complexOf<double> cplxLogDouble(complexOf<double> z);

// ln z / ln 10 and ln z / ln 2, with the same special cases. The imaginary part is within 2.5 ulp, the real part within
// 4 ulp for |z| up to 0.7. The unit circle is nothing special here, and beside it the real part has an error of some
// 2^-24, from the rounding of |z|.
complexOf<float> cplxLog10Single(complexOf<float> z);
complexOf<float> cplxLog2Single(complexOf<float> z);

}  // namespace qsl_scalar
