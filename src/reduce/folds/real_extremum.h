// The extremum of contiguous real halves, found in vector lanes.
//
// The tree of the reductions is not followed here, since for real elements every order of steps finds the same one: the
// first of those with the smallest place (see placeOf), or the last one of nothing but omitted NaNs. A tie keeps what
// is held, and it is always what came earlier: that each chain of the tree begins with the array's first element only
// brings in copies of it, which tie with it or lose.
#pragma once

#include <algorithm>

#include "core/instruction_level.h"
#include "frame/loops/parallel_ranges.h"
#include "scalar/extremum.h"
#include "zthalf/half_t.h"

namespace half_utils {

using zthalf::placeOf;

template <class Kind>
struct smallestPlacePass {
  static constexpr bool isWide = true;
  ZTHALF_INLINE static void run(fp16binary_t const* src, unsigned long n, std::int16_t* result) {
    std::int16_t smallest = zthalf::lastPlace;
    for (unsigned long i = 0; i < n; ++i) smallest = zthalf::smallerOf(smallest, placeOf<Kind>(src[i].bits));
    *result = smallest;
  }
};

// The same with the first position that has the place: the smallest of numbers with the place above the position.
template <class Kind>
struct firstSmallestPass {
  static constexpr bool isWide = true;
  static constexpr unsigned long mostElements = 1 << 16;
  ZTHALF_INLINE static void run(fp16binary_t const* src, unsigned long n, std::int32_t* result) {
    const auto count = static_cast<std::int32_t>(n);
    std::int32_t smallest = std::int32_t{zthalf::lastPlace} * 65536 + 65535;
    for (std::int32_t i = 0; i < count; ++i) {
      smallest = zthalf::smallerOf(smallest, placeOf<Kind>(src[i].bits) * 65536 + i);
    }
    *result = smallest;
  }
};

// An element's place and its position among those looked at.
struct placedElement {
  std::int16_t place;
  unsigned long position;
};

// Whether an element replaces what was found before it.
template <class Kind>
ZTHALF_INLINE bool replaces(std::int16_t place, std::int16_t heldPlace) {
  if constexpr (!Kind::nanWins) place = zthalf::smallerOf(place, static_cast<std::int16_t>(zthalf::lastPlace - 1));
  return place < heldPlace;
}

// The search: over long stretches only the smallest place is asked for, and the first stretch that has it is then
// searched for the element.
template <class Kind>
class realExtremumSearch {
 public:
  // Of at least one element.
  placedElement among(fp16binary_t const* src, unsigned long n) const {
    if (n <= stretch) return first(src, n);
    std::int16_t smallest = smallestOf(src, stretch);
    unsigned long at = 0;
    for (unsigned long begin = stretch; begin < n && smallest != zthalf::firstPlace; begin += stretch) {
      const std::int16_t place = smallestOf(src + begin, std::min(n - begin, stretch));
      if (place < smallest) smallest = place, at = begin;
    }
    if (smallest == zthalf::lastPlace) return {smallest, n - 1};
    return {smallest, at + first(src + at, std::min(n - at, stretch)).position};
  }

  // The same, of many elements in pieces that several threads take. How they are cut follows from their number.
  placedElement amongMany(fp16binary_t const* src, unsigned long n) const {
    return n <= elementsPerTask ? among(src, n) : amongPieces(src, n);
  }

 private:
  placedElement amongPieces(fp16binary_t const* src, unsigned long n) const {
    constexpr unsigned long mostPieces = 64;
    const unsigned long piece = std::max(n / mostPieces + 1, elementsPerTask);
    const unsigned long pieces = (n - 1) / piece + 1;
    placedElement found[mostPieces];
    forRanges(pieces, 1, [&](unsigned long begin, unsigned long end) {
      for (unsigned long p = begin; p < end; ++p) found[p] = among(src + p * piece, std::min(piece, n - p * piece));
    });
    unsigned long best = 0;
    for (unsigned long p = 1; p < pieces; ++p)
      if (replaces<Kind>(found[p].place, found[best].place)) best = p;
    return {found[best].place, best * piece + found[best].position};
  }

  static constexpr unsigned long stretch = 2048;
  static_assert(stretch <= firstSmallestPass<Kind>::mostElements);
  static constexpr unsigned long aFew = 8;                   // not worth a call
  static constexpr unsigned long elementsPerTask = 1 << 18;  // 512 KiB, some 20 microseconds

  std::int16_t smallestOf(fp16binary_t const* src, unsigned long n) const {
    std::int16_t place;
    smallest_(src, n, &place);
    return place;
  }

  // Of nothing but omitted NaNs the last one.
  placedElement first(fp16binary_t const* src, unsigned long n) const {
    std::int32_t found;
    n <= aFew ? firstSmallestPass<Kind>::run(src, n, &found) : first_(src, n, &found);
    const auto place = static_cast<std::int16_t>(found >> 16);
    return {place, place == zthalf::lastPlace ? n - 1 : static_cast<unsigned long>(found & 0xFFFF)};
  }

  void (*smallest_)(fp16binary_t const*, unsigned long, std::int16_t*) =
      zthalf::leveled<smallestPlacePass<Kind>, fp16binary_t const*, unsigned long, std::int16_t*>::chosen();
  void (*first_)(fp16binary_t const*, unsigned long, std::int32_t*) =
      zthalf::leveled<firstSmallestPass<Kind>, fp16binary_t const*, unsigned long, std::int32_t*>::chosen();
};

}  // namespace half_utils
