// The left operand's tile as the micro-kernel walks it: panels of as many rows as a block of outputs has, one inner
// index after the other.
#pragma once

#include "linalg/micro_kernel.h"

namespace zthalf::linalg {

// How a level lays out its tiles.
struct panelShape {
  unsigned long rows;   // of a panel
  unsigned long width;  // of a vector
};

template <class Base, bool isComplex>
inline panelShape panelShapeOfLevel() {
  switch (currentLevel()) {
    case instructionLevel::v4:
      return {panelRows<Base, isComplex, 64>, vectorOf<Base, 64>::size};
    case instructionLevel::v3:
      return {panelRows<Base, isComplex, 32>, vectorOf<Base, 32>::size};
    default:
      return {panelRows<Base, isComplex, 16>, vectorOf<Base, 16>::size};
  }
}

// Some columns of a tile, dense, one after the other.
template <class Base>
struct stagedColumns {
  Base const* from;
  unsigned long rows, columns;
  unsigned long plane;
  Base* to;  // the place of the first column in the first panel
  unsigned long panel;
  unsigned long toPlane;
};

// Moves them into panels. The last panel's rows beyond the tile get whatever follows: the next column's numbers, of
// which nobody uses the products. Behind the last column a panel's rows must be readable.
template <class Base, bool isComplex>
struct placePass {
  static constexpr bool isWide = true;
  template <unsigned bytes>
  ZTHALF_INLINE static void run(stagedColumns<Base> const* staged) {
    using vector = typename vectorOf<Base, bytes>::type;
    constexpr unsigned long width = vectorOf<Base, bytes>::size;
    constexpr unsigned long height = panelRows<Base, isComplex, bytes>;
    stagedColumns<Base> const s = *staged;
    for (unsigned p = 0; p < (isComplex ? 2 : 1); ++p) {
      for (unsigned long l = 0; l < s.columns; ++l) {
        Base const* from = s.from + p * s.plane + l * s.rows;
        Base* to = s.to + p * s.toPlane + l * height;
        for (unsigned long i = 0; i < s.rows; i += height, from += height, to += s.panel) {
#pragma GCC unroll 4
          for (unsigned long v = 0; v < height; v += width) {
            vector x;
            load(x, from + v);
            store(to + v, x);
          }
        }
      }
    }
  }
};

}  // namespace zthalf::linalg
