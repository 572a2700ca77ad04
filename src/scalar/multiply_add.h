// x y + z with one effective rounding, for every mixture of halves, floats and doubles.
// Internal: promises nothing to users of the library.
//
// The result has the narrowest of the three types. Without a double factor the product is exact in a working type, and
// the sum there is made safe for the second rounding; with one, product and sum are fused in double and then rounded.
#pragma once

#include <cmath>
#include <cstdint>
#include <initializer_list>
#include <type_traits>

#include "core/bits.h"
#include "core/float_conversion.h"
#include "core/nan_policy.h"
#include "scalar/mixed_operands.h"
#include "scalar/nudged_sum.h"

namespace zthalf {

// The fused operation, and its NaN: a signalling operand before a quiet one, then the first one of x, y, z; the default
// NaN if no operand is one.
inline double fusedMultiplyAdd(double x, double y, double z) {
  const double plain = std::fma(x, y, z);
  if (plain == plain) return plain;
  for (const double operand : {x, y, z}) {
    if (isSignalling(operand)) return quieted(operand);
  }
  for (const double operand : {x, y, z}) {
    if (operand != operand) return operand;
  }
  return defaultNaN<double>;
}

// Three halves: float holds the product.
ZTHALF_INLINE std::uint16_t plainMultiplyAdd(std::uint16_t x, std::uint16_t y, std::uint16_t z) {
  return narrow(nudgedSum<13>(widen<float>(x) * widen<float>(y), widen<float>(z)));
}

// With the NaN of the defining unit: the product's is the sum's first operand.
ZTHALF_INLINE std::uint16_t multiplyAdd(std::uint16_t x, std::uint16_t y, std::uint16_t z) {
  const std::uint16_t product = settled(narrow(widen<float>(x) * widen<float>(y)), x, y);
  return settled(plainMultiplyAdd(x, y, z), product, z);
}

template <class Out, class Wide>
ZTHALF_INLINE Out roundedTo(Wide value) {
  if constexpr (isHalfOperand<Out>) {
    return narrow(value);
  } else {
    return static_cast<Out>(value);
  }
}

// The other mixtures. Only two halves times float keep to float; the product of a float with a half or a float has up
// to 48 bits and takes double.
template <class X, class Y, class Z>
ZTHALF_INLINE auto multiplyAdd(X x, Y y, Z z) {
  using floating = std::conditional_t<anyFloat<X, Y, Z>, float, double>;
  using result = std::conditional_t<anyHalf<X, Y, Z>, std::uint16_t, floating>;
  if constexpr (anyDouble<X, Y>) {
    return roundedTo<result>(fusedMultiplyAdd(exactly<double>(x), exactly<double>(y), exactly<double>(z)));
  } else {
    using working = std::conditional_t<anyHalf<X> && anyHalf<Y>, widestOf<Z>, double>;
    constexpr int dropped = formatOf<working>::fractionWidth - (anyHalf<X, Y, Z> ? 10 : 23);
    const auto wideX = exactly<working>(x);
    const auto wideY = exactly<working>(y);
    const auto wideZ = exactly<working>(z);
    const working product = settled(wideX * wideY, wideX, wideY);
    return roundedTo<result>(settled(nudgedSum<dropped>(product, wideZ), product, wideZ));
  }
}

}  // namespace zthalf
