// What a user would write who has no half routines: convert to float, call OpenBLAS, convert back. On one thread.
#pragma once

#include <complex>

#include "zthalf/half_t.h"

namespace bench {

// Whether it was compiled in.
bool hasOpenBlas();

// Square matrices of order n; the conversions and their memory belong to the call.
void openBlasProduct(half_t* a, half_t* b, half_t* c, unsigned long n);
void openBlasProduct(std::complex<half_t>* a, std::complex<half_t>* b, std::complex<half_t>* c, unsigned long n);
void openBlasMatrixByVector(half_t* a, half_t* x, half_t* y, unsigned long n);
void openBlasSolve(half_t* a, half_t* b, unsigned long n);  // lower, left, not transposed
void openBlasFactorisation(half_t* a, unsigned long n);

}  // namespace bench
