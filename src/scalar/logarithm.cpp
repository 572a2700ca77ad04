#include "scalar/logarithm.h"

#include "scalar/kernels/logarithm_constants.h"

namespace zthalf {

using qsl_scalar::exponentFieldOf;
using qsl_scalar::ln2;
using qsl_scalar::logSingle;
using qsl_scalar::withExponentField;

namespace {
constexpr std::uint16_t minusInfinity = pattern::infinity | pattern::signBit;
constexpr std::uint16_t negativeNaN = pattern::quietNaN | pattern::signBit;
}  // namespace

// v = m 2^e with m in [0.5, 1), and log2 v = ln m / ln 2 + e, where the division is a true one. Powers of two are
// exact. In (1, 1.5), where the two terms would cancel, 2m = v is taken instead, with an exponent of 0.
std::uint16_t log2Of(std::uint16_t x) {
  const float v = widen<float>(x);
  if (v == 0.0f) return minusInfinity;
  if (v < 0.0f) return negativeNaN;
  if (!pattern::isFinite(x)) return narrow(v);

  const float m = withExponentField(v, 126);
  const std::int32_t e = exponentFieldOf(v) - 126;
  if (m == 0.5f) return narrow(static_cast<float>(e - 1));
  if (e == 1 && m < 0.75f) return narrow(logSingle(m + m) / ln2);
  return narrow(logSingle(m) / ln2 + static_cast<float>(e));
}

// v = m 2^d with m in [1, 2) from 1 on and in [0.5, 1) below, so that d log10(2), added in two parts, and
// log10 m = ln m * log10(e) have the same sign and do not cancel.
std::uint16_t log10Of(std::uint16_t x) {
  constexpr float log10Of2Upper = floatOf(0x3E9A2000u);  // 0.301025390625, exact times any exponent
  constexpr float log10Of2Lower = floatOf(0x369A84FCu);  // 4.605039066518657e-06
  constexpr float log10OfE = floatOf(0x3EDE5BD9u);       // 0.4342944920063019
  const float v = widen<float>(x);
  if (pattern::isZero(x)) return minusInfinity;
  if (pattern::signOf(x) != 0) return negativeNaN;  // a NaN too
  if (!pattern::isFinite(x)) return narrow(v);

  const std::int32_t k = exponentFieldOf(v) - 127;
  const float m = withExponentField(v, k < 0 ? 126 : 127);
  const auto d = static_cast<float>(k < 0 ? k + 1 : k);
  return narrow(d * log10Of2Upper + (d * log10Of2Lower + logSingle(m) * log10OfE));
}

}  // namespace zthalf
