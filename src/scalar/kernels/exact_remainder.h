// The exact remainder of two magnitudes, in single or double precision.
#pragma once

#include <algorithm>
#include <bit>
#include <cstdint>

#include "core/bits.h"
#include "core/float_conversion.h"

namespace qsl_scalar {

// x modulo y for finite x >= y > 0, which is exact: a multiple of the last place of y that is below y.
//
// With x = X 2^ex and y = Y 2^ey, X and Y integers and d = ex - ey, the remainder is (X 2^d mod Y) 2^ey. The long
// division goes by as many binary places at once as a 64-bit word has room for above Y: r 2^k mod Y needs r < Y and
// Y 2^k within the word. Trailing zeros of Y only cost room, and are first moved into ey: a divisor that was widened
// from a half leaves 53 places for each step.
template <class Wide>
Wide exactRemainder(Wide x, Wide y) {
  using format = zthalf::formatOf<Wide>;
  using word = typename format::word;
  constexpr int width = format::fractionWidth;
  constexpr std::uint64_t leadingOne = std::uint64_t{1} << width;

  const std::uint64_t bitsX = zthalf::bitsOf(x);
  const std::uint64_t bitsY = zthalf::bitsOf(y);
  // Subnormals have the exponent of field 1, and no leading one.
  const int fieldX = static_cast<int>(bitsX >> width);
  int fieldY = static_cast<int>(bitsY >> width);
  std::uint64_t remainder = (bitsX & (leadingOne - 1)) | (fieldX > 0 ? leadingOne : 0);
  std::uint64_t divisor = (bitsY & (leadingOne - 1)) | (fieldY > 0 ? leadingOne : 0);
  fieldY = std::max(fieldY, 1);
  int places = std::max(fieldX, 1) - fieldY;

  const int zeros = std::min(std::countr_zero(divisor), places);
  divisor >>= zeros;
  fieldY += zeros;
  places -= zeros;
  const int room = std::countl_zero(divisor);
  remainder %= divisor;
  while (places > 0 && remainder != 0) {
    const int step = std::min(places, room);
    remainder = (remainder << step) % divisor;
    places -= step;
  }
  if (remainder == 0) return Wide(0);

  // Up to the place of the leading one, but no farther than the exponent of the subnormals. There the leading one,
  // added to a field one too small, makes the field.
  const int shift = std::min(std::countl_zero(remainder) - (63 - width), fieldY - 1);
  const auto field = static_cast<std::uint64_t>(fieldY - shift - 1);
  return zthalf::valueOf(static_cast<word>((remainder << shift) + (field << width)));
}

}  // namespace qsl_scalar
