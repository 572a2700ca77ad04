// The routines after BLAS and LAPACK, one element at a time in the order in which they are told: whole matrices in
// float, no strips, no blocks, no vectors. On patterns in a plain array, so that leading dimensions may be anything.
#pragma once

#include <algorithm>
#include <cctype>
#include <cstdint>
#include <utility>
#include <vector>

#include "tests/linalg/product_reference.h"

namespace zthalf::reference {

using unit = unitOf<float>;
using patternArray = std::vector<std::uint16_t>;

inline bool is(char option, char letter) { return std::tolower(static_cast<unsigned char>(option)) == letter; }
inline float quotientOf(float x, float y) {
  volatile float a = x, b = y;
  volatile float result = a / b;
  return unit::settled(result, x, y);
}
inline float wide(std::uint16_t h) { return widenedToSingle(h); }

// Arrays and places in them are given apart, since a, b and c may be parts of one array.
struct place {
  patternArray& array;
  unsigned long offset;
  std::uint16_t& operator[](unsigned long i) const { return array[offset + i]; }
  place operator+(unsigned long i) const { return {array, offset + i}; }
};

inline void hgemm(char transa, unsigned long m, unsigned long n, unsigned long k, std::uint16_t alpha, place a,
                  unsigned long lda, place b, unsigned long ldb, std::uint16_t beta, place c, unsigned long ldc) {
  std::vector<float> fa(m * k), fb(k * n), fc(m * n);
  for (unsigned long l = 0; l < k; ++l)
    for (unsigned long i = 0; i < m; ++i) fa[i + l * m] = wide(a[i + l * lda]);
  for (unsigned long j = 0; j < n; ++j)
    for (unsigned long l = 0; l < k; ++l) fb[l + j * k] = wide(b[l + j * ldb]);
  for (unsigned long j = 0; j < n; ++j)
    for (unsigned long i = 0; i < m; ++i) fc[i + j * m] = wide(c[i + j * ldc]);
  const float al = wide(alpha), be = wide(beta);
  if (m == 0 || n == 0) return;
  if ((al == 0 || k == 0) && be == 1) return;
  if (al == 0) return;
  for (unsigned long j = 0; j < n; ++j) {
    if (is(transa, 'n')) {
      for (unsigned long i = 0; i < m; ++i) {
        float& x = fc[i + j * m];
        if (be == 0) {
          x = 0;
        } else if (be != 1) {
          x = unit::times(be, x);
        }
      }
      for (unsigned long l = 0; l < k; ++l) {
        const float t = wide(narrowed(unit::times(al, fb[l + j * k])));
        for (unsigned long i = 0; i < m; ++i) fc[i + j * m] = unit::plus(fc[i + j * m], unit::times(fa[i + l * m], t));
      }
    } else {
      for (unsigned long i = 0; i < m; ++i) {
        std::uint16_t temp = 0;
        for (unsigned long l = 0; l < k; ++l) {
          temp = narrowed(unit::plus(wide(temp), unit::times(fa[l + i * k], fb[l + j * k])));
        }
        const float scaled = unit::times(al, wide(temp));
        fc[i + j * m] = be == 0 ? scaled : unit::plus(scaled, unit::times(be, fc[i + j * m]));
      }
    }
  }
  for (unsigned long j = 0; j < n; ++j)
    for (unsigned long i = 0; i < m; ++i) c[i + j * ldc] = narrowed(fc[i + j * m]);
}

inline void hscal(unsigned long n, std::uint16_t alpha, place x, unsigned long incx) {
  if (incx == 0) return;
  for (unsigned long e = 0; e < n; ++e) x[e * incx] = narrowed(unit::times(wide(alpha), wide(x[e * incx])));
}

inline unsigned long ihamax(unsigned long n, place x, unsigned long incx) {
  if (n < 2 || incx == 0) return 0;
  unsigned long index = 0;
  for (unsigned long i = 1; i < n; ++i)
    if (std::fabs(wide(x[i * incx])) > std::fabs(wide(x[index * incx]))) index = i;
  return index;
}

inline void hlaswp(unsigned long n, place a, unsigned long lda, long k1, long k2, unsigned long const* ipiv, int incx) {
  if (incx == 0) return;
  std::vector<std::pair<unsigned long, unsigned long>> interchanges;
  long ix = incx > 0 ? k1 : k1 + (k1 - k2) * incx;
  for (long i = incx > 0 ? k1 : k2; incx > 0 ? i <= k2 : i >= k1; i += incx > 0 ? 1 : -1, ix += incx)
    interchanges.emplace_back(i - 1, ipiv[ix - 1] - 1);
  for (unsigned long j0 = 0; j0 < n; j0 += 32)
    for (const auto& [row, other] : interchanges)
      if (row != other)
        for (unsigned long j = j0; j < std::min(n, j0 + 32); ++j) std::swap(a[row + j * lda], a[other + j * lda]);
}

inline void htrsm(char side, char uplo, char transa, char diag, unsigned long m, unsigned long n, std::uint16_t alpha,
                  place a, unsigned long lda, place b, unsigned long ldb) {
  const bool left = is(side, 'l'), upper = is(uplo, 'u'), plain = is(transa, 'n'), divides = is(diag, 'n');
  const unsigned long ka = left ? m : n;
  std::vector<float> fa(ka * ka), fb(m * n);
  for (unsigned long j = 0; j < ka; ++j)
    for (unsigned long i = 0; i < ka; ++i) fa[i + j * ka] = wide(a[i + j * lda]);
  for (unsigned long j = 0; j < n; ++j)
    for (unsigned long i = 0; i < m; ++i) fb[i + j * m] = wide(b[i + j * ldb]);
  if (m == 0 || n == 0) return;
  const float al = wide(alpha);
  const auto A = [&](unsigned long r, unsigned long c) { return fa[r + c * ka]; };
  const auto B = [&](unsigned long r, unsigned long c) -> float& { return fb[r + c * m]; };
  const auto finish = [&] {
    for (unsigned long j = 0; j < n; ++j)
      for (unsigned long i = 0; i < m; ++i) b[i + j * ldb] = narrowed(B(i, j));
  };
  if (al == 0) {
    std::fill(fb.begin(), fb.end(), 0.0f);
    return finish();
  }
  const auto scaleColumn = [&](unsigned long j) {
    if (al == 1) return;
    for (unsigned long i = 0; i < m; ++i) B(i, j) = unit::times(al, B(i, j));
  };
  const auto times = [&](unsigned long j, float r) {
    for (unsigned long i = 0; i < m; ++i) B(i, j) = unit::times(B(i, j), r);
  };
  // Column j less x times column k, unless x is a zero.
  const auto subtractColumn = [&](unsigned long j, float x, unsigned long k) {
    if (x == 0) return;
    for (unsigned long i = 0; i < m; ++i) B(i, j) = unit::minus(B(i, j), unit::times(x, B(i, k)));
  };
  const auto L = static_cast<long>(m), R = static_cast<long>(n);
  if (left && plain) {
    for (unsigned long j = 0; j < n; ++j) {
      scaleColumn(j);
      for (long k = upper ? L - 1 : 0; upper ? k >= 0 : k < L; k += upper ? -1 : 1) {
        if (B(k, j) == 0) continue;
        if (divides) B(k, j) = quotientOf(B(k, j), A(k, k));
        for (long i = upper ? 0 : k + 1; i < (upper ? k : L); ++i)
          B(i, j) = unit::minus(B(i, j), unit::times(B(k, j), A(i, k)));
      }
    }
  } else if (left) {
    for (unsigned long j = 0; j < n; ++j) {
      for (long i = upper ? 0 : L - 1; upper ? i < L : i >= 0; i += upper ? 1 : -1) {
        float t = unit::times(al, B(i, j));
        for (long k = upper ? 0 : i + 1; k < (upper ? i : L); ++k) t = unit::minus(t, unit::times(A(k, i), B(k, j)));
        B(i, j) = divides ? quotientOf(t, A(i, i)) : t;
      }
    }
  } else if (plain) {
    for (long j = upper ? 0 : R - 1; upper ? j < R : j >= 0; j += upper ? 1 : -1) {
      scaleColumn(j);
      for (long k = upper ? 0 : j + 1; k < (upper ? j : R); ++k) subtractColumn(j, A(k, j), k);
      if (divides) times(j, quotientOf(1, A(j, j)));
    }
  } else {
    for (long k = upper ? R - 1 : 0; upper ? k >= 0 : k < R; k += upper ? -1 : 1) {
      if (divides) times(k, quotientOf(1, A(k, k)));
      for (long j = upper ? 0 : k + 1; j < (upper ? k : R); ++j) subtractColumn(j, A(j, k), k);
      scaleColumn(k);
    }
  }
  finish();
}

inline void hgetrf2(unsigned long m, unsigned long n, place a, unsigned long lda, unsigned long* ipiv, int& info) {
  info = std::max(m, 1ul) > lda ? -4 : 0;
  if (m == 0 || n == 0) return;
  if (m == 1) {
    ipiv[0] = 1;
    if (wide(a[0]) == 0) info = 1;
    return;
  }
  if (n == 1) {
    const unsigned long p = ihamax(m, a, 1);
    ipiv[0] = p + 1;
    if (wide(a[p]) == 0) {
      info = 1;
      return;
    }
    std::swap(a[0], a[p]);
    if (std::fabs(wide(a[0])) >= 0x1p-10f) {
      hscal(m - 1, quotient(0x3C00, a[0]), a + 1, 1);
    } else {
      for (unsigned long i = 1; i < m; ++i) a[i] = quotient(a[i], a[0]);
    }
    return;
  }
  const unsigned long mn = std::min(m, n), n1 = mn / 2, n2 = n - n1;
  int inner = 0;
  hgetrf2(m, n1, a, lda, ipiv, inner);
  if (info == 0 && inner > 0) info = inner;
  hlaswp(n2, a + n1 * lda, lda, 1, static_cast<long>(n1), ipiv, 1);
  htrsm('L', 'L', 'N', 'U', n1, n2, 0x3C00, a, lda, a + n1 * lda, lda);
  hgemm('N', m - n1, n2, n1, 0xBC00, a + n1, lda, a + n1 * lda, lda, 0x3C00, a + (n1 + n1 * lda), lda);
  hgetrf2(m - n1, n2, a + (n1 + n1 * lda), lda, ipiv + n1, inner);
  if (info == 0 && inner > 0) info = inner + static_cast<int>(n1);
  for (unsigned long i = n1; i < mn; ++i) ipiv[i] += n1;
  hlaswp(n1, a, lda, static_cast<long>(n1) + 1, static_cast<long>(mn), ipiv, 1);
}

inline void hgetrf(unsigned long m, unsigned long n, place a, unsigned long lda, unsigned long* ipiv, int& info) {
  const unsigned long mn = std::min(m, n);
  if (mn <= 64) return hgetrf2(m, n, a, lda, ipiv, info);
  info = m > lda ? -4 : 0;
  for (unsigned long j = 0; j < mn; j += 64) {
    const unsigned long jb = std::min(mn - j, 64ul), after = j + jb;
    const auto first = static_cast<long>(j) + 1, last = static_cast<long>(after);
    int inner = 0;
    hgetrf2(m - j, jb, a + (j + j * lda), lda, ipiv + j, inner);
    if (info == 0 && inner > 0) info = static_cast<int>(j) + inner - 1;
    for (unsigned long i = j; i < std::min(m, after); ++i) ipiv[i] += j;
    hlaswp(j, a, lda, first, last, ipiv, 1);
    if (after >= n) continue;
    hlaswp(n - after, a + after * lda, lda, first, last, ipiv, 1);
    htrsm('L', 'L', 'N', 'U', jb, n - after, 0x3C00, a + (j + j * lda), lda, a + (j + after * lda), lda);
    if (after >= m) continue;
    hgemm('N', m - after, n - after, jb, 0xBC00, a + (after + j * lda), lda, a + (j + after * lda), lda, 0x3C00,
          a + (after + after * lda), lda);
  }
}

}  // namespace zthalf::reference
