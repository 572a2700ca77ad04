// The facade of the routines after BLAS and LAPACK: as facade.cpp, with patterns for halves that are no arrays.
#include "frame/table/stored.h"
#include "zthalf/half_ptr.h"
#include "zthalf/half_vector.h"

namespace half_vector {

void hgemm(char* transa, char* transb, unsigned long m, unsigned long n, unsigned long k, half_t alpha, half_t* a,
           unsigned long lda, half_t* b, unsigned long ldb, half_t beta, half_t* c, unsigned long ldc) {
  half_ptr::hgemmHalfHalfPtr(transa, transb, m, n, k, alpha.bits, bare(a), lda, bare(b), ldb, beta.bits, bare(c), ldc);
}

void hscal(unsigned long n, half_t alpha, half_t* x, unsigned long incx) {
  half_ptr::hscalHalfHalfPtr(n, alpha.bits, bare(x), incx);
}

unsigned long ihamax(unsigned long n, half_t* x, unsigned long incx) { return half_ptr::ihamaxPtr(n, bare(x), incx); }

void hlaswp(unsigned long n, half_t* a, unsigned long lda, unsigned long k1, unsigned long k2, unsigned long* ipiv,
            int incx) {
  half_ptr::laswpHalfPtr(n, bare(a), lda, k1, k2, ipiv, incx);
}

void htrsm(char* side, char* uplo, char* transa, char* diag, unsigned long m, unsigned long n, half_t alpha, half_t* a,
           unsigned long lda, half_t* b, unsigned long ldb) {
  half_ptr::htrsmHalfHalfPtr(side, uplo, transa, diag, m, n, alpha.bits, bare(a), lda, bare(b), ldb);
}

void hgetrf2(unsigned long m, unsigned long n, half_t* a, unsigned long lda, unsigned long* ipiv, int& info) {
  half_ptr::hgetrf2HalfPtr(m, n, bare(a), lda, ipiv, info);
}

void hgetrf(unsigned long m, unsigned long n, half_t* a, unsigned long lda, unsigned long* ipiv, int& info) {
  half_ptr::hgetrfHalfPtr(m, n, bare(a), lda, ipiv, info);
}

}  // namespace half_vector
