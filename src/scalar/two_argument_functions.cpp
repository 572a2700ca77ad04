// mod, rem, hypot, atan2, power, pow2 with an exponent, and fma of single values.
#include "scalar/half_remainder.h"
#include "scalar/multiply_add.h"
#include "scalar/two_argument.h"
#include "zthalf/half_scalar.h"

namespace half_scalar {

half_t mod(half_t x, half_t y) { return {zthalf::modOfHalves(x.bits, y.bits)}; }
half_t rem(half_t x, half_t y) { return {zthalf::remOfHalves(x.bits, y.bits)}; }

half_t hypot(half_t x, half_t y) { return {zthalf::hypotOf(x.bits, y.bits)}; }
half_t hypot(half_t x, float y) { return {zthalf::hypotOf(x.bits, y)}; }
half_t hypot(half_t x, double y) { return {zthalf::hypotOf(x.bits, y)}; }
half_t hypot(float x, half_t y) { return {zthalf::hypotOf(x, y.bits)}; }
half_t hypot(double x, half_t y) { return {zthalf::hypotOf(x, y.bits)}; }

half_t atan2(half_t y, half_t x) { return {zthalf::atan2Of(y.bits, x.bits)}; }
half_t atan2(half_t y, float x) { return {zthalf::atan2Of(y.bits, x)}; }
half_t atan2(half_t y, double x) { return {zthalf::atan2Of(y.bits, x)}; }
half_t atan2(float y, half_t x) { return {zthalf::atan2Of(y, x.bits)}; }
half_t atan2(double y, half_t x) { return {zthalf::atan2Of(y, x.bits)}; }

half_t power(half_t x, half_t y) { return {zthalf::powerOf(x.bits, y.bits)}; }
half_t power(half_t x, float y) { return {zthalf::powerOf(x.bits, y)}; }
half_t power(half_t x, double y) { return {zthalf::powerOf(x.bits, y)}; }
half_t power(float x, half_t y) { return {zthalf::powerOf(x, y.bits)}; }
half_t power(double x, half_t y) { return {zthalf::powerOf(x, y.bits)}; }

half_t pow2(half_t x, half_t y) { return {zthalf::scaledByPowerOfTwo(x.bits, y.bits)}; }
half_t pow2(half_t x, float y) { return {zthalf::scaledByPowerOfTwo(x.bits, y)}; }
half_t pow2(half_t x, double y) { return {zthalf::scaledByPowerOfTwo(x.bits, y)}; }
half_t pow2(float x, half_t y) { return {zthalf::scaledByPowerOfTwo(x, y.bits)}; }
half_t pow2(double x, half_t y) { return {zthalf::scaledByPowerOfTwo(x, y.bits)}; }

// A NaN is rare, and settling one costs as much as the rest.
half_t fma(half_t x, half_t y, half_t z) {
  const std::uint16_t plain = zthalf::plainMultiplyAdd(x.bits, y.bits, z.bits);
  return {zthalf::pattern::isNaN(plain) ? zthalf::multiplyAdd(x.bits, y.bits, z.bits) : plain};
}

}  // namespace half_scalar
