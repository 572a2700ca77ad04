// The templates of half::blas: instances on patterns, which call the implementations.
#include "core/instantiate.h"
#include "linalg/blas_impl.h"
#include "zthalf/half_blas.h"

namespace half {

namespace blas {

template <class A, class B, class C>
void hgemm(char* transa, char* transb, unsigned long m, unsigned long n, unsigned long k, A alpha, A* a,
           unsigned long lda, B* b, unsigned long ldb, C beta, C* c, unsigned long ldc) {
  impl::hgemm(transa, transb, m, n, k, alpha, a, lda, b, ldb, beta, c, ldc);
}

template <class Alpha, class X>
void hscal(unsigned long n, Alpha alpha, X* x, unsigned long incx) {
  impl::hscal(n, alpha, x, incx);
}

template <class X>
unsigned long ihamax(unsigned long n, X* x, unsigned long incx) {
  return impl::ihamax(n, x, incx);
}

template <class A>
void hlaswp(unsigned long n, A* a, unsigned long lda, unsigned long k1, unsigned long k2, unsigned long* ipiv,
            int incx) {
  impl::hlaswp(n, a, lda, k1, k2, ipiv, incx);
}

template <class A, class B>
void htrsm(char* side, char* uplo, char* transa, char* diag, unsigned long m, unsigned long n, A alpha, A* a,
           unsigned long lda, B* b, unsigned long ldb) {
  impl::htrsm(side, uplo, transa, diag, m, n, alpha, a, lda, b, ldb);
}

template <class A>
void hgetrf2(unsigned long m, unsigned long n, A* a, unsigned long lda, unsigned long* ipiv, int& info) {
  impl::hgetrf2(m, n, a, lda, ipiv, info);
}

template <class A>
void hgetrf(unsigned long m, unsigned long n, A* a, unsigned long lda, unsigned long* ipiv, int& info) {
  impl::hgetrf(m, n, a, lda, ipiv, info);
}

}  // namespace blas

ZTHALF_BLAS_ENTRIES(ZTHALF_BLAS_ROW)

}  // namespace half
