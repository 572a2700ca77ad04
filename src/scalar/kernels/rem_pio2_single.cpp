#include "scalar/kernels/rem_pio2_single.h"

#include <array>

#include "scalar/kernels/float_fields.h"
#include "scalar/kernels/kernel_rem_pio2.h"

namespace qsl_scalar {

namespace {

// pi/2 = lead[0] + lead[1] + lead[2] + ..., where each lead has at most 17 significant bits, so that n * lead is exact
// for n up to 128. rest[i] is what is left of pi/2 after lead[0] to lead[i], rounded.
constexpr float lead[] = {
    floatOf(0x3FC90F80u),  // 1.5707855224609375
    floatOf(0x37354400u),  // 1.0804273188114166e-05
    floatOf(0x2E85A300u),  // 6.077094383272197e-11
};
constexpr float rest[] = {
    floatOf(0x37354443u),  // 1.0804334124259185e-05
    floatOf(0x2E85A308u),  // 6.07709993438732e-11
    floatOf(0x248D3132u),  // 6.123234262925839e-17
};
constexpr float twoOverPi = floatOf(0x3F22F984u);  // 0.6366198062896729

constexpr std::uint32_t threeQuarterPi = 0x4016CBE2u;  // 2.356194
constexpr std::uint32_t nearHalfPi = 0x3FC90FC0u;      // 1.5707932, 27 units below pi/2
constexpr std::uint32_t middleLimit = 0x43490F80u;     // 201.06055, about 128 pi/2

constexpr std::uint32_t leadingBits = 0xFFFFFF00u;  // sign, exponent and the upper 15 bits of a fraction

// n pi/2 in single precision without its 8 low bits, at index n.
constexpr auto multiplesOfHalfPi = [] {
  constexpr double halfPi = 1.5707963267948966;
  std::array<std::uint32_t, 32> words{};
  for (int n = 0; n < 32; ++n) words[n] = bitsOf(static_cast<float>(n * halfPi)) & leadingBits;
  return words;
}();

// Up to 3 pi/4: n is 1 or -1. Where x agrees with pi/2 in its upper 19 bits, too little is left of it after one step,
// and the second pair of constants continues the subtraction.
reducedAngle byOneStep(float x) {
  const std::uint32_t magnitude = magnitudeBitsOf(x);
  const bool isNear = magnitude >= nearHalfPi && magnitude < nearHalfPi + 48;
  const float sign = floatOf((bitsOf(x) & signBit) | bitsOf(1.0f));
  float z = x - sign * lead[0];
  if (isNear) z = z - sign * lead[1];
  const float t = sign * rest[isNear ? 1 : 0];
  const float upper = z - t;
  return {hasSign(x) ? -1 : 1, upper, (z - upper) - t};
}

// n pi/2 taken from r in one more step: r loses n * lead[i], and what the result must still lose is n * rest[i] plus
// what that subtraction dropped.
struct difference {
  float r;
  float w;
  float upper() const { return r - w; }
};

difference refined(float r, float n, int i) {
  const float w = n * lead[i];
  const float next = r - w;
  return {next, n * rest[i] - ((r - next) - w)};
}

// Up to 201.06. One step is enough unless x lies near the multiple that is subtracted: the exponents tell how many bits
// cancelled, and from 9 on a second step follows, from 26 on, counted after it, a third.
//
// For n up to 31 a comparison of leading bits goes before that: x that differs from the multiple there counts as clear
// of it. The comparison is not exact. An x just across a change of these bits gets one step only although it is near,
// and its angle is then right to some 22 bits; sine, cosine and tangent have their largest errors there.
reducedAngle byRepeatedSteps(float x) {
  const float t = magnitudeOf(x);
  const auto n = static_cast<std::int32_t>(t * twoOverPi + 0.5f);
  const auto multiple = static_cast<float>(n);
  difference y = {t - multiple * lead[0], multiple * rest[0]};

  const bool isClear = n <= 31 && (bitsOf(t) & leadingBits) != multiplesOfHalfPi[n];
  const auto cancelledBits = [&] { return exponentFieldOf(t) - exponentFieldOf(y.upper()); };
  if (!isClear && cancelledBits() >= 9) {
    y = refined(y.r, multiple, 1);
    if (cancelledBits() >= 26) y = refined(y.r, multiple, 2);
  }
  const float upper = y.upper();
  const float lower = (y.r - upper) - y.w;
  return reducedAngle{n, upper, lower}.negatedIf(bitsOf(x) & signBit);
}

// Above: |x| = 2^exponent * z with z in [128, 256), whose three digits to the base 256 are the significand's bytes.
reducedAngle byDigits(float x) {
  const auto significand = static_cast<std::int32_t>(fractionBitsOf(x) | hiddenBit);
  const reducedAngle y =
      kernelRemPio2({{significand >> 16, significand >> 8 & 0xFF, significand & 0xFF}, exponentFieldOf(x) - 134});
  return y.negatedIf(bitsOf(x) & signBit);
}

}  // namespace

// Three ways by magnitude, each of wider range than the one before and dearer: one subtraction of pi/2, subtractions of
// a rounded quotient times pi/2, and the product with the digits of 2/pi.
reducedAngle remPio2Single(float x) {
  const std::uint32_t magnitude = magnitudeBitsOf(x);
  if (magnitude <= threeQuarterPi) return byOneStep(x);
  if (magnitude <= middleLimit) return byRepeatedSteps(x);
  if (magnitude >= exponentBits) return {0, domainNaN, domainNaN};
  return byDigits(x);
}

}  // namespace qsl_scalar
