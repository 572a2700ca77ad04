// The signs of NaNs among quotients of halves with a complex operand, in lanes of 16 bits: what the order of operations
// in quotient.h makes of them on the defining unit. For pairs that are not left to the scalar function.
#pragma once

#include "core/nan_policy.h"
#include "scalar/complex/quotient_lanes.h"

namespace zthalf {

// The sign that an operation on (first, second) delivers where one of them is a NaN, elsewhere that of a later one.
ZTHALF_INLINE std::uint16_t signOfNaNOr(std::uint16_t first, std::uint16_t second, std::uint16_t later) {
  return select<std::uint16_t>(pattern::nanMask(first) | pattern::nanMask(second), signOfNaN(first, second), later);
}

ZTHALF_INLINE std::uint16_t withNaNSign(std::uint16_t quotient, std::uint16_t sign) {
  const std::uint16_t isNaN = pattern::nanMask(quotient) & pattern::signBit;
  return static_cast<std::uint16_t>((quotient & ~isNaN) | (sign & isNaN));
}

// A sum of products delivers the first one's NaN before the second one's. The division by the squares adds nothing: a
// part of the divisor that is a NaN has made one of the products a NaN already.
ZTHALF_INLINE complexHalf withNaNSigns(complexHalf quotient, complexHalf x, complexHalf y) {
  const auto [a, b] = x;
  const auto [c, d] = y;
  // Where the signs of a diagonal's parts differ, the imaginary part is a sum with a as its first term, elsewhere b.
  const std::uint16_t isOpposite = divisorWay(y).isDiagonal & ~equalMask(c, d) & ~pattern::nanMask(c);
  const std::uint16_t ad = signOfNaN(a, d), cb = signOfNaN(c, b);
  const std::uint16_t im = select(isOpposite, signOfNaNOr(a, d, cb), signOfNaNOr(c, b, ad));
  return {withNaNSign(quotient.re, signOfNaNOr(a, c, signOfNaN(b, d))), withNaNSign(quotient.im, im)};
}

// The quotients of halves by a real divisor have their signs.
ZTHALF_INLINE complexHalf withNaNSigns(complexHalf quotient, complexHalf, std::uint16_t) { return quotient; }

// One product for each part, with a part of the divisor first. A NaN in the other part comes in with the squares.
ZTHALF_INLINE complexHalf withNaNSigns(complexHalf quotient, std::uint16_t a, complexHalf y) {
  const auto [c, d] = y;
  const divisorWay way(y);
  const std::uint16_t re = select<std::uint16_t>(way.isReal, signOfNaN(a, c), signOfNaNOr(c, a, d));
  // On a diagonal the product is the second operand of a sum or a difference, elsewhere its sign is turned over.
  const std::uint16_t turned = signOfNaNOr(d, a, c ^ pattern::signBit) ^ pattern::signBit;
  const std::uint16_t im = select<std::uint16_t>(way.isDiagonal & ~pattern::nanMask(c), a, turned);
  return {withNaNSign(quotient.re, re), withNaNSign(quotient.im, im)};
}

}  // namespace zthalf
