// The operators of complex halves.
#include "scalar/mixed_arithmetic.h"
#include "scalar/sign_and_class.h"
#include "zthalf/half_scalar.h"
#include "zthalf/half_t.h"

namespace {

zthalf::complexHalf bare(std::complex<half_t> z) { return {z.real().bits, z.imag().bits}; }
std::complex<half_t> dressed(zthalf::complexHalf z) { return {half_t{z.re}, half_t{z.im}}; }

}  // namespace

std::complex<half_t> operator+(std::complex<half_t> x, std::complex<half_t> y) {
  return dressed(zthalf::complexSum(bare(x), bare(y)));
}
std::complex<half_t> operator-(std::complex<half_t> x, std::complex<half_t> y) {
  return dressed(zthalf::complexDifference(bare(x), bare(y)));
}
std::complex<half_t> operator*(std::complex<half_t> x, std::complex<half_t> y) {
  return dressed(zthalf::complexProduct(bare(x), bare(y)));
}
std::complex<half_t> operator/(std::complex<half_t> x, std::complex<half_t> y) {
  return dressed(zthalf::complexQuotient(bare(x), bare(y)));
}
std::complex<half_t> operator-(std::complex<half_t> z) { return half_scalar::uminus(z); }

bool operator==(std::complex<half_t> x, std::complex<half_t> y) { return x.real() == y.real() && x.imag() == y.imag(); }
bool operator!=(std::complex<half_t> x, std::complex<half_t> y) { return !(x == y); }
bool operator>(std::complex<half_t> x, std::complex<half_t> y) { return x.real() > y.real(); }
bool operator>=(std::complex<half_t> x, std::complex<half_t> y) { return x.real() >= y.real(); }
bool operator<(std::complex<half_t> x, std::complex<half_t> y) { return x.real() < y.real(); }
bool operator<=(std::complex<half_t> x, std::complex<half_t> y) { return x.real() <= y.real(); }
