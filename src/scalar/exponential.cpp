#include "scalar/exponential.h"

#include "scalar/kernels/expm1_single.h"
#include "scalar/power_of_halves.h"
#include "zthalf/half_scalar.h"

namespace zthalf {

std::uint16_t expm1Of(std::uint16_t x) { return narrow(qsl_scalar::expm1Single(widen<float>(x))); }

}  // namespace zthalf

namespace half_scalar {

half_t exp(half_t x) { return {zthalf::expOf(x.bits)}; }
half_t expm1(half_t x) { return {zthalf::expm1Of(x.bits)}; }
half_t pow2(half_t x) { return {zthalf::pow2Of<qsl_scalar::singleFloatParts>(x.bits)}; }
half_t pow10(half_t x) { return {zthalf::pow10Of<qsl_scalar::singleFloatParts>(x.bits)}; }

}  // namespace half_scalar
