#include "scalar/kernels/cplx_log.h"

#include "scalar/kernels/log10_single.h"
#include "scalar/kernels/log2_single.h"

namespace qsl_scalar {

namespace {

// ln |z|. In order:
//   y a zero          ln |x|
//   |z| infinite      ln |z/2| + ln 2: |z| may have overflowed alone
//   0.875 to 1.125    near the unit circle |z| as a number is too coarse: with q the larger of x^2 and y^2,
//                     ln |z| = log1p(-((1 - q) - rest)) / 2
//   otherwise         ln |z|
// No step meets two NaNs or makes one, so that the kernels alone decide about them.
template <class Wide>
ZTHALF_INLINE Wide logLength(complexOf<Wide> z) {
  using kernels = realKernels<Wide>;
  const auto [x, y] = z;
  if (y == 0) return kernels::log(zthalf::withoutSign(x));
  Wide length = kernels::hypot(x, y);
  if (Wide(0.875) < length && length < Wide(1.125)) {
    const Wide xx = x * x;
    const Wide yy = y * y;
    const Wide k = xx > yy ? (1 - xx) - yy : (1 - yy) - xx;
    return kernels::log1p(-k) * Wide(0.5);
  }
  if (length > kernels::largestFinite) return kernels::log(kernels::hypot(x * Wide(0.5), y * Wide(0.5))) + kernels::ln2;
  return kernels::log(length);
}

template <class Wide>
complexOf<Wide> cplxLog(complexOf<Wide> z) {
  return {logLength(z), logAngle(z)};
}

// To another base: the logarithm of the length by its own kernel, the angle divided by the logarithm of the base, which
// is a true division. pi has been divided already.
struct otherBase {
  float (*log)(float);
  float ofTwo;       // the logarithm of 2
  float naturalLog;  // of the base
  float pi;          // pi divided by that
};
constexpr otherBase ten = {log10Single,
                           floatOf(0x3E9A209Au),   // 0.30103
                           floatOf(0x40135D8Eu),   // 2.3025851
                           floatOf(0x3FAEA3E3u)};  // 1.3643764
constexpr otherBase two = {log2Single, 1.0f,
                           ln2,                    // 0.6931472
                           floatOf(0x40910918u)};  // 4.5323601

complexOf<float> logTo(otherBase const& base, complexOf<float> z) {
  const auto [x, y] = z;
  if (y == 0.0f) return {base.log(magnitudeOf(x)), x < 0.0f ? withSignOf(base.pi, y) : 0.0f};
  const float angle = realKernels<float>::atan2(y, x) / base.naturalLog;
  const float length = hypotSingle(x, y);
  if (length > realKernels<float>::largestFinite) {
    return {base.log(hypotSingle(x * 0.5f, y * 0.5f)) + base.ofTwo, angle};
  }
  return {base.log(length), angle};
}

}  // namespace

complexOf<float> cplxLogSingle(complexOf<float> z) { return cplxLog(z); }
complexOf<double> cplxLogDouble(complexOf<double> z) { return cplxLog(z); }

complexOf<float> cplxLog10Single(complexOf<float> z) { return logTo(ten, z); }
complexOf<float> cplxLog2Single(complexOf<float> z) { return logTo(two, z); }

}  // namespace qsl_scalar
