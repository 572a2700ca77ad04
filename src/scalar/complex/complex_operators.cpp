// The operators of complex halves.
#include "scalar/mixed_arithmetic.h"
#include "scalar/sign_and_class.h"
#include "zthalf/half_scalar.h"
#include "zthalf/half_t.h"

using zthalf::bare;
using zthalf::dressed;

std::complex<half_t> operator+(std::complex<half_t> x, std::complex<half_t> y) {
  return dressed(zthalf::sumOf(bare(x), bare(y)));
}
std::complex<half_t> operator-(std::complex<half_t> x, std::complex<half_t> y) {
  return dressed(zthalf::differenceOf(bare(x), bare(y)));
}
std::complex<half_t> operator*(std::complex<half_t> x, std::complex<half_t> y) {
  return dressed(zthalf::productOf(bare(x), bare(y)));
}
std::complex<half_t> operator/(std::complex<half_t> x, std::complex<half_t> y) {
  return dressed(zthalf::quotientOf(bare(x), bare(y)));
}
std::complex<half_t> operator-(std::complex<half_t> z) { return half_scalar::uminus(z); }

bool operator==(std::complex<half_t> x, std::complex<half_t> y) { return x.real() == y.real() && x.imag() == y.imag(); }
bool operator!=(std::complex<half_t> x, std::complex<half_t> y) { return !(x == y); }
bool operator>(std::complex<half_t> x, std::complex<half_t> y) { return x.real() > y.real(); }
bool operator>=(std::complex<half_t> x, std::complex<half_t> y) { return x.real() >= y.real(); }
bool operator<(std::complex<half_t> x, std::complex<half_t> y) { return x.real() < y.real(); }
bool operator<=(std::complex<half_t> x, std::complex<half_t> y) { return x.real() <= y.real(); }
