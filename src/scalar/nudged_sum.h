// A sum of two terms that is about to be rounded a second time, to a narrower type.
#pragma once

#include "core/bits.h"
#include "core/float_conversion.h"

namespace zthalf {

// The sum of two numbers, moved so that a rounding which drops its lowest `dropped` bits acts on the exact sum.
//
// With s the rounded sum, e is s less the exact sum: its sign is right always. Rounding s again goes wrong where s is a
// tie of the narrow type and the exact sum is not. Where s is too small in magnitude, setting its lowest bit moves it
// off a tie and changes nothing else that the second rounding sees; where it is too large and a tie, it is lowered by
// its last bit. So the result is the correctly rounded one, except below the narrow type's normal range, where the ties
// have more bits below them.
//
// With an infinity or a NaN e is a NaN and nothing is moved.
template <int dropped, class Wide>
ZTHALF_INLINE Wide nudgedSum(Wide p, Wide q) {
  using word = typename formatOf<Wide>::word;
  constexpr word tieMask = (word{1} << dropped) - 1;
  constexpr word tie = word{1} << (dropped - 1);
  const Wide s = p + q;
  const Wide e = ((s - p) - q) + ((s - q) - p);
  const word bits = bitsOf(s);
  const bool isTooSmall = ((e < 0) & (s > 0)) | ((e > 0) & (s < 0));
  const bool isTooLarge = ((e > 0) & (s > 0)) | ((e < 0) & (s < 0));
  const word raise = maskOf<word>(isTooSmall) & 1;
  const word lower = maskOf<word>(isTooLarge & ((bits & tieMask) == tie)) & 1;
  return valueOf((bits | raise) - lower);
}

}  // namespace zthalf
