// The complex square root in single and double precision.
#pragma once

#include "scalar/kernels/real_kernels.h"
#include "scalar/kernels/square_root.h"
#include "zthalf/detail/export.h"

namespace qsl_scalar {

namespace detail::internalOnly {

// sqrt((|x| + hypot(x, y)) / 2), also where hypot or the sum overflows or is subnormal. For float and double.
template <class Wide>
ZTHALF_API Wide RealPartOfComplexSqrtExtreme(Wide x, Wide y);

}  // namespace detail::internalOnly

// The root with a real part that is not negative. A real argument that is no negative number, minus zero and NaN
// included, has the real root and +0; another NaN gives the negative NaN twice. y = -0 counts as +0, so that the cut
// along the negative real axis does not see its sign.
//
// Each part within 2.5 ulp, unless it is subnormal.
complexOf<float> cplxSqrtSingle(complexOf<float> z);
complexOf<double> cplxSqrtDouble(complexOf<double> z);

}  // namespace qsl_scalar
