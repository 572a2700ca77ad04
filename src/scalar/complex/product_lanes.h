// The product of two complex halves without a branch, for passes in vector lanes: the bits of productOf.
#pragma once

#include <cstdint>

#include "core/nan_policy.h"
#include "scalar/complex/complex_value.h"
#include "scalar/nudged_sum.h"

namespace zthalf {

struct productInDoubt {
  complexHalf value;
  std::uint32_t doubt;  // not zero: the value counts for nothing
};

ZTHALF_INLINE std::uint32_t doubtOfSum(float s, float p, float q) {
  const float e = ((s - p) - q) + ((s - q) - p);
  const auto isTie = maskOf<std::uint32_t>((bitsOf(s) & 0xFFFu) == 0);
  return (isTie & maskOf<std::uint32_t>(e != 0)) | maskOf<std::uint32_t>(s != s);
}

// The four products and two sums alone. In doubt where a part is zero, where a NaN comes out, or where the rounding of
// a sum to half would have to be moved: only sums whose last 12 bits are zero can be such ties.
ZTHALF_INLINE productInDoubt plainProductInLanes(complexHalf x, complexHalf y) {
  const float a = widen<float>(x.re), b = widen<float>(x.im), c = widen<float>(y.re), d = widen<float>(y.im);
  const float re = a * c - b * d;
  const float im = a * d + b * c;
  const auto anyZero = maskOf<std::uint32_t>(a == 0) | maskOf<std::uint32_t>(b == 0) | maskOf<std::uint32_t>(c == 0) |
                       maskOf<std::uint32_t>(d == 0);
  const std::uint32_t doubt = anyZero | doubtOfSum(re, a * c, withSignFlipped(b * d)) | doubtOfSum(im, a * d, b * c);
  return {{narrow(re), narrow(im)}, doubt};
}

// A term of a part: its value, or minus zero where it takes no part, which no sum notices; and the sign of its NaN.
struct lanesTerm {
  float value;
  std::uint16_t nanSign;
};

ZTHALF_INLINE lanesTerm termOf(float product, bool absent, std::uint16_t first, std::uint16_t second) {
  constexpr std::uint32_t minusZero = 0x80000000u;
  const std::uint32_t absentMask = maskOf<std::uint32_t>(absent);
  return {floatOf(select(absentMask, minusZero, bitsOf(product))), signOfNaN(first, second)};
}

// The part that two terms make, the first one's NaN before the second one's. Where both are absent it is plus zero.
ZTHALF_INLINE std::uint16_t partOfTerms(lanesTerm p, lanesTerm q, bool areAbsent) {
  const float sum = nudgedSum<13>(p.value, q.value);
  const auto pNaN = maskOf<std::uint16_t>(p.value != p.value);
  const auto qNaN = maskOf<std::uint16_t>(q.value != q.value);
  const std::uint16_t sign = (p.nanSign & pNaN) | (q.nanSign & qNaN & ~pNaN);
  return static_cast<std::uint16_t>((narrowWithoutNaNSign(sum) | sign) & ~maskOf<std::uint16_t>(areAbsent));
}

// Every case. Of a real factor both products with the other one's parts are taken, whatever it is itself, but a zero
// part of the other one is left out; of two complex factors the products with zero parts are left out. The order of the
// operands, which decides between two NaNs, has the complex factor before the real one.
ZTHALF_INLINE complexHalf productInLanes(complexHalf x, complexHalf y) {
  const float a = widen<float>(x.re), b = widen<float>(x.im), c = widen<float>(y.re), d = widen<float>(y.im);
  const bool noA = pattern::isZero(x.re), noB = pattern::isZero(x.im);
  const bool noC = pattern::isZero(y.re), noD = pattern::isZero(y.im);
  const bool noAC = (noB & noC & (!noD)) | ((!noB) & noA) | ((!noB) & (!noD) & noC);
  const bool noBD = noB | noD;
  const bool noAD = (noB & noD) | ((!noB) & (noD | noA));
  const bool noBC = noB | (noC & (!noD));

  const auto swapped = maskOf<std::uint16_t>(noB);
  const auto firstOf = [&](std::uint16_t left, std::uint16_t right) { return select(swapped, right, left); };
  // Alone in its part, b d is negated after the product; beside a c, d is negated before: so b's NaN keeps its sign
  // then.
  const std::uint16_t bWhenAlone = pattern::signBit & maskOf<std::uint16_t>(noAC);

  const lanesTerm ac = termOf(a * c, noAC, firstOf(x.re, y.re), firstOf(y.re, x.re));
  const lanesTerm bd = termOf(withSignFlipped(b * d), noBD, x.im ^ bWhenAlone, y.im ^ pattern::signBit);
  const lanesTerm ad = termOf(a * d, noAD, firstOf(x.re, y.im), firstOf(y.im, x.re));
  const lanesTerm bc = termOf(b * c, noBC, x.im, y.re);
  return {partOfTerms(ac, bd, noAC & noBD), partOfTerms(ad, bc, noAD & noBC)};
}

}  // namespace zthalf
