#include "scalar/complex/logarithm.h"

#include "core/patterns.h"
#include "scalar/hypot.h"
#include "scalar/kernels/cplx_log.h"
#include "scalar/kernels/log10_single.h"
#include "scalar/kernels/log1p_single.h"
#include "scalar/kernels/log2_single.h"

namespace zthalf {

namespace {

using pattern::isZero;

// A logarithm to some base: of reals, of complex numbers, and the angle pi and half of it as imaginary parts.
struct logarithm {
  float (*ofReal)(float);
  complexOf<float> (*ofComplex)(complexOf<float>);
  std::uint16_t pi, halfPi;
};
constexpr logarithm natural = {qsl_scalar::realKernels<float>::log, qsl_scalar::cplxLogSingle, 0x4248,
                               0x3E48};                                                                // 3.141, 1.570
constexpr logarithm binary = {qsl_scalar::log2Single, qsl_scalar::cplxLog2Single, 0x4488, 0x4088};     // 4.531, 2.266
constexpr logarithm decimal = {qsl_scalar::log10Single, qsl_scalar::cplxLog10Single, 0x3D75, 0x3975};  // 1.364, 0.6821

bool isNegativeNumber(std::uint16_t x) { return pattern::signOf(x) != 0 && !isZero(x) && !pattern::isNaN(x); }

complexHalf ofReal(logarithm const& log, std::uint16_t x) {
  if (isNegativeNumber(x)) return {narrow(log.ofReal(widenMagnitude<float>(x))), log.pi};
  return {narrow(log.ofReal(widen<float>(x))), pattern::zero};
}

// In order: the real axis; the imaginary axis, where the angle is known; all else.
complexHalf ofComplex(logarithm const& log, complexHalf z) {
  if (isZero(z.im)) return ofReal(log, z.re);
  if (isZero(z.re)) {
    const auto angle = static_cast<std::uint16_t>(log.halfPi | pattern::signOf(z.im));
    return {narrow(log.ofReal(widenMagnitude<float>(z.im))), angle};
  }
  return narrowed(log.ofComplex(exactly<float>(z)));
}

// ln(1 + z), z = x + i y. Near -1, where 1 + x is exact, and where nothing is gained, the logarithm of 1 + z; near 0
// its real part is ln(|1 + z|^2) / 2 with |1 + z|^2 = 1 + (2x + x^2 + y^2). A NaN y goes through the kernel.
complexOf<float> log1pSingle(float x, float y) {
  const float u = x + 1.0f;
  if (!(qsl_scalar::magnitudeOf(u) < 0.5f) && x >= -1.0f && y == 0.0f) return {qsl_scalar::log1pSingle(x), 0.0f};
  complexOf<float> result = qsl_scalar::cplxLogSingle({u, y});
  if (qsl_scalar::magnitudeOf(x) < 0.5f) {
    result.re = qsl_scalar::log1pSingle(((x + x) + x * x) + y * y) * 0.5f;
  }
  return result;
}

}  // namespace

complexHalf complexLogOf(std::uint16_t x) { return ofReal(natural, x); }
complexHalf complexLog2Of(std::uint16_t x) { return ofReal(binary, x); }
complexHalf complexLog10Of(std::uint16_t x) { return ofReal(decimal, x); }

complexHalf complexLog1pOf(std::uint16_t x) {
  if (isNegativeNumber(x) && pattern::magnitudeOf(x) > pattern::one) {
    return {narrow(qsl_scalar::realKernels<float>::log(-1.0f - widen<float>(x))), natural.pi};
  }
  return {narrow(qsl_scalar::log1pSingle(widen<float>(x))), pattern::zero};
}

complexHalf logOf(complexHalf z) { return ofComplex(natural, z); }
complexHalf log2Of(complexHalf z) { return ofComplex(binary, z); }
complexHalf log10Of(complexHalf z) { return ofComplex(decimal, z); }

complexHalf log1pOf(complexHalf z) {
  if (isZero(z.im)) return complexLog1pOf(z.re);
  if (z.re == (pattern::one | pattern::signBit)) return logOf(complexHalf{pattern::zero, z.im});
  return narrowed(log1pSingle(widen<float>(z.re), widen<float>(z.im) + 0.0f));
}

}  // namespace zthalf
