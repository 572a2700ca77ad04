// The natural logarithm in single precision.
#pragma once

#include <cstdint>

#include "scalar/kernels/float_fields.h"
#include "scalar/kernels/logarithm_constants.h"

namespace qsl_scalar {

// Reduction: x = 2^k (1 + f) with 1 + f in about [0.71, 1.42), so that f is exact and ln x = k ln 2 + ln(1 + f).
//
// With s = f / (2 + f) and R(s) the even series of logarithm_constants.h, ln(1 + f) = f - s (f - R). Where the
// significand of x is within 15 units below a power of two, or is one, f is so small that f - (f^2/2 - f^3/3) is
// enough. k ln 2 enters in two parts, the exact upper one last. For k = 0 both parts vanish and the same line gives
// f - s (f - R), so k = 0 is no case of its own, and neither is f = 0.
//
// Special cases, decided on the pattern: a zero gives -infinity; anything else with the sign bit set, a NaN and
// -infinity included, gives the negative NaN; +infinity and the other NaNs come back as they are. A subnormal is
// scaled by 2^25 first.
//
// There is no branch: both middle terms are computed and one is selected, so that a loop over this function runs in
// vector lanes. Less than 1 ulp.
ZTHALF_INLINE float logSingle(float x) {
  using zthalf::maskOf;
  using zthalf::select;
  constexpr std::uint32_t oneMinusRootHalf = 0x004AFB0Du;  // carries out of the fraction from about 1.414 on
  constexpr float minusThird = floatOf(0xBEAAAAABu);       // -0.3333333432674408

  const bool isSubnormal = magnitudeBitsOf(x) < hiddenBit;
  const std::uint32_t word = select(maskOf<std::uint32_t>(isSubnormal), bitsOf(x * 0x1p25f), bitsOf(x));
  const std::int32_t bias = isSubnormal ? 152 : 127;

  const std::uint32_t fraction = word & fractionBits;
  const std::uint32_t shifted = fraction + oneMinusRootHalf;
  const auto k = static_cast<float>(static_cast<std::int32_t>((word >> 23) + (shifted >> 23)) - bias);
  const float f = floatOf(((shifted & hiddenBit) | fraction) ^ 0x3F800000u) - 1.0f;

  const float nearOne = (f * f) * (f * minusThird + 0.5f);
  const float s = f / (f + 2.0f);
  const float z = s * s;
  const float w = z * z;
  const float series = z * (w * lg3 + lg1) + w * (w * lg4 + lg2);
  const float general = s * (f - series);
  const std::uint32_t isNearOne = maskOf<std::uint32_t>(((word + 15) & 0x007FFFF0u) == 0);
  const float middle = floatOf(select(isNearOne, bitsOf(nearOne), bitsOf(general)));
  const float number = k * ln2Upper - ((middle + k * -ln2Lower) - f);

  const auto isInfiniteOrNaN = maskOf<std::uint32_t>(signedBitsOf(x) > 0x7F7FFFFF);
  const auto isNegative = maskOf<std::uint32_t>(signedBitsOf(x) < 0);
  const auto isZero = maskOf<std::uint32_t>(magnitudeBitsOf(x) == 0);
  const std::uint32_t nonNegative = select(isInfiniteOrNaN, bitsOf(x), bitsOf(number));
  const std::uint32_t nonZero = select(isNegative, bitsOf(domainNaN), nonNegative);
  return floatOf(select(isZero, bitsOf(negativeInfinity), nonZero));
}

}  // namespace qsl_scalar
