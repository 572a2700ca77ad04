// The routines after BLAS and LAPACK on patterns: what the templates of half::blas call. include/zthalf/half_blas.h
// tells what they compute.
#pragma once

namespace half::blas::impl {

void hgemm(char* transa, char* transb, unsigned long m, unsigned long n, unsigned long k, unsigned short alpha,
           unsigned short* a, unsigned long lda, unsigned short* b, unsigned long ldb, unsigned short beta,
           unsigned short* c, unsigned long ldc);
void hscal(unsigned long n, unsigned short alpha, unsigned short* x, unsigned long incx);
unsigned long ihamax(unsigned long n, unsigned short* x, unsigned long incx);
void hlaswp(unsigned long n, unsigned short* a, unsigned long lda, unsigned long k1, unsigned long k2,
            unsigned long* ipiv, int incx);
void htrsm(char* side, char* uplo, char* transa, char* diag, unsigned long m, unsigned long n, unsigned short alpha,
           unsigned short* a, unsigned long lda, unsigned short* b, unsigned long ldb);
void hgetrf2(unsigned long m, unsigned long n, unsigned short* a, unsigned long lda, unsigned long* ipiv, int& info);
void hgetrf(unsigned long m, unsigned long n, unsigned short* a, unsigned long lda, unsigned long* ipiv, int& info);

}  // namespace half::blas::impl
