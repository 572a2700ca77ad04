// Functions of two single values, one of them a half.
#include "scalar/angle.h"
#include "scalar/half_remainder.h"
#include "scalar/hypot.h"
#include "scalar/power.h"
#include "scalar/scaling.h"
#include "zthalf/half_scalar.h"

namespace half_scalar {

// A row for each of five pairs of types.
#define ZTHALF_DEFINE_PAIRS(function, body)                              \
  half_t function(half_t x, half_t y) { return {body(x.bits, y.bits)}; } \
  half_t function(half_t x, float y) { return {body(x.bits, y)}; }       \
  half_t function(half_t x, double y) { return {body(x.bits, y)}; }      \
  half_t function(float x, half_t y) { return {body(x, y.bits)}; }       \
  half_t function(double x, half_t y) { return {body(x, y.bits)}; }
ZTHALF_DEFINE_PAIRS(hypot, zthalf::hypotOf)
ZTHALF_DEFINE_PAIRS(atan2, zthalf::atan2Of)
ZTHALF_DEFINE_PAIRS(power, zthalf::powerOf)
ZTHALF_DEFINE_PAIRS(pow2, zthalf::scaledByPowerOfTwo)
#undef ZTHALF_DEFINE_PAIRS

half_t mod(half_t x, half_t y) { return {zthalf::modOfHalves(x.bits, y.bits)}; }
half_t rem(half_t x, half_t y) { return {zthalf::remOfHalves(x.bits, y.bits)}; }

}  // namespace half_scalar
