#include "scalar/inverse_trigonometric.h"

#include "core/float_conversion.h"
#include "scalar/kernels/asin_acos_single.h"
#include "scalar/kernels/atan_single.h"
#include "zthalf/half_scalar.h"

namespace zthalf {

std::uint16_t asinOf(std::uint16_t x) { return narrow(qsl_scalar::asinSingle(widen<float>(x))); }
std::uint16_t acosOf(std::uint16_t x) { return narrow(qsl_scalar::acosSingle(widen<float>(x))); }
std::uint16_t atanOf(std::uint16_t x) { return narrow(qsl_scalar::atanSingle(widen<float>(x))); }

}  // namespace zthalf

namespace half_scalar {

half_t asin(half_t x) { return {zthalf::asinOf(x.bits)}; }
half_t acos(half_t x) { return {zthalf::acosOf(x.bits)}; }
half_t atan(half_t x) { return {zthalf::atanOf(x.bits)}; }

}  // namespace half_scalar
