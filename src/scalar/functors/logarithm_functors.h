// Functors of the logarithms and of the split into fraction and exponent.
// Internal: promises nothing to users of the library.
#pragma once

#include <complex>

#include "scalar/logarithm.h"
#include "zthalf/half_t.h"

namespace half::scalar::emulated {

struct logFtor {
  static constexpr unsigned long grain = 256;
  ZTHALF_INLINE fp16binary_t operator()(fp16binary_t x) const { return {zthalf::logOf(x.bits)}; }
};

struct log1pFtor {
  static constexpr unsigned long grain = 256;
  static constexpr bool baseOnly = true;  // a call for each element
  fp16binary_t operator()(fp16binary_t x) const { return {zthalf::log1pOf(x.bits)}; }
};

struct log2Ftor {
  static constexpr unsigned long grain = 256;
  static constexpr bool baseOnly = true;
  fp16binary_t operator()(fp16binary_t x) const { return {zthalf::log2Of(x.bits)}; }
};

struct log10Ftor {
  static constexpr unsigned long grain = 256;
  static constexpr bool baseOnly = true;
  fp16binary_t operator()(fp16binary_t x) const { return {zthalf::log10Of(x.bits)}; }
};

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
