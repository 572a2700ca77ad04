// mod and rem of a half and a float or double: the exact remainder there, with a tolerance of the wider type's last
// place.
#pragma once

#include <cmath>
#include <cstdint>
#include <limits>

#include "core/float_conversion.h"
#include "core/nan_policy.h"
#include "scalar/kernels/exact_remainder.h"
#include "scalar/kernels/mod.h"

namespace zthalf {

// Whether x / y is an integer as far as the wider type can tell. It is asked only of finite numbers, and only where y
// has a fraction: such a y may have been rounded when it was stored. The distance from the rounded quotient to the
// nearest integer is compared with one epsilon of the quotient; a quotient beyond the type's range counts as an
// integer.
//
// So does a quotient that is rounded to zero. That one is decided by the last places in x: the processor may be set to
// flush all subnormal numbers to zero, which must not change the answer. An x that small is no half, so y is one.
template <class Wide>
bool dividesWithinTolerance(Wide x, Wide y) {
  using format = formatOf<Wide>;
  if (y == std::trunc(y)) return false;
  const auto magnitudeX = bitsOf(std::abs(x));
  if (magnitudeX < bitsOf(Wide(0x1p-60))) {
    return magnitudeX >> format::fractionWidth == 0 &&
           static_cast<Wide>(static_cast<std::int64_t>(magnitudeX)) <= std::abs(y) * Wide(0.5);
  }
  const Wide quotient = x / y;
  const Wide nearest = std::round(quotient);
  const Wide distance = std::abs(quotient - nearest);
  const Wide tolerance = std::abs(quotient) * std::numeric_limits<Wide>::epsilon();
  return quotient == nearest || !(distance > tolerance);
}

// The remainder with the sign of x, rounded to half. An infinite x and a zero y are invalid and give 0x7E00; a NaN
// gives 0x7E00 with its sign. Whether y is zero is asked of its bits, since a flushed subnormal counts as zero as well.
template <class Wide>
std::uint16_t remOfWide(Wide x, Wide y) {
  const Wide magnitudeX = std::abs(x);
  const Wide magnitudeY = std::abs(y);
  constexpr Wide largest = std::numeric_limits<Wide>::max();
  if (!(magnitudeX <= largest) || bitsOf(magnitudeY) == 0 || y != y) return narrow(settled(defaultNaN<Wide>, x, y));

  Wide remainder = magnitudeX < magnitudeY ? magnitudeX : qsl_scalar::exactRemainder(magnitudeX, magnitudeY);
  if (remainder != 0 && magnitudeY <= largest && dividesWithinTolerance(x, y)) remainder = 0;
  return narrow(std::copysign(remainder, x));
}

inline float modOfSameType(float x, float y) { return qsl_scalar::modSingle(x, y); }
inline double modOfSameType(double x, double y) { return qsl_scalar::modDouble(x, y); }

// The remainder with the sign of y, rounded to half, and the NaN of modSingle and modDouble.
template <class Wide>
std::uint16_t modOfWide(Wide x, Wide y) {
  constexpr Wide largest = std::numeric_limits<Wide>::max();
  Wide remainder = modOfSameType(x, y);
  const bool areFinite = std::abs(x) <= largest && std::abs(y) <= largest;
  if (remainder != 0 && areFinite && dividesWithinTolerance(x, y)) remainder = std::copysign(Wide(0), y);
  return narrow(remainder);
}

}  // namespace zthalf
