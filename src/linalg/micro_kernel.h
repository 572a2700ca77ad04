// The innermost part of every matrix product: a block of outputs whose sums stay in registers over a whole lane.
//
// Vectors run along the rows, so each element of a vector is the chain of one output and no sum is ever split or moved
// between elements. Real and complex, single and double, and all instruction levels share this source; they differ in
// the vector's type and in how many of them fit the registers.
//
// Which NaN comes out is not looked at here, and neither are the infinities of complex products: settlement.h.
#pragma once

#include "core/instruction_level.h"
#include "linalg/tiles.h"

namespace zthalf::linalg {

// A product of two tiles, added to a third. Complex tiles have their imaginary parts at a distance of `...Plane`.
template <class Base>
struct tileProduct {
  Base const* a;  // element (i, l) of a panel at i + l * aStep; panels of panelRows rows are aPanel apart
  unsigned long aStep;
  unsigned long aPanel;
  unsigned long aPlane;
  Base const* b;  // element (l, j) at l + j * bColumn
  unsigned long bColumn;
  unsigned long bPlane;
  Base* c;  // element (i, j) at i + j * cColumn; rows up to the next whole vector are written
  unsigned long cColumn;
  unsigned long cPlane;
  unsigned long rows, columns, depth;
  bool isOneChain;  // each output goes on as a single chain from its value in c, without lanes
};

template <class Base, unsigned bytes>
struct vectorOf {
  typedef Base type __attribute__((vector_size(bytes)));
  static constexpr unsigned long size = bytes / sizeof(Base);
};

// How many vectors of rows, and how many columns, a block of outputs has. Sixteen registers hold twelve sums and what
// they need, thirty-two hold twenty-four.
template <bool isComplex, unsigned bytes>
struct blockShape {
  static constexpr unsigned vectors = bytes == 16 ? 3 : bytes == 32 ? 2 : 4;
  static constexpr unsigned columns = bytes == 16 ? 4 : 6;
};
template <unsigned bytes>
struct blockShape<true, bytes> {
  static constexpr unsigned vectors = bytes == 64 ? 2 : 1;
  static constexpr unsigned columns = 4;
};

// The rows of a panel of the left tile.
template <class Base, bool isComplex, unsigned bytes>
inline constexpr unsigned long panelRows = blockShape<isComplex, bytes>::vectors* vectorOf<Base, bytes>::size;

template <class Vector, class Base>
ZTHALF_INLINE void load(Vector& to, Base const* from) {
  __builtin_memcpy(&to, from, sizeof to);
}
template <class Vector, class Base>
ZTHALF_INLINE void store(Base* to, Vector const& from) {
  __builtin_memcpy(to, &from, sizeof from);
}

// One block: `vectors` vectors of rows by `columns` columns, over the whole depth.
template <class Base, bool isComplex, unsigned bytes, unsigned vectors, unsigned columns>
struct block {
  using vector = typename vectorOf<Base, bytes>::type;
  static constexpr unsigned long width = vectorOf<Base, bytes>::size;
  static constexpr unsigned parts = isComplex ? 2 : 1;

  ZTHALF_INLINE static void run(Base const* a, Base const* b, Base* c, tileProduct<Base> const& t) {
    const unsigned long step = t.isOneChain ? 1 : laneCount;
    const unsigned long lanes = t.isOneChain ? 1 : t.depth < laneCount ? t.depth : laneCount;
    for (unsigned long lane = 0; lane < lanes; ++lane) {
      vector sum[parts][columns][vectors];
      if (t.isOneChain) {
        forEach(sum, c, t, resumed{});
      } else {
        forEach(sum, c, t, begun{});
      }
      for (unsigned long l = lane; l < t.depth; l += step) advance(sum, a + l * t.aStep, b + l, t);
      if (!t.isOneChain) forEach(sum, c, t, joined{});
      forEach(sum, c, t, kept{});
    }
  }

