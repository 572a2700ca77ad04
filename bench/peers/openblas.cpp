#include "bench/peers/openblas.h"

#include <vector>

#include "zthalf/half_vector.h"

#if defined(ZTHALF_PEER_OPENBLAS)

#include <cblas.h>

extern "C" void sgetrf_(int* m, int* n, float* a, int* lda, int* ipiv, int* info);

namespace bench {

namespace {

std::vector<float> widened(half_t* x, unsigned long n) {
  std::vector<float> wide(n);
  half_vector::convertFromHalf(x, wide.data(), n);
  return wide;
}

// Complex halves are pairs of halves.
half_t* parts(std::complex<half_t>* z) { return reinterpret_cast<half_t*>(z); }

int order(unsigned long n) {
  openblas_set_num_threads(1);
  return static_cast<int>(n);
}

}  // namespace

bool hasOpenBlas() { return true; }

void openBlasProduct(half_t* a, half_t* b, half_t* c, unsigned long n) {
  const int o = order(n);
  const auto fa = widened(a, n * n), fb = widened(b, n * n);
  std::vector<float> fc(n * n);
  cblas_sgemm(CblasColMajor, CblasNoTrans, CblasNoTrans, o, o, o, 1, fa.data(), o, fb.data(), o, 0, fc.data(), o);
  half_vector::convertToHalf(fc.data(), c, n * n);
}

void openBlasProduct(std::complex<half_t>* a, std::complex<half_t>* b, std::complex<half_t>* c, unsigned long n) {
  const int o = order(n);
  const float one[] = {1, 0}, zero[] = {0, 0};
  const auto fa = widened(parts(a), 2 * n * n), fb = widened(parts(b), 2 * n * n);
  std::vector<float> fc(2 * n * n);
  cblas_cgemm(CblasColMajor, CblasNoTrans, CblasNoTrans, o, o, o, one, fa.data(), o, fb.data(), o, zero, fc.data(), o);
  half_vector::convertToHalf(fc.data(), parts(c), 2 * n * n);
}

void openBlasMatrixByVector(half_t* a, half_t* x, half_t* y, unsigned long n) {
  const int o = order(n);
  const auto fa = widened(a, n * n), fx = widened(x, n);
  std::vector<float> fy(n);
  cblas_sgemv(CblasColMajor, CblasNoTrans, o, o, 1, fa.data(), o, fx.data(), 1, 0, fy.data(), 1);
  half_vector::convertToHalf(fy.data(), y, n);
}

void openBlasSolve(half_t* a, half_t* b, unsigned long n) {
  const int o = order(n);
  const auto fa = widened(a, n * n);
  auto fb = widened(b, n * n);
  cblas_strsm(CblasColMajor, CblasLeft, CblasLower, CblasNoTrans, CblasNonUnit, o, o, 1, fa.data(), o, fb.data(), o);
  half_vector::convertToHalf(fb.data(), b, n * n);
}

void openBlasFactorisation(half_t* a, unsigned long n) {
  int o = order(n), info;
  auto fa = widened(a, n * n);
  std::vector<int> ipiv(n);
  sgetrf_(&o, &o, fa.data(), &o, ipiv.data(), &info);
  half_vector::convertToHalf(fa.data(), a, n * n);
}

}  // namespace bench

#else

namespace bench {

bool hasOpenBlas() { return false; }
void openBlasProduct(half_t*, half_t*, half_t*, unsigned long) {}
void openBlasProduct(std::complex<half_t>*, std::complex<half_t>*, std::complex<half_t>*, unsigned long) {}
void openBlasMatrixByVector(half_t*, half_t*, half_t*, unsigned long) {}
void openBlasSolve(half_t*, half_t*, unsigned long) {}
void openBlasFactorisation(half_t*, unsigned long) {}

}  // namespace bench

#endif
