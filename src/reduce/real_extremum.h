// The extremum of contiguous real halves, found in vector lanes.
// Internal: promises nothing to users of the library.
//
// The tree of the reductions is not followed here, since for real elements every order of steps finds the same one: the
// first of those with the smallest place (see placeOf), or the last one of nothing but omitted NaNs. A tie keeps what
// is held, and it is always what came earlier: that each chain of the tree begins with the array's first element only
// brings in copies of it, which tie with it or lose.
#pragma once

#include <algorithm>

#include "core/instruction_level.h"
#include "frame/parallel_ranges.h"
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

// The search: over long stretches only the smallest place is asked for, in lanes. The first stretch that has it is then
// cut down until the element can be looked for one by one.
template <class Kind>
class realExtremumSearch {
 public:
  // Of at least one element.
  placedElement among(fp16binary_t const* src, unsigned long n) const {
    if (n <= aFew) return amongAFew(src, n);
    placedElement found{smallestOf(src, std::min(n, stretch)), 0};
    for (unsigned long begin = stretch; begin < n && found.place != zthalf::firstPlace; begin += stretch) {
      const std::int16_t place = smallestOf(src + begin, std::min(n - begin, stretch));
      if (place < found.place) found = {place, begin};
    }
    if (found.place == zthalf::lastPlace) return {found.place, n - 1};
    found.position += firstWith(found.place, src + found.position, std::min(n - found.position, stretch));
    return found;
  }

  // The same in pieces that several threads take. How it is cut follows from the number of elements.
  placedElement amongMany(fp16binary_t const* src, unsigned long n) const {
    constexpr unsigned long mostPieces = 64;
    const unsigned long piece = std::max(n / mostPieces + 1, elementsPerTask);
    const unsigned long pieces = (n - 1) / piece + 1;
    if (pieces == 1) return among(src, n);
    placedElement found[mostPieces];
    forRanges(pieces, 1, [&](unsigned long begin, unsigned long end) {
      for (unsigned long p = begin; p < end; ++p) found[p] = among(src + p * piece, std::min(piece, n - p * piece));
    });
    unsigned long best = 0;
    for (unsigned long p = 1; p < pieces; ++p)
      if (replaces<Kind>(found[p].place, found[best].place)) best = p;
    return {found[best].place, best * piece + found[best].position};
  }

 private:
  static constexpr unsigned long aFew = 24;
  static constexpr unsigned long stretch = 2048;
  static constexpr unsigned long shortStretch = 64;
  static constexpr unsigned long elementsPerTask = 1 << 18;  // 512 KiB, some 20 microseconds

  std::int16_t smallestOf(fp16binary_t const* src, unsigned long n) const {
    std::int16_t place;
    smallest_(src, n, &place);
    return place;
  }

  placedElement amongAFew(fp16binary_t const* src, unsigned long n) const {
    placedElement found{placeOf<Kind>(src[0].bits), 0};
    for (unsigned long i = 1; i < n; ++i) {
      const std::int16_t place = placeOf<Kind>(src[i].bits);
      if (replaces<Kind>(place, found.place)) found = {place, i};
    }
    return found;
  }

  // It must be there, and be the smallest.
  unsigned long firstWith(std::int16_t place, fp16binary_t const* src, unsigned long n) const {
    unsigned long i = 0;
    while (smallestOf(src + i, std::min(n - i, shortStretch)) != place) i += shortStretch;
    while (placeOf<Kind>(src[i].bits) != place) ++i;
    return i;
  }

  void (*smallest_)(fp16binary_t const*, unsigned long, std::int16_t*) =
      zthalf::leveled<smallestPlacePass<Kind>, fp16binary_t const*, unsigned long, std::int16_t*>::chosen();
};

}  // namespace half_utils
