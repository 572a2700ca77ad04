#include "scalar/complex/root.h"

#include "core/patterns.h"
#include "scalar/hypot.h"
#include "scalar/root.h"

namespace zthalf {

namespace {

using pattern::isNaN;
using pattern::isZero;

}  // namespace

// |z| is the root of the exact sum of squares, in double and moved off a tie between two floats that it only seems to
// be, so that its rounding to float is right. With g = sqrt((|x| + |z|) / 2), in float:
//
//   x > 0    g + i y / (2 g)
//   x = 0    g + i g, the imaginary part with the sign of y
//   x < 0    |y| / (2 g) + i g, likewise
complexHalf sqrtOf(complexHalf z) {
  constexpr std::uint16_t infinity = pattern::infinity;
  if (isZero(z.im) && !(pattern::orderKey(z.re) < 0 && !isNaN(z.re))) return {sqrtOf(z.re), pattern::zero};
  if (isNaN(z.re) || isNaN(z.im)) return {pattern::quietNaN, pattern::quietNaN};
  if (pattern::isInfinite(z.im)) return {infinity, z.im};

  const std::uint16_t sign = isZero(z.im) ? std::uint16_t{0} : pattern::signOf(z.im);
  const auto x = widen<double>(z.re);
  const auto y = widen<double>(z.im);
  const auto length = static_cast<float>(rootOfSquares<formatOf<float>::fractionWidth>(x, y));
  const float magnitudeX = widenMagnitude<float>(z.re);
  const float magnitudeY = widenMagnitude<float>(z.im);
  const float g = std::sqrt((magnitudeX + length) * 0.5f);
  const std::uint16_t along = narrow(g);
  if (isZero(z.re)) return {along, static_cast<std::uint16_t>(along | sign)};
  const std::uint16_t across = narrow((magnitudeY / g) * 0.5f);
  if (x > 0) return {along, static_cast<std::uint16_t>(across | sign)};
  return {across, static_cast<std::uint16_t>(along | sign)};
}

}  // namespace zthalf
