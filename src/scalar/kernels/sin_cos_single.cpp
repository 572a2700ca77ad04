#include "scalar/kernels/sin_cos_single.h"

#include "scalar/kernels/pi_constants.h"
#include "scalar/kernels/rem_pio2_single.h"
#include "scalar/kernels/sine_cosine_series.h"

namespace qsl_scalar {

// Up to pi/4 the series holds directly; above, x is reduced to the pair of an angle in that interval. The comparison is
// false for a NaN, and the reduction decides what becomes of it and of an infinity.

float sinSingle(float x) {
  if (magnitudeOf(x) <= quarterPiUpper) return sinPoly(x);
  return sinQuadrant(remPio2Single(x));
}

float cosSingle(float x) {
  if (magnitudeOf(x) <= quarterPiUpper) return cosPoly(x, 0.0f);
  return cosQuadrant(remPio2Single(x));
}

}  // namespace qsl_scalar
