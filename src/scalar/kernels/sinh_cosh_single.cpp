#include "scalar/kernels/sinh_cosh_single.h"

#include "scalar/kernels/exp_single.h"
#include "scalar/kernels/expm1_single.h"
#include "scalar/kernels/float_fields.h"

namespace qsl_scalar {

namespace {

constexpr float halfLn2 = floatOf(0x3EB17217u);         // 0.34657356
constexpr float expOverflow = floatOf(0x42B17217u);     // 88.722832: the last argument with a finite exponential
constexpr float resultOverflow = floatOf(0x42B2D4FCu);  // 89.415985: the last one with a finite half of it

}  // namespace

// With t = exp|x| - 1:  sinh|x| = (t + t / (t + 1)) / 2, and below 1, where t is close to x and the two terms are about
// equal, (2 t - t^2 / (t + 1)) / 2. From 22 on the second term is below the last place of the first. Where the
// exponential overflows and its half does not, it is applied in two halves.
//
// An infinity and a NaN come first, since they have no difference of exponentials; then magnitudes whose cube is below
// the last place of x. Beyond resultOverflow, x * infinity is an infinity with the sign of x.
float sinhSingle(float x) {
  constexpr std::uint32_t tiny = 0x31800016u;  // 3.7253e-09, about 2^-28
  if (magnitudeBitsOf(x) >= exponentBits) return x;
  const float magnitude = magnitudeOf(x);
  const float half = hasSign(x) ? -0.5f : 0.5f;
  if (magnitude < 22.0f) {
    if (magnitudeBitsOf(x) < tiny) return x;
    const float t = expm1Single(magnitude);
    if (magnitude < 1.0f) return half * ((t + t) - (t * t) / (t + 1.0f));
    return half * (t + t / (t + 1.0f));
  }
  if (magnitude <= expOverflow) return half * expSingle(magnitude);
  if (magnitude <= resultOverflow) {
    const float root = expSingle(magnitude * 0.5f);
    return root * (half * root);
  }
  return x * infinity;
}

// cosh x = 1 + t^2 / (2 (t + 1)) with t = exp|x| - 1 near zero, (exp|x| + exp(-|x|)) / 2 further on, and beyond as the
// sine. An infinity and a NaN are squared: plus infinity and the quiet NaN.
float coshSingle(float x) {
  constexpr std::uint32_t tiny = 0x0DA24260u;  // 1e-30
  if (magnitudeBitsOf(x) >= exponentBits) return x * x;
  const float magnitude = magnitudeOf(x);
  if (magnitude < halfLn2) {
    const float t = expm1Single(magnitude);
    const float w = t + 1.0f;
    if (magnitudeBitsOf(x) < tiny) return w;
    return (t * t) / (w + w) + 1.0f;
  }
  if (magnitude < 22.0f) {
    const float t = expSingle(magnitude);
    return t * 0.5f + 0.5f / t;
  }
  if (magnitude <= expOverflow) return expSingle(magnitude) * 0.5f;
  if (magnitude <= resultOverflow) {
    const float root = expSingle(magnitude * 0.5f);
    return root * (root * 0.5f);
  }
  return infinity;
}

}  // namespace qsl_scalar
