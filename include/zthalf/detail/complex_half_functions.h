// The functions of <complex> on complex halves: the library's own, or none.
//
// The standard templates take any type that has the operators they use. Of complex halves they would make a conjugate
// with a minus zero and a magnitude with several roundings, and something else in another standard library. So each one
// is either specialised to a function of this library or deleted.
#pragma once

#include <complex>

#include "zthalf/detail/export.h"
#include "zthalf/half_t.h"

namespace half_scalar {  // documented in half_scalar.h

ZTHALF_API half_t abs(std::complex<half_t> z);
ZTHALF_API std::complex<half_t> conj(std::complex<half_t> z);
ZTHALF_API half_t atan2(half_t y, half_t x);

}  // namespace half_scalar

namespace std {

/// half_scalar::abs and conj, and half_scalar::atan2 of the parts. std::real and std::imag are right as they are.
template <>
inline half_t abs(const complex<half_t>& z) {
  return half_scalar::abs(z);
}
template <>
inline half_t arg(const complex<half_t>& z) {
  return half_scalar::atan2(z.imag(), z.real());
}
template <>
inline complex<half_t> conj(const complex<half_t>& z) {
  return half_scalar::conj(z);
}

template <>
half_t norm(const complex<half_t>&) = delete;
template <>
complex<half_t> proj(const complex<half_t>&) = delete;
template <>
complex<half_t> polar(const half_t&, const half_t&) = delete;
template <>
complex<half_t> pow(const complex<half_t>&, const complex<half_t>&) = delete;
#ifdef __GLIBCXX__
template <>
complex<half_t> pow(const complex<half_t>&, const half_t&) = delete;
template <>
complex<half_t> pow(const half_t&, const complex<half_t>&) = delete;
#endif

#define ZTHALF_DELETE(function) \
  template <>                   \
  complex<half_t> function(const complex<half_t>&) = delete;
ZTHALF_DELETE(exp)
ZTHALF_DELETE(log)
ZTHALF_DELETE(log10)
ZTHALF_DELETE(sqrt)
ZTHALF_DELETE(sin)
ZTHALF_DELETE(cos)
ZTHALF_DELETE(tan)
ZTHALF_DELETE(asin)
ZTHALF_DELETE(acos)
ZTHALF_DELETE(atan)
ZTHALF_DELETE(sinh)
ZTHALF_DELETE(cosh)
ZTHALF_DELETE(tanh)
ZTHALF_DELETE(asinh)
ZTHALF_DELETE(acosh)
ZTHALF_DELETE(atanh)
#undef ZTHALF_DELETE

}  // namespace std