 private:
  // What becomes of a sum and its place in the output.
  struct begun {
    ZTHALF_INLINE void operator()(vector& sum, Base*) const { sum = vector{}; }
  };
  struct resumed {
    ZTHALF_INLINE void operator()(vector& sum, Base* at) const { load(sum, at); }
  };
  struct joined {
    ZTHALF_INLINE void operator()(vector& sum, Base* at) const {
      vector before;
      load(before, at);
      sum += before;
    }
  };
  struct kept {
    ZTHALF_INLINE void operator()(vector& sum, Base* at) const { store(at, sum); }
  };

  template <class Visit>
  ZTHALF_INLINE static void forEach(vector (&sum)[parts][columns][vectors], Base* c, tileProduct<Base> const& t,
                                    Visit visit) {
#pragma GCC unroll 2
    for (unsigned p = 0; p < parts; ++p) {
#pragma GCC unroll 8
      for (unsigned j = 0; j < columns; ++j) {
#pragma GCC unroll 4
        for (unsigned v = 0; v < vectors; ++v) visit(sum[p][j][v], c + p * t.cPlane + j * t.cColumn + v * width);
      }
    }
  }

  ZTHALF_INLINE static void advance(vector (&sum)[parts][columns][vectors], Base const* a, Base const* b,
                                    tileProduct<Base> const& t) {
    vector x[parts][vectors];
#pragma GCC unroll 2
    for (unsigned p = 0; p < parts; ++p) {
#pragma GCC unroll 4
      for (unsigned v = 0; v < vectors; ++v) load(x[p][v], a + p * t.aPlane + v * width);
    }
#pragma GCC unroll 8
    for (unsigned j = 0; j < columns; ++j) {
      const vector r = b[j * t.bColumn] - vector{};  // minus zero changes nothing, and is no operation
      if constexpr (isComplex) {
        const vector s = b[t.bPlane + j * t.bColumn] - vector{};
#pragma GCC unroll 4
        for (unsigned v = 0; v < vectors; ++v) {
          sum[0][j][v] += x[0][v] * r - x[1][v] * s;
          sum[1][j][v] += x[1][v] * r + x[0][v] * s;
        }
      } else {
#pragma GCC unroll 4
        for (unsigned v = 0; v < vectors; ++v) sum[0][j][v] += x[0][v] * r;
      }
    }
  }
};

// A whole tile. A few columns of the right tile stay in the first-level cache while the left tile's panels pass by.
template <class Base, bool isComplex>
struct tilePass {
  static constexpr bool isWide = true;

  template <unsigned bytes>
  ZTHALF_INLINE static void run(tileProduct<Base> const* tile) {
    constexpr unsigned columns = blockShape<isComplex, bytes>::columns;
    tileProduct<Base> const& t = *tile;
    unsigned long j = 0;
    for (; j + columns <= t.columns; j += columns) allRows<bytes, columns>(j, t);
    for (; j + 2 <= t.columns; j += 2) allRows<bytes, 2>(j, t);
    if (j < t.columns) allRows<bytes, 1>(j, t);
  }

 private:
  template <unsigned bytes, unsigned columns>
  ZTHALF_INLINE static void allRows(unsigned long j, tileProduct<Base> const& t) {
    constexpr unsigned vectors = blockShape<isComplex, bytes>::vectors;
    constexpr unsigned long width = vectorOf<Base, bytes>::size;
    Base const* a = t.a;
    Base const* const b = t.b + j * t.bColumn;
    Base* const c = t.c + j * t.cColumn;
    unsigned long i = 0;
    for (; i + (vectors - 1) * width < t.rows; i += vectors * width, a += t.aPanel) {
      block<Base, isComplex, bytes, vectors, columns>::run(a, b, c + i, t);
    }
    if constexpr (vectors > 1) {
      for (; i < t.rows; i += width, a += width) block<Base, isComplex, bytes, 1, columns>::run(a, b, c + i, t);
    }
  }
};

}  // namespace zthalf::linalg
