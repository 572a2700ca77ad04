// The recursive factorisation. Each step goes through the exported functions, so what a program puts into the table is
// used here as well.
#include <algorithm>
#include <utility>

#include "linalg/blas_impl.h"
#include "linalg/lu_constants.h"
#include "zthalf/half_vector.h"

namespace half::blas::impl {

namespace {

using namespace zthalf::linalg;

// From this magnitude on a column is scaled by the reciprocal of its pivot, rounded to half; below it is divided.
constexpr half_t smallestForReciprocal{0x1400};  // 2^-10

void factoriseColumn(unsigned long m, unsigned long n, half_t* a, unsigned long* ipiv, int& info) {
  const unsigned long p = half_vector::ihamax(m, a, 1);
  ipiv[0] = p + 1;
  if (!(a[p] != halfZero())) {
    info = static_cast<int>(n);
    return;
  }
  if (p != 0) std::swap(a[0], a[p]);
  if (half_scalar::abs(a[0]) >= smallestForReciprocal) {
    half_vector::hscal(m - 1, halfOne() / a[0], a + 1, 1);
  } else {
    for (unsigned long i = 1; i < m; ++i) a[i] = a[i] / a[0];
  }
}

}  // namespace

void hgetrf2(unsigned long m, unsigned long n, unsigned short* patterns, unsigned long lda, unsigned long* ipiv,
             int& info) {
  half_t* const a = reinterpret_cast<half_t*>(patterns);
  info = std::max(m, 1ul) > lda ? tooSmallLeadingDimension : 0;
  if (m == 0 || n == 0) return;
  if (m == 1) {
    ipiv[0] = 1;
    if (half_scalar::impl::convertHalfToDouble(patterns[0]) == 0.0) info = 1;
    return;
  }
  if (n == 1) return factoriseColumn(m, n, a, ipiv, info);

  const auto at = [&](unsigned long r, unsigned long c) { return a + r + c * lda; };
  const unsigned long mn = std::min(m, n), n1 = mn / 2, n2 = n - n1;
  const half_t one = halfOne();
  solveOptions options;
  int iinfo;
  half_vector::hgetrf2(m, n1, a, lda, ipiv, iinfo);
  if (info == 0 && iinfo >= 1) info = iinfo;
  half_vector::hlaswp(n2, at(0, n1), lda, 1, n1, ipiv, 1);
  half_vector::htrsm(options.left, options.lower, options.plain, options.unit, n1, n2, one, a, lda, at(0, n1), lda);
  half_vector::hgemm(options.plain, options.plain, m - n1, n2, n1, -one, at(n1, 0), lda, at(0, n1), lda, one,
                     at(n1, n1), lda);
  half_vector::hgetrf2(m - n1, n2, at(n1, n1), lda, ipiv + n1, iinfo);
  if (info == 0 && iinfo >= 1) info = iinfo + static_cast<int>(n1);
  for (unsigned long i = n1; i < mn; ++i) ipiv[i] += n1;
  half_vector::hlaswp(n1, a, lda, n1 + 1, mn, ipiv, 1);
}

}  // namespace half::blas::impl
