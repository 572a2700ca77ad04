// Functors of the operations that are bit work on a pattern.
// Internal: promises nothing to users of the library.
#pragma once

#include <complex>

#include "scalar/sign_and_class.h"
#include "zthalf/half_t.h"

namespace half::scalar::emulated {

using complexHalf = std::complex<fp16binary_t>;

struct uminusFtor {
  static constexpr unsigned long grain = 4096;
  ZTHALF_INLINE fp16binary_t operator()(fp16binary_t x) const { return {zthalf::negated(x.bits)}; }
  ZTHALF_INLINE complexHalf operator()(complexHalf z) const {
    return {{zthalf::negated(z.real().bits)}, {zthalf::negatedUnlessZero(z.imag().bits)}};
  }
};

struct conjFtor {
  static constexpr unsigned long grain = 4096;
  ZTHALF_INLINE complexHalf operator()(complexHalf z) const {
    return {z.real(), {zthalf::negatedUnlessZero(z.imag().bits)}};
  }
};

struct realFtor {
  static constexpr unsigned long grain = 4096;
  ZTHALF_INLINE fp16binary_t operator()(complexHalf z) const { return z.real(); }
};

struct imagFtor {
  static constexpr unsigned long grain = 4096;
  ZTHALF_INLINE fp16binary_t operator()(complexHalf z) const { return z.imag(); }
};

struct absFtor {
  static constexpr unsigned long grain = 512;
  ZTHALF_INLINE fp16binary_t operator()(fp16binary_t x) const { return {zthalf::pattern::magnitudeOf(x.bits)}; }
};

struct realToComplexFtor {
  static constexpr unsigned long grain = 512;
  ZTHALF_INLINE complexHalf operator()(fp16binary_t x) const { return {x, {zthalf::pattern::zero}}; }
};

struct signFtor {
  static constexpr unsigned long grain = 256;
  ZTHALF_INLINE fp16binary_t operator()(fp16binary_t x) const { return {zthalf::signumOf(x.bits)}; }
};

namespace realOps {

struct isnanFtor {
  ZTHALF_INLINE bool operator()(fp16binary_t x) const { return zthalf::pattern::isNaN(x.bits); }
};

struct isinfFtor {
  ZTHALF_INLINE bool operator()(fp16binary_t x) const { return zthalf::pattern::isInfinite(x.bits); }
};

struct isfiniteFtor {
  ZTHALF_INLINE bool operator()(fp16binary_t x) const { return zthalf::pattern::isFinite(x.bits); }
};

}  // namespace realOps

}  // namespace half::scalar::emulated
