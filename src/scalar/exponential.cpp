#include "scalar/exponential.h"

#include "scalar/kernels/expm1_single.h"
#include "scalar/kernels/pow_single.h"
#include "zthalf/half_scalar.h"

namespace zthalf {

std::uint16_t expm1Of(std::uint16_t x) { return narrow(qsl_scalar::expm1Single(widen<float>(x))); }
std::uint16_t pow2Of(std::uint16_t x) { return narrow(qsl_scalar::powSingle(2.0f, widen<float>(x))); }
std::uint16_t pow10Of(std::uint16_t x) { return narrow(qsl_scalar::powSingle(10.0f, widen<float>(x))); }

}  // namespace zthalf

namespace half_scalar {

half_t exp(half_t x) { return {zthalf::expOf(x.bits)}; }
half_t expm1(half_t x) { return {zthalf::expm1Of(x.bits)}; }
half_t pow2(half_t x) { return {zthalf::pow2Of(x.bits)}; }
half_t pow10(half_t x) { return {zthalf::pow10Of(x.bits)}; }

}  // namespace half_scalar
