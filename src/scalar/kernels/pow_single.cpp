#include "scalar/kernels/pow_single.h"

#include <cmath>
#include <cstdint>

#include "scalar/kernels/float_fields.h"
#include "scalar/kernels/pow_single_parts.h"
#include "scalar/kernels/square_root.h"

namespace qsl_scalar {

namespace {

bool isWhole(float power) { return power == std::trunc(power); }

// From 2^24 on every float is an even integer.
bool isOdd(float whole) { return whole < 0x1p24f && (static_cast<std::int32_t>(whole) & 1) != 0; }

// |x| = 1 keeps its magnitude, a smaller one goes to zero and a larger one to infinity, and the reverse for y < 0.
float powerToInfinity(float magnitude, float y) {
  if (magnitude == 1.0f) return 1.0f;
  return (magnitude > 1.0f) == (y > 0.0f) ? infinity : 0.0f;
}

// |x| = 0, 1 or infinity. A power that is not an integer leaves minus zero positive and, where it is negative,
// -infinity as well.
float powerOfEdge(float x, float magnitude, float y) {
  const float r = y < 0.0f ? 1.0f / magnitude : magnitude;
  if (!hasSign(x)) return r;
  const float power = magnitudeOf(y);
  if (isWhole(power)) return isOdd(power) ? -r : r;
  if (x == -1.0f || (x == negativeInfinity && y > 0.0f)) return domainNaN;
  return r;
}

// x^y = 2^p, p = y log2 x in two parts.
float powerOfTwo(powers::split p) {
  const float sum = p.upper + p.lower;
  if (magnitudeOf(sum) >= 128.0f) {
    if (powers::overflows(p, sum)) return infinity;
    if (powers::vanishes(p, sum)) return 0.0f;
  }
  return powers::exponential(p, sum);
}

float hugePowerOf(float x, float y) {
  if (x < powers::nextBelowOne) return y < 0.0f ? infinity : 0.0f;
  if (x > powers::nextAboveOne) return y > 0.0f ? infinity : 0.0f;
  return powerOfTwo(powers::product(y, powers::logarithmNearOne(x)));
}

// x^y for a finite positive x that is not 1.
float powerOfPositive(float x, float y) {
  if (magnitudeOf(y) > powers::hugePower) return hugePowerOf(x, y);
  return powerOfTwo(powers::product(y, powers::logarithm(x)));
}

}  // namespace

// The order of the cases decides where two of them meet, as in NaN^0 or (-infinity)^0.5.
float powSingle(float x, float y) {
  if (y == 2.0f) return x * x;
  if (y == 1.0f) return x;
  if (y == 0.0f) return x != x ? domainNaN : 1.0f;
  if (y == -1.0f) return 1.0f / x;
  if (y == 0.5f) return squareRoot(x + 0.0f);
  if (x != x || y != y) return domainNaN;

  const float magnitude = magnitudeOf(x);
  const float power = magnitudeOf(y);
  if (power == infinity) return powerToInfinity(magnitude, y);
  if (magnitude == infinity || magnitude == 0.0f || magnitude == 1.0f) return powerOfEdge(x, magnitude, y);
  if (x > 0.0f) return powerOfPositive(x, y);
  if (!isWhole(power)) return domainNaN;
  const float result = powerOfPositive(magnitude, y);
  return isOdd(power) ? -result : result;
}

}  // namespace qsl_scalar
