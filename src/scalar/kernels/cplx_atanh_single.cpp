#include "scalar/kernels/cplx_atanh_single.h"

#include "scalar/kernels/atanh_single.h"
#include "scalar/kernels/real_kernels.h"
#include "scalar/kernels/square_root.h"

namespace qsl_scalar {

namespace {

// For z = a + i b in the first quadrant, both parts at most half of the root of the largest float:
//
//   re = log1p(4 a / ((1 - a)^2 + b^2)) / 4
//   im = atan2(2 b, (1 - a)(1 + a) - b^2) / 2
//
// and at a = 1, where the first is infinite for a small b,
//
//   re = ln(sqrt(sqrt(4 + b^2)) / sqrt b)
//   im = atan(b / 2) / 2 + pi/4.
//
// t is b and 2^-62 more, which keeps a division by zero away and the arc tangent of zero off zero.
complexOf<float> ofModerate(float a, float b) {
  const float t = b + floatOf(0x20800000u);
  const float e = 1.0f - a;
  if (a == 1.0f) {
    const float upper = squareRoot(squareRoot((b * b + 4.0f) + 0.0f));
    return {realKernels<float>::log(upper / squareRoot(t + 0.0f)), atanSingle(t * 0.5f) * 0.5f + quarterPiUpper};
  }
  return {log1pSingle((a * 4.0f) / (e * e + t * t)) * 0.25f,
          realKernels<float>::atan2(b + b, e * (a + 1.0f) - t * t) * 0.5f};
}

// The real part is a / (a^2 + b^2) there, and nothing is left of the rest; without overflow, by the quotient of the
// smaller magnitude and the larger one. With y a zero, x a zero, or equal magnitudes it is simpler still.
float realPartOfHuge(float a, float b) {
  if (b == 0.0f) return 1.0f / a;
  if (a == 0.0f) return 0.0f;
  if (a > b) return 1.0f / (a + b * (b / a));
  if (a == b) return 0.5f / a;
  return (a / b) / (b + a * (a / b));
}

}  // namespace

// By symmetry in the first quadrant; the signs come in at the end. On the real axis the imaginary part has the sign of
// x.
complexOf<float> cplxAtanhSingle(complexOf<float> z) {
  constexpr float moderate = floatOf(0x5E7FFFFFu);  // 2^62, less one place
  const auto [x, y] = z;
  const float a = magnitudeOf(x);
  const float b = magnitudeOf(y);
  if (y == 0.0f && !(a > 1.0f)) return {atanhSingle(x), 0.0f};
  if (x != x || y != y) return {domainNaN, domainNaN};

  const bool isLeft = x < 0.0f;
  const auto [re, im] =
      a <= moderate && b <= moderate ? ofModerate(a, b) : complexOf<float>{realPartOfHuge(a, b), halfPiUpper};
  const bool isLower = y < 0.0f || (isLeft && y == 0.0f);
  return {isLeft ? -re : re, isLower ? -im : im};
}

}  // namespace qsl_scalar
