#include "scalar/kernels/log2_single.h"

#include "scalar/kernels/float_fields.h"
#include "scalar/kernels/log_single.h"

namespace qsl_scalar {

// x = m 2^e with m in [0.5, 1), and log2 x = ln m / ln 2 + e, where the division is a true one. Powers of two are
// exact. In (1, 1.5), where the two terms would cancel, 2m = x is taken instead, with an exponent of 0. A subnormal is
// scaled by 2^25 first.
float log2Single(float x) {
  if (x == 0.0f) return negativeInfinity;
  if (x < 0.0f) return domainNaN;
  if (magnitudeBitsOf(x) >= exponentBits) return x;

  const bool isSubnormal = magnitudeBitsOf(x) < hiddenBit;
  const float scaled = isSubnormal ? x * 0x1p25f : x;
  const float m = withExponentField(scaled, 126);
  const std::int32_t e = exponentFieldOf(scaled) - (isSubnormal ? 151 : 126);
  if (m == 0.5f) return static_cast<float>(e - 1);
  if (e == 1 && m < 0.75f) return logSingle(m + m) / ln2;
  return logSingle(m) / ln2 + static_cast<float>(e);
}

}  // namespace qsl_scalar
