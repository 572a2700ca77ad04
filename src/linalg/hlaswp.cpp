#include <algorithm>
#include <utility>

#include "linalg/blas_impl.h"

namespace half::blas::impl {

// Blocks of columns, the whole sequence of interchanges for each: where columns overlap, since a leading dimension is
// too small, their order shows.
void hlaswp(unsigned long n, unsigned short* a, unsigned long lda, unsigned long k1, unsigned long k2,
            unsigned long* ipiv, int incx) {
  if (incx == 0 || k1 > k2) return;
  constexpr unsigned long blockColumns = 32;
  const long step = incx;
  const unsigned long first = incx > 0 ? k1 : k2;
  const long begin = static_cast<long>(k1) + (incx > 0 ? 0 : (static_cast<long>(k1) - static_cast<long>(k2)) * step);
  for (unsigned long j0 = 0; j0 < n; j0 += blockColumns) {
    const unsigned long columns = std::min(blockColumns, n - j0);
    for (unsigned long at = 0; at <= k2 - k1; ++at) {
      const unsigned long row = incx > 0 ? first + at : first - at;
      const unsigned long other = ipiv[begin + static_cast<long>(at) * step - 1];
      if (other == row) continue;
      unsigned short* const column = a + j0 * lda;
      for (unsigned long j = 0; j < columns; ++j) std::swap(column[row - 1 + j * lda], column[other - 1 + j * lda]);
    }
  }
}

}  // namespace half::blas::impl
