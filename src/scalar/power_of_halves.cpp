#include "scalar/power_of_halves.h"

#include "zthalf/half_scalar.h"

namespace zthalf {

namespace {

// The single of a normal half.
float widenNormal(std::uint16_t v) {
  const auto placed = static_cast<std::uint32_t>(pattern::magnitudeOf(v)) << 13;
  const auto sign = static_cast<std::uint32_t>(pattern::signOf(v)) << 16;
  return floatOf((placed + ((127u - 15u) << 23)) | sign);
}

bool isNormal(std::uint16_t magnitude) {
  constexpr unsigned smallest = 0x0400;
  return magnitude - smallest <= pattern::largestFinite - smallest;
}

// All cases, and out of the way.
[[gnu::noinline]] std::uint16_t anyPowerOfHalves(std::uint16_t x, std::uint16_t y) { return powerOfHalves(x, y); }

}  // namespace

// The fewer instructions a call has, the more calls overlap. So the usual case skips what only decides special ones: a
// positive normal x, a normal y, no square and no root. The power is a number from 0 to 65536 then.
std::uint16_t powerOfTwoHalves(std::uint16_t x, std::uint16_t y) {
  constexpr std::uint16_t two = 0x4000, oneHalf = 0x3800;
  const bool isUsual = isNormal(x) && isNormal(pattern::magnitudeOf(y)) && y != two && y != oneHalf;
  if (!isUsual) return anyPowerOfHalves(x, y);

  using parts = qsl_scalar::singleFloatParts;
  const qsl_scalar::powers::split log2X = qsl_scalar::powers::logarithmOfNormal<parts>(bitsOf(widenNormal(x)));
  return narrowPower(powerFromLogarithm<parts>(log2X, widenNormal(y)));
}

}  // namespace zthalf

namespace half_scalar {

half_t pow2(half_t x) { return {zthalf::pow2Of<qsl_scalar::singleFloatParts>(x.bits)}; }
half_t pow10(half_t x) { return {zthalf::pow10Of<qsl_scalar::singleFloatParts>(x.bits)}; }

}  // namespace half_scalar
