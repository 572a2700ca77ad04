// The result of a product: numbers of the working type, rounded to half once and stored.
#pragma once

#include <algorithm>
#include <cstdint>

#include "core/float_conversion.h"
#include "core/instruction_level.h"
#include "linalg/chunks.h"

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

// *anyNaN is set where there may be a NaN among the outputs, whose sign is not decided yet. Columns must be readable up
// to the next whole chunk, which is looked at, too.
template <class Base, bool isComplex>
struct storePass {
  static constexpr bool isWide = true;
  static constexpr unsigned parts = isComplex ? 2 : 1;

  ZTHALF_INLINE static void run(finishedTile<Base> const* tile, bool* anyNaN) {
    finishedTile<Base> const t = *tile;
    std::uint16_t nan = 0;
    for (unsigned long j = 0; j < t.columns; ++j) {
      Base const* const from = t.numbers + j * t.column;
      std::uint16_t* const to = t.out + parts * j * t.leading;
      for (unsigned long at = 0; at < t.rows; at += chunkSize) {
        std::uint16_t chunk[parts * chunkSize];
        for (unsigned long i = 0; i < chunkSize; ++i) {
          for (unsigned p = 0; p < parts; ++p) {
            const std::uint16_t h = narrow(from[p * t.plane + at + i]);
            chunk[parts * i + p] = h;
            nan |= pattern::nanMask(h);
          }
        }
        keepChunk(to + parts * at, chunk, std::min(chunkSize, t.rows - at), parts);
      }
    }
    *anyNaN = nan != 0;
  }
};

}  // namespace zthalf::linalg
