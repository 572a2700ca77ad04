#include "scalar/kernels/atanh_single.h"

#include "scalar/kernels/float_fields.h"
#include "scalar/kernels/log1p_single.h"

namespace qsl_scalar {

// atanh a = ln((1 + a) / (1 - a)) / 2 = ln(1 + 2a / (1 - a)) / 2. Below 1/2 the quotient is split as
// 2a / (1 - a) = 2a + 2a^2 / (1 - a), whose first term is exact. The result is halved before it gets its sign.
float atanhSingle(float x) {
  constexpr std::uint32_t tiny = 0x31800016u;  // 3.7253e-09: below it atanh x rounds to x
  const float a = magnitudeOf(x);
  if (!(a <= 1.0f)) return domainNaN;
  if (a == 1.0f) return hasSign(x) ? negativeInfinity : infinity;
  if (magnitudeBitsOf(x) < tiny) return x;
  const float d = a + a;
  const float e = 1.0f - a;
  const float logarithm = a < 0.5f ? log1pSingle(d + (d * a) / e) : log1pSingle(d / e);
  const float result = logarithm * 0.5f;
  return hasSign(x) ? -result : result;
}

}  // namespace qsl_scalar
