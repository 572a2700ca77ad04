// The distance in units in the last place, on arrays of equal size. There is no table entry: each function calls its
// loop itself.
#include "elementwise/binary_op.h"
#include "frame/table/stored.h"
#include "scalar/functors/spacing_functors.h"
#include "zthalf/half_vector.h"

namespace half_vector {

namespace {

template <class A, class B>
void loop(A* a, B* b, double* out, unsigned long n) {
  half_utils::halfBinaryOpParallelLoop(stored(a), stored(b), out, n, half::scalar::emulated::ulpFtor{});
}

}  // namespace

void ulp(half_t* a, half_t* b, double* out, unsigned long n) { loop(a, b, out, n); }
void ulp(half_t* a, float* b, double* out, unsigned long n) { loop(a, b, out, n); }
void ulp(half_t* a, double* b, double* out, unsigned long n) { loop(a, b, out, n); }
void ulp(float* a, half_t* b, double* out, unsigned long n) { loop(a, b, out, n); }
void ulp(float* a, float* b, double* out, unsigned long n) { loop(a, b, out, n); }
void ulp(float* a, double* b, double* out, unsigned long n) { loop(a, b, out, n); }
void ulp(double* a, half_t* b, double* out, unsigned long n) { loop(a, b, out, n); }
void ulp(double* a, float* b, double* out, unsigned long n) { loop(a, b, out, n); }
void ulp(double* a, double* b, double* out, unsigned long n) { loop(a, b, out, n); }
void ulp(std::complex<half_t>* a, std::complex<half_t>* b, double* out, unsigned long n) { loop(a, b, out, n); }

}  // namespace half_vector
