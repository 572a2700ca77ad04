#include "scalar/kernels/scalbn_single.h"

#include "scalar/kernels/float_fields.h"

namespace qsl_scalar {

// The exponent field does the work. A subnormal v is made normal first; a result below the normal range is built 2^25
// times too large, and one last multiplication rounds it into place. n is compared before it is added, so that no sum
// leaves the integers.
float scalbnSingle(float v, std::int32_t n) {
  constexpr std::int32_t farBelow = -50000;
  std::int32_t field = exponentFieldOf(v);
  if (field == 255) return v;
  if (field == 0) {
    if (v == 0.0f) return v;
    v = v * 0x1p25f;
    if (n < farBelow) return v * 0.0f;
    field = exponentFieldOf(v) - 25;
  }
  if (n > 254 - field) return floatOf((bitsOf(v) & signBit) | exponentBits);
  if (n <= -25 - field) return v * 0.0f;
  field += n;
  if (field >= 1) return withExponentField(v, field);
  return withExponentField(v, field + 25) * 0x1p-25f;
}

}  // namespace qsl_scalar
