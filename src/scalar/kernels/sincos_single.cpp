#include "scalar/kernels/sincos_single.h"

#include "scalar/kernels/pi_constants.h"
#include "scalar/kernels/rem_pio2_single.h"
#include "scalar/kernels/sine_cosine_series.h"

namespace qsl_scalar {

// Up to pi/4 both series hold directly. Above, x = n pi/2 + y, and with S and C the sine and cosine of y:
//
//   n mod 4    sine    cosine
//   0          S       C
//   1          C       -S
//   2          -S      -C
//   3          -C      S
//
// The NaN that the reduction makes of an infinity or a NaN is returned as it is.
sineAndCosine<float> sincosSingle(float x) {
  if (magnitudeOf(x) <= quarterPiUpper) return {sinPoly(x), cosPoly(x, 0.0f)};
  const reducedAngle y = remPio2Single(x);
  if (y.upper != y.upper) return {y.upper, y.upper};

  const auto n = static_cast<std::uint32_t>(y.n);
  const std::uint32_t sine = bitsOf(sinPoly(y.upper, y.lower));
  const std::uint32_t cosine = bitsOf(cosPoly(y.upper, y.lower));
  const std::uint32_t areSwapped = 0 - (n & 1);
  return {floatOf(zthalf::select(areSwapped, cosine, sine) ^ (n & 2) << 30),
          floatOf(zthalf::select(areSwapped, sine, cosine) ^ ((n + 1) & 2) << 30)};
}

}  // namespace qsl_scalar
