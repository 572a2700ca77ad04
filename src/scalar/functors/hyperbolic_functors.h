// Functors of the hyperbolic functions and their inverses.
// Internal: promises nothing to users of the library.
#pragma once

#include "scalar/hyperbolic.h"
#include "zthalf/half_t.h"

namespace half::scalar::emulated {

struct sinhFtor {
  static constexpr unsigned long grain = 256;
  static constexpr bool baseOnly = true;  // a call for each element
  fp16binary_t operator()(fp16binary_t x) const { return {zthalf::sinhOf(x.bits)}; }
};

struct coshFtor {
  static constexpr unsigned long grain = 256;
  static constexpr bool baseOnly = true;
  fp16binary_t operator()(fp16binary_t x) const { return {zthalf::coshOf(x.bits)}; }
};

struct tanhFtor {
  static constexpr unsigned long grain = 256;
  static constexpr bool baseOnly = true;
  fp16binary_t operator()(fp16binary_t x) const { return {zthalf::tanhOf(x.bits)}; }
};

struct asinhFtor {
  static constexpr unsigned long grain = 256;
  static constexpr bool baseOnly = true;
  fp16binary_t operator()(fp16binary_t x) const { return {zthalf::asinhOf(x.bits)}; }
};

struct acoshFtor {
  static constexpr unsigned long grain = 256;
  static constexpr bool baseOnly = true;
  fp16binary_t operator()(fp16binary_t x) const { return {zthalf::acoshOf(x.bits)}; }
};

struct atanhFtor {
  static constexpr unsigned long grain = 256;
  static constexpr bool baseOnly = true;
  fp16binary_t operator()(fp16binary_t x) const { return {zthalf::atanhOf(x.bits)}; }
};

}  // namespace half::scalar::emulated
