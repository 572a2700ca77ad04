#include "scalar/kernels/log10_single.h"

#include "scalar/kernels/float_fields.h"
#include "scalar/kernels/log_single.h"

namespace qsl_scalar {

// x = m 2^d with m in [1, 2) from 1 on and in [0.5, 1) below, so that d log10(2), added in two parts, and
// log10 m = ln m * log10(e) have the same sign and do not cancel. A subnormal is scaled by 2^25 first.
float log10Single(float x) {
  constexpr float log10Of2Upper = floatOf(0x3E9A2000u);  // 0.301025390625, exact times any exponent
  constexpr float log10Of2Lower = floatOf(0x369A84FCu);  // 4.605039066518657e-06
  constexpr float log10OfE = floatOf(0x3EDE5BD9u);       // 0.4342944920063019
  if (magnitudeBitsOf(x) == 0) return negativeInfinity;
  if (hasSign(x)) return domainNaN;
  if (magnitudeBitsOf(x) >= exponentBits) return x;

  const bool isSubnormal = magnitudeBitsOf(x) < hiddenBit;
  const float scaled = isSubnormal ? x * 0x1p25f : x;
  const std::int32_t k = exponentFieldOf(scaled) - (isSubnormal ? 152 : 127);
  const float m = withExponentField(scaled, k < 0 ? 126 : 127);
  const auto d = static_cast<float>(k < 0 ? k + 1 : k);
  return d * log10Of2Upper + (d * log10Of2Lower + logSingle(m) * log10OfE);
}

}  // namespace qsl_scalar
