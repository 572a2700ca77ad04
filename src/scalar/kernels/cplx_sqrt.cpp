#include "scalar/kernels/cplx_sqrt.h"

#include <type_traits>

namespace qsl_scalar {

namespace detail::internalOnly {

namespace {

template <class Wide>
struct scaling;

// Beyond highThresh the argument is scaled by 1/8 and the root of the sum, itself a quarter of twice the sum, by 2.
// Below it is scaled by an odd power of two that makes the smallest subnormals normal.
template <>
struct scaling<float> {
  static float highThresh() { return floatOf(0x72FFFFFFu); }  // 2^103, less one place
  static constexpr float up = 0x1p23f;
  static constexpr float upBack = 0x1p-12f;
};
template <>
struct scaling<double> {
  static double highThresh() { return zthalf::doubleOf(0x7C9FFFFFFFFFFFFFu); }
  static constexpr double up = 0x1p51;
  static constexpr double upBack = 0x1p-26;
};

}  // namespace

// sqrt((|x| + |z|) / 2) = back sqrt(ax + |z'|) for z' = sc z, ax = |x'| and 2 sc back^2 = 1. In order: a real z; an
// infinite part, or one that is not a number, where the sum of magnitudes stands for the length; all else.
template <class Wide>
Wide RealPartOfComplexSqrtExtreme(Wide x, Wide y) {
  // Set at the first call, by one thread.
  static const Wide highThresh = scaling<Wide>::highThresh();
  const bool isBig = zthalf::withoutSign(x) > highThresh || zthalf::withoutSign(y) > highThresh;
  const Wide sc = isBig ? Wide(0.125) : scaling<Wide>::up;
  const Wide back = isBig ? Wide(2) : scaling<Wide>::upBack;
  const Wide ax = zthalf::withoutSign(sc * x);
  const Wide ys = sc * y;
  if (ys == 0) return back * squareRoot((ax + ax) + 0);
  if (!isFiniteNumber(ax) || !isFiniteNumber(ys)) {
    const Wide length = zthalf::settled(ax + zthalf::withoutSign(ys), ax, zthalf::withoutSign(ys));
    return back * squareRoot(zthalf::settled(ax + length, ax, length) + 0);
  }
  return back * squareRoot((ax + realKernels<Wide>::hypot(ax, ys)) + 0);
}

template float RealPartOfComplexSqrtExtreme<float>(float, float);
template double RealPartOfComplexSqrtExtreme<double>(double, double);

}  // namespace detail::internalOnly

namespace {

// The root with a real part that is not negative. With g = sqrt((|x| + |z|) / 2)
//
//   x > 0    g + i y / (2 g)
//   x < 0    |y| / (2 g) + i g, the imaginary part with the sign of y
//   x = 0    g + i g, likewise
//
// so that nothing cancels. Before it: a real z that is not negative, minus zero included, has the real root with an
// imaginary part of +0; a NaN gives the negative NaN twice. y = -0 counts as +0, so that the cut does not see its sign.
template <class Wide>
complexOf<Wide> cplxSqrt(complexOf<Wide> z) {
  using kernels = realKernels<Wide>;
  const Wide x = z.re;
  if (!(x < 0) && z.im == 0) return {squareRoot(x + 0), 0};
  if (isNaN(x) || isNaN(z.im)) return {kernels::nan, kernels::nan};

  const Wide y = z.im + 0;
  const Wide length = kernels::hypot(x, y);
  const bool isPlain = length >= kernels::smallestNormal && length <= kernels::largestFinite;
  const Wide g = isPlain ? std::sqrt((zthalf::withoutSign(x) * Wide(0.5) + length * Wide(0.5)) + 0)
                         : detail::internalOnly::RealPartOfComplexSqrtExtreme(x, y);
  const auto otherPart = [=](Wide part) { return isFiniteNumber(y) ? (y / part) * Wide(0.5) : y * part; };
  if (x > 0) return {g, otherPart(g)};
  const Wide im = y < 0 ? -g : g;
  return {x < 0 ? otherPart(im) : g, im};
}

}  // namespace

complexOf<float> cplxSqrtSingle(complexOf<float> z) { return cplxSqrt(z); }
complexOf<double> cplxSqrtDouble(complexOf<double> z) { return cplxSqrt(z); }

}  // namespace qsl_scalar
