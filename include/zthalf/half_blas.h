// Linear algebra in the manner of BLAS and LAPACK on real halves.
#pragma once

#include "zthalf/detail/export.h"
#include "zthalf/half_t.h"

/// Routines after those of BLAS and LAPACK whose names they carry, with their argument lists. They do not keep all of
/// their rules: what differs is said with each, and docs/linear-algebra.md has it in a table.
///
/// Common to all of them: matrices are stored column by column, element (i, j) at i + j * ld, counted from 0; leading
/// dimensions and strides count elements. Of an option only the first character is read, in either case: it is the
/// letter named first, or anything else. Nothing is checked and nothing reported but by the info of the factorisations.
/// All work is done on the calling thread. hgemm and htrsm read everything before they write, so matrices may overlap;
/// they allocate working memory, and where that fails throw std::bad_alloc before anything is written. NaNs go by the
/// order of operands as written: of two quiet ones the first operand's wins, and an invalid operation gives the
/// positive NaN.
namespace half_vector {

/// c = alpha * a * b + beta * c, for a c of m by n and an inner dimension of k.
///
/// transa N: each element of b is multiplied by alpha and rounded to half, t = half(alpha * b(l, j)). Then each element
/// of c is one chain in float, beginning with +0 where beta is 0, otherwise with beta * c(i, j): for l = 0 to k - 1 in
/// this order chain = chain + (a(i, l) * t), product and sum rounded by themselves. It is rounded to half once, at the
/// end.
///
/// transa anything else: the chain is in halves, temp = half(temp + a' * b(l, j)), rounded at every step, beginning
/// with +0; c(i, j) = half(alpha * temp), or half((alpha * temp) + (beta * c(i, j))) where beta is not 0, in float. a'
/// is element l + i * k of a's m by k elements laid out densely, columns of m: that is a transposed where a is a dense
/// k by m matrix and lda is m, and some other arrangement of its elements otherwise.
///
/// Differs from GEMM: transb has no effect, b is k by n always. alpha = 0 leaves c as it is, whatever beta is. Beside
/// that only k = 0 with beta = 1 leaves c alone; with other inner dimensions even alpha * b = 0 is added, so that NaNs
/// and infinities of a reach c. m = 0 or n = 0 does nothing.
ZTHALF_API void hgemm(char* transa, char* transb, unsigned long m, unsigned long n, unsigned long k, half_t alpha,
                      half_t* a, unsigned long lda, half_t* b, unsigned long ldb, half_t beta, half_t* c,
                      unsigned long ldc);

/// x(i) = half(alpha * x(i)) for n elements, incx apart; with incx = 0 nothing is done. alpha = 0 is no special case.
ZTHALF_API void hscal(unsigned long n, half_t alpha, half_t* x, unsigned long incx);

/// Which of n elements, incx apart, has the largest magnitude: the first of equal ones, counted from 0 in elements, not
/// from 1 as IAMAX counts. A NaN is never larger, and nothing is larger than a NaN that comes first. 0 where n is below
/// 2 or incx is 0.
ZTHALF_API unsigned long ihamax(unsigned long n, half_t* x, unsigned long incx);

/// Interchanges rows of a over columns 0 to n - 1, as LASWP does: for each row i from k1 to k2, or where incx is
/// negative from k2 down to k1, rows i and ipiv[i] are interchanged, both counted from 1; the entries of ipiv lie incx
/// apart from the k1-th on. With incx = 0 nothing is done. Patterns are moved as they are.
ZTHALF_API void hlaswp(unsigned long n, half_t* a, unsigned long lda, unsigned long k1, unsigned long k2,
                       unsigned long* ipiv, int incx);

/// Solves a triangular system with many right-hand sides: b, m by n, becomes alpha * inverse(op(a)) * b (side L, a of
/// order m) or alpha * b * inverse(op(a)) (side R, order n), with the upper triangle of a (uplo U) or the lower one, op
/// being nothing (transa N) or the transpose, and a's diagonal (diag N) or ones.
///
/// Everything is computed in float, each multiplication, subtraction and division rounded by itself, in the order of
/// the reference TRSM, and rounded to half once at the end. On the left elements are divided by the diagonal, on the
/// right they are multiplied by its reciprocal. A zero element of b (left, N) or of a (right) takes its terms along,
/// and on the left with N its division too. alpha = 1 is not multiplied with. alpha = 0 makes b +0, and a is not used.
/// A zero on the diagonal gives infinities or NaNs. m = 0 or n = 0 does nothing.
ZTHALF_API void htrsm(char* side, char* uplo, char* transa, char* diag, unsigned long m, unsigned long n, half_t alpha,
                      half_t* a, unsigned long lda, half_t* b, unsigned long ldb);

/// Factorises a, m by n, in place: a = P * L * U, with partial pivoting by rows, L with ones on its diagonal. ipiv gets
/// min(m, n) row numbers counted from 1: row i was interchanged with row ipiv[i]. hgetrf2 is recursive; hgetrf takes
/// panels of 64 columns by hgetrf2, and is hgetrf2 where min(m, n) is at most 64.
///
/// Every step calls the functions above through their entries of the table, so it rounds as they do: a column is scaled
/// by hscal with the reciprocal of the pivot rounded to half, or divided where the pivot's magnitude is below 2^-10;
/// trailing elements are one chain of hgemm, or several, with a rounding to half after each.
///
/// info: 0; -4 where lda is smaller than max(m, 1), the work being done all the same, on overlapping columns; from
/// hgetrf2 otherwise the number, counted from 1, of the first column whose pivot is zero, which stays unscaled. From
/// hgetrf with more than 64 columns and rows that number is one less, so that a zero pivot in the first column is not
/// told. A NaN is no zero pivot: it spreads.
ZTHALF_API void hgetrf2(unsigned long m, unsigned long n, half_t* a, unsigned long lda, unsigned long* ipiv, int& info);
ZTHALF_API void hgetrf(unsigned long m, unsigned long n, half_t* a, unsigned long lda, unsigned long* ipiv, int& info);

}  // namespace half_vector

/// The same on patterns, for unsigned short alone: what the entries of half_ptr.h point to.
namespace half::blas {

template <class A, class B, class C>
ZTHALF_API void hgemm(char* transa, char* transb, unsigned long m, unsigned long n, unsigned long k, A alpha, A* a,
                      unsigned long lda, B* b, unsigned long ldb, C beta, C* c, unsigned long ldc);
template <class Alpha, class X>
ZTHALF_API void hscal(unsigned long n, Alpha alpha, X* x, unsigned long incx);
template <class X>
ZTHALF_API unsigned long ihamax(unsigned long n, X* x, unsigned long incx);
template <class A>
ZTHALF_API void hlaswp(unsigned long n, A* a, unsigned long lda, unsigned long k1, unsigned long k2,
                       unsigned long* ipiv, int incx);
template <class A, class B>
ZTHALF_API void htrsm(char* side, char* uplo, char* transa, char* diag, unsigned long m, unsigned long n, A alpha, A* a,
                      unsigned long lda, B* b, unsigned long ldb);
template <class A>
ZTHALF_API void hgetrf2(unsigned long m, unsigned long n, A* a, unsigned long lda, unsigned long* ipiv, int& info);
template <class A>
ZTHALF_API void hgetrf(unsigned long m, unsigned long n, A* a, unsigned long lda, unsigned long* ipiv, int& info);

}  // namespace half::blas
