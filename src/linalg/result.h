// The result of a product: numbers of the working type, rounded to half once and stored.
#pragma once

#include <cstdint>

#include "core/float_conversion.h"
#include "core/instruction_level.h"

namespace zthalf::linalg {

// A rectangle of finished outputs: `rows` by `columns`, columns `column` apart in the tile and `leading` elements apart
// in the result. The result of a complex product has both parts of an element side by side, its tile has them `plane`
// apart.
template <class Base>
struct finishedTile {
  Base const* numbers;
  unsigned long column;
  unsigned long plane;
  unsigned long rows, columns;
  std::uint16_t* out;
  unsigned long leading;
};

// *anyNaN is set where a NaN is among the outputs: its sign is not decided yet.
template <class Base, bool isComplex>
struct storePass {
  static constexpr bool isWide = true;

  ZTHALF_INLINE static void run(finishedTile<Base> const* tile, bool* anyNaN) {
    finishedTile<Base> const t = *tile;
    std::uint16_t nan = 0;
    for (unsigned long j = 0; j < t.columns; ++j) {
      Base const* const from = t.numbers + j * t.column;
      if constexpr (isComplex) {
        std::uint16_t* const to = t.out + 2 * j * t.leading;
        for (unsigned long i = 0; i < t.rows; ++i) {
          const std::uint16_t re = narrow(from[i]), im = narrow(from[t.plane + i]);
          to[2 * i] = re;
          to[2 * i + 1] = im;
          nan |= pattern::nanMask(re) | pattern::nanMask(im);
        }
      } else {
        std::uint16_t* const to = t.out + j * t.leading;
        for (unsigned long i = 0; i < t.rows; ++i) {
          const std::uint16_t h = narrow(from[i]);
          to[i] = h;
          nan |= pattern::nanMask(h);
        }
      }
    }
    *anyNaN = nan != 0;
  }
};

}  // namespace zthalf::linalg
