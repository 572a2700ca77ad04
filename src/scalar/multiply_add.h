// x y + z with one effective rounding, for every mixture of halves, floats and doubles.
//
// The result has the narrowest of the three types. Without a double factor the product is exact in a working type, and
// the sum there is made safe for the second rounding; with one, product and sum are fused in double and then rounded.
#pragma once

#include <cstdint>
#include <type_traits>

#include "core/bits.h"
#include "core/float_conversion.h"
#include "core/nan_policy.h"
#include "scalar/mixed_operands.h"
#include "scalar/nudged_sum.h"

namespace zthalf {

// The fused operation, and its NaN: a signalling operand before a quiet one, then the first one of x, y, z; the default
// NaN if no operand is one.
double fusedMultiplyAdd(double x, double y, double z);

// Three halves: float holds the product.
ZTHALF_INLINE std::uint16_t plainMultiplyAdd(std::uint16_t x, std::uint16_t y, std::uint16_t z) {
  return narrow(nudgedSum<13>(widen<float>(x) * widen<float>(y), widen<float>(z)));
}

// With the NaN of the defining unit (core/nan_policy.h): the product's is the sum's first operand. The result is a
// half, so of every NaN only its sign counts and whether it signals, and all that is decided on half patterns: z's is
// that of its NaN. The product's NaN is always a quiet one.
ZTHALF_INLINE std::uint16_t settledMultiplyAdd(std::uint16_t x, std::uint16_t y, float z, std::uint16_t nanOfZ) {
  const float product = widen<float>(x) * widen<float>(y);
  const auto productNaN = static_cast<std::uint16_t>(maskOf<std::uint32_t>(product != product) & pattern::quietNaN);
  const auto first = static_cast<std::uint16_t>(productNaN | signOfNaN(x, y));
  return settled(nudgedSum<13>(product, z), first, nanOfZ);
}

ZTHALF_INLINE std::uint16_t multiplyAdd(std::uint16_t x, std::uint16_t y, std::uint16_t z) {
  return settledMultiplyAdd(x, y, widen<float>(z), z);
}

// A half NaN of the same sign that signals where the float does; zero where it is no NaN.
ZTHALF_INLINE std::uint16_t halfNaNOf(float z) {
  const std::uint32_t bits = bitsOf(z);
  const std::uint32_t quiet = (bits >> 13) & pattern::quietBit;
  const std::uint32_t nan = ((bits >> 16) & pattern::signBit) | quiet | (pattern::infinity + 1u);
  return static_cast<std::uint16_t>(nan & maskOf<std::uint32_t>(z != z));
}

ZTHALF_INLINE std::uint16_t multiplyAdd(std::uint16_t x, std::uint16_t y, float z) {
  return settledMultiplyAdd(x, y, z, halfNaNOf(z));
}

template <class Out, class Wide>
ZTHALF_INLINE Out roundedTo(Wide value) {
  if constexpr (isHalfOperand<Out>) {
    return narrow(value);
  } else {
    return static_cast<Out>(value);
  }
}

// The other mixtures. The product of a float with a half or a float has up to 48 bits and takes double.
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
