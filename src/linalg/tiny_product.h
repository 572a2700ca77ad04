// Products so small that setting up tiles would take longer than the product.
//
// With at most eight inner indices no lane has more than one of them, so an output is +0 and then one product after the
// other is added to it: a plain loop.
#pragma once

#include <algorithm>
#include <cstring>

#include "linalg/operand.h"
#include "linalg/result.h"

namespace zthalf::linalg {

struct tinyProduct {
  static constexpr unsigned long side = laneCount;  // at most so many rows, inner indices and columns
  static constexpr unsigned long room = side * side + chunkSize;

  float a[room];  // m by k, dense; rows of it are read as if there were `side` of them
  float b[room];
  float c[room];  // columns of m, each written with `side` rows, the surplus under the next column
  unsigned long m, k, n;
};

struct tinyPass {
  static constexpr bool isWide = true;
  ZTHALF_INLINE static void run(tinyProduct* product) {
    tinyProduct& p = *product;
    for (unsigned long j = 0; j < p.n; ++j) {
      float sums[tinyProduct::side] = {};
      for (unsigned long l = 0; l < p.k; ++l) {
        float const* const column = p.a + l * p.m;
        const float factor = p.b[l + j * p.k];
        for (unsigned long i = 0; i < tinyProduct::side; ++i) sums[i] += column[i] * factor;
      }
      std::memcpy(p.c + j * p.m, sums, sizeof sums);
    }
  }
};

// False where it is not for this product, or where a NaN came out, which has to be decided in the ordinary way.
inline bool multiplyTiny(operand<float> const& a, operand<float> const& b, std::uint16_t* out, unsigned long m,
                         unsigned long k, unsigned long n) {
  constexpr unsigned long side = tinyProduct::side;
  if (m > side || k > side || n > side || k == 0) return false;
  tinyProduct p;
  p.m = m;
  p.k = k;
  p.n = n;
  a.read(0, m, 0, k, p.a, nullptr);
  b.read(0, k, 0, n, p.b, nullptr);
  std::fill_n(p.a + m * k, side, 0.0f);
  leveled<tinyPass, tinyProduct*>::chosen()(&p);
  std::fill_n(p.c + m * n, chunkSize, 0.0f);
  const finishedTile<float> tile{p.c, 0, 0, m * n, 1, out, 0};
  bool anyNaN;
  leveled<storePass<float, false>, finishedTile<float> const*, bool*>::chosen()(&tile, &anyNaN);
  return !anyNaN;
}

}  // namespace zthalf::linalg
