// Functors of the real functions of one half, as the rows of elementary_functions.h tell; and of the split into
// fraction and exponent.
#pragma once

#include <complex>

#include "scalar/elementary_functions.h"
#include "scalar/exponential.h"
#include "scalar/functors/elementary_bodies.h"
#include "scalar/kernels/asin_acos_single.h"
#include "scalar/kernels/asinh_acosh_single.h"
#include "scalar/kernels/atan_single.h"
#include "scalar/kernels/atanh_single.h"
#include "scalar/kernels/expm1_single.h"
#include "scalar/kernels/log10_single.h"
#include "scalar/kernels/log1p_single.h"
#include "scalar/kernels/log2_single.h"
#include "scalar/kernels/sin_cos_single.h"
#include "scalar/kernels/sinh_cosh_single.h"
#include "scalar/kernels/sinpi_cospi_single.h"
#include "scalar/kernels/tan_single.h"
#include "scalar/kernels/tanh_single.h"
#include "scalar/logarithm.h"
#include "scalar/root.h"

namespace half::scalar::emulated {

#define ZTHALF_DEFINE_FUNCTOR(function, ...) \
  struct function##Ftor : __VA_ARGS__ {};
ZTHALF_ELEMENTARY_FUNCTIONS(ZTHALF_DEFINE_FUNCTOR)
#undef ZTHALF_DEFINE_FUNCTOR

struct log2TwoOutFtor {
  static constexpr unsigned long grain = 256;
  ZTHALF_INLINE void operator()(fp16binary_t x, fp16binary_t& fraction, fp16binary_t& exponent) const {
    const zthalf::fractionAndExponent parts = zthalf::splitOf(x.bits);
    fraction = {parts.fraction};
    exponent = {parts.exponent};
  }
};

// The same on the real part; the imaginary part is not looked at.
struct cplxLog2TwoOutFtor {
  static constexpr unsigned long grain = 256;
  ZTHALF_INLINE void operator()(std::complex<fp16binary_t> z, fp16binary_t& fraction, fp16binary_t& exponent) const {
    log2TwoOutFtor{}(z.real(), fraction, exponent);
  }
};

}  // namespace half::scalar::emulated
