// The one conversion functor.
#pragma once

#include <type_traits>

#include "core/float_conversion.h"
#include "core/integer_conversion.h"
#include "zthalf/half_t.h"

namespace half::scalar::emulated {

template <class From, class To, class Unused>
struct castToFtor;

template <class From>
struct castToFtor<From, fp16binary_t, void> {
  static constexpr unsigned long grain = 128;
  ZTHALF_INLINE fp16binary_t operator()(From x) const {
    if constexpr (std::is_floating_point_v<From>) {
      return {zthalf::narrow(x)};
    } else {
      return {zthalf::integerToHalf(x)};
    }
  }
};

// The elements of a logical array are bytes, and any byte but zero is true.
template <>
struct castToFtor<bool, fp16binary_t, void> {
  static constexpr unsigned long grain = 128;
  ZTHALF_INLINE fp16binary_t operator()(unsigned char x) const { return {zthalf::logicalToHalf(x)}; }
};

// The same pattern, that of a NaN too. Both of the others would match.
template <>
struct castToFtor<fp16binary_t, fp16binary_t, void> {
  static constexpr unsigned long grain = 128;
  ZTHALF_INLINE fp16binary_t operator()(fp16binary_t x) const { return x; }
};

template <class To>
struct castToFtor<fp16binary_t, To, void> {
  static constexpr unsigned long grain = 128;
  ZTHALF_INLINE To operator()(fp16binary_t x) const {
    if constexpr (std::is_floating_point_v<To>) {
      return zthalf::widen<To>(x.bits);
    } else if constexpr (std::is_same_v<To, bool>) {
      return zthalf::halfToLogical(x.bits);
    } else {
      return zthalf::halfToInteger<To>(x.bits);
    }
  }
};

}  // namespace half::scalar::emulated
