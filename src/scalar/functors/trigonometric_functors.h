// Functors of the trigonometric functions.
// Internal: promises nothing to users of the library.
#pragma once

#include "scalar/trigonometric.h"
#include "zthalf/half_t.h"

namespace half::scalar::emulated {

struct sinFtor {
  static constexpr unsigned long grain = 256;
  static constexpr bool baseOnly = true;  // a call for each element
  fp16binary_t operator()(fp16binary_t x) const { return {zthalf::sinOf(x.bits)}; }
};

struct cosFtor {
  static constexpr unsigned long grain = 256;
  static constexpr bool baseOnly = true;
  fp16binary_t operator()(fp16binary_t x) const { return {zthalf::cosOf(x.bits)}; }
};

struct tanFtor {
  static constexpr unsigned long grain = 256;
  static constexpr bool baseOnly = true;
  fp16binary_t operator()(fp16binary_t x) const { return {zthalf::tanOf(x.bits)}; }
};

struct sinpiFtor {
  static constexpr unsigned long grain = 256;
  static constexpr bool baseOnly = true;
  fp16binary_t operator()(fp16binary_t x) const { return {zthalf::sinpiOf(x.bits)}; }
};

struct cospiFtor {
  static constexpr unsigned long grain = 256;
  static constexpr bool baseOnly = true;
  fp16binary_t operator()(fp16binary_t x) const { return {zthalf::cospiOf(x.bits)}; }
};

}  // namespace half::scalar::emulated
