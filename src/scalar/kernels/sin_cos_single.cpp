#include "scalar/kernels/sin_cos_single.h"

#include "scalar/kernels/pi_constants.h"
#include "scalar/kernels/rem_pio2_single.h"
#include "scalar/kernels/sine_cosine_series.h"

namespace qsl_scalar {

// Up to pi/4 the series holds directly; above, x is reduced to the pair of an angle in that interval. The NaN that the
// reduction makes of an infinity or a NaN is returned as it is: arithmetic would leave its sign to the order of
// operations.

float sinSingle(float x) {
  if (magnitudeOf(x) <= quarterPiUpper) return sinPoly(x);
  const reducedAngle y = remPio2Single(x);
  return y.upper != y.upper ? y.upper : sinQuadrant(y);
}

float cosSingle(float x) {
  if (magnitudeOf(x) <= quarterPiUpper) return cosPoly(x, 0.0f);
  const reducedAngle y = remPio2Single(x);
  return y.upper != y.upper ? y.upper : cosQuadrant(y);
}

}  // namespace qsl_scalar
