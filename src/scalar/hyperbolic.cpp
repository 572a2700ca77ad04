#include "scalar/hyperbolic.h"

#include "core/float_conversion.h"
#include "scalar/kernels/asinh_acosh_single.h"
#include "scalar/kernels/atanh_single.h"
#include "scalar/kernels/sinh_cosh_single.h"
#include "scalar/kernels/tanh_single.h"
#include "zthalf/half_scalar.h"

namespace zthalf {

std::uint16_t sinhOf(std::uint16_t x) { return narrow(qsl_scalar::sinhSingle(widen<float>(x))); }
std::uint16_t coshOf(std::uint16_t x) { return narrow(qsl_scalar::coshSingle(widen<float>(x))); }
std::uint16_t tanhOf(std::uint16_t x) { return narrow(qsl_scalar::tanhSingle(widen<float>(x))); }
std::uint16_t asinhOf(std::uint16_t x) { return narrow(qsl_scalar::asinhSingle(widen<float>(x))); }
std::uint16_t acoshOf(std::uint16_t x) { return narrow(qsl_scalar::acoshSingle(widen<float>(x))); }
std::uint16_t atanhOf(std::uint16_t x) { return narrow(qsl_scalar::atanhSingle(widen<float>(x))); }

}  // namespace zthalf

namespace half_scalar {

half_t sinh(half_t x) { return {zthalf::sinhOf(x.bits)}; }
half_t cosh(half_t x) { return {zthalf::coshOf(x.bits)}; }
half_t tanh(half_t x) { return {zthalf::tanhOf(x.bits)}; }
half_t asinh(half_t x) { return {zthalf::asinhOf(x.bits)}; }
half_t acosh(half_t x) { return {zthalf::acoshOf(x.bits)}; }
half_t atanh(half_t x) { return {zthalf::atanhOf(x.bits)}; }

}  // namespace half_scalar
