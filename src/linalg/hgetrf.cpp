// The blocked factorisation: panels of 64 columns by the recursive one.
#include <algorithm>

#include "linalg/blas_impl.h"
#include "linalg/lu_constants.h"
#include "zthalf/half_vector.h"

namespace half::blas::impl {

void hgetrf(unsigned long m, unsigned long n, unsigned short* patterns, unsigned long lda, unsigned long* ipiv,
            int& info) {
  using namespace zthalf::linalg;
  constexpr unsigned long blockSize = 64;
  half_t* const a = reinterpret_cast<half_t*>(patterns);
  info = std::max(m, 1ul) > lda ? tooSmallLeadingDimension : 0;
  if (m == 0 || n == 0) return;
  const unsigned long mn = std::min(m, n);
  if (mn <= blockSize) return half_vector::hgetrf2(m, n, a, lda, ipiv, info);

  const auto at = [&](unsigned long r, unsigned long c) { return a + r + c * lda; };
  const half_t one = halfOne();
  solveOptions options;
  for (unsigned long j = 0; j < mn; j += blockSize) {
    const unsigned long jb = std::min(mn - j, blockSize), next = j + jb;
    int iinfo;
    half_vector::hgetrf2(m - j, jb, at(j, j), lda, ipiv + j, iinfo);
    // One less than the column's number counted from 1, on purpose: callers know it so.
    if (info == 0 && iinfo >= 1) info = static_cast<int>(j) + iinfo - 1;
    for (unsigned long i = j; i < std::min(m, next); ++i) ipiv[i] += j;
    half_vector::hlaswp(j, a, lda, j + 1, next, ipiv, 1);
    if (next >= n) continue;
    half_vector::hlaswp(n - next, at(0, next), lda, j + 1, next, ipiv, 1);
    half_vector::htrsm(options.left, options.lower, options.plain, options.unit, jb, n - next, one, at(j, j), lda,
                       at(j, next), lda);
    if (next >= m) continue;
    half_vector::hgemm(options.plain, options.plain, m - next, n - next, jb, -one, at(next, j), lda, at(j, next), lda,
                       one, at(next, next), lda);
  }
}

}  // namespace half::blas::impl
