// The product of two tiles as it is defined: every step in its order, on the defining unit. Slow and plain; products
// come here only for outputs whose NaNs cannot be told from their operands.
#pragma once

#include <complex>

#include "linalg/annex_g_product.h"
#include "linalg/tiles.h"

namespace half::impl::emulated {

namespace steps {

template <class Base>
inline Base product(Base a, Base b) {
  return zthalf::definedUnit::product(a, b);
}
template <class Base>
inline std::complex<Base> product(std::complex<Base> a, std::complex<Base> b) {
  return zthalf::linalg::annexGProduct(a, b);
}
template <class Base>
inline Base sum(Base first, Base second) {
  return zthalf::definedUnit::sum(first, second);
}
template <class Base>
inline std::complex<Base> sum(std::complex<Base> first, std::complex<Base> second) {
  return {sum(first.real(), second.real()), sum(first.imag(), second.imag())};
}

}  // namespace steps

// Adds the product of two tiles to a third. Row i of aTile, column j of bTile and column j of cTile begin tileSize
// elements apart; behind their kTile elements rows and columns are zero up to a whole number of lanes.
//
// The three loops run in one piece whatever the sizes: a tile is no larger than the grain at which it would be divided.
template <class W>
void mtimesBlockParallel(W* aTile, W* bTile, W* cTile, unsigned long mTile, unsigned long kTile, unsigned long nTile) {
  using namespace zthalf::linalg;
  for (unsigned long j = 0; j < nTile; ++j) {
    for (unsigned long i = 0; i < mTile; ++i) {
      W const* const a = aTile + i * tileSize;
      W const* const b = bTile + j * tileSize;
      W lanes[laneCount] = {};
      for (unsigned long l = 0; l < kTile; l += laneCount) {
        for (unsigned long t = 0; t < laneCount; ++t) {
          lanes[t] = steps::sum(lanes[t], steps::product(a[l + t], b[l + t]));
        }
      }
      W& c = cTile[i + j * tileSize];
      for (unsigned long t = 0; t < laneCount; ++t) c = steps::sum(lanes[t], c);
    }
  }
}

}  // namespace half::impl::emulated
