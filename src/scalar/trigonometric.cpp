#include "scalar/trigonometric.h"

#include "core/float_conversion.h"
#include "scalar/kernels/sin_cos_single.h"
#include "scalar/kernels/sinpi_cospi_single.h"
#include "scalar/kernels/tan_single.h"
#include "zthalf/half_scalar.h"

namespace zthalf {

std::uint16_t sinOf(std::uint16_t x) { return narrow(qsl_scalar::sinSingle(widen<float>(x))); }
std::uint16_t cosOf(std::uint16_t x) { return narrow(qsl_scalar::cosSingle(widen<float>(x))); }
std::uint16_t tanOf(std::uint16_t x) { return narrow(qsl_scalar::tanSingle(widen<float>(x))); }
std::uint16_t sinpiOf(std::uint16_t x) { return narrow(qsl_scalar::sinpiSingle(widen<float>(x))); }
std::uint16_t cospiOf(std::uint16_t x) { return narrow(qsl_scalar::cospiSingle(widen<float>(x))); }

}  // namespace zthalf

namespace half_scalar {

half_t sin(half_t x) { return {zthalf::sinOf(x.bits)}; }
half_t cos(half_t x) { return {zthalf::cosOf(x.bits)}; }
half_t tan(half_t x) { return {zthalf::tanOf(x.bits)}; }
half_t sinpi(half_t x) { return {zthalf::sinpiOf(x.bits)}; }
half_t cospi(half_t x) { return {zthalf::cospiOf(x.bits)}; }

}  // namespace half_scalar
