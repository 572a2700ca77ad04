// Arithmetic and order of halves, on patterns.
#pragma once

#include <cstdint>

#include "core/float_conversion.h"
#include "core/nan_policy.h"
#include "core/patterns.h"

namespace zthalf {

// One float operation between two exact widenings and one rounding. The product of two halves is exact in float; a sum
// or a quotient is rounded to float first and then to half, and that double rounding is the result: do not widen it.
// settled() gets the operands in the order of the defining unit: the right one first for + and *, the left one first
// for - and /.

ZTHALF_INLINE std::uint16_t sumOf(std::uint16_t a, std::uint16_t b) {
  return settled(widen<float>(b) + widen<float>(a), b, a);
}

ZTHALF_INLINE std::uint16_t differenceOf(std::uint16_t a, std::uint16_t b) {
  return settled(widen<float>(a) - widen<float>(b), a, b);
}

ZTHALF_INLINE std::uint16_t productOf(std::uint16_t a, std::uint16_t b) {
  return settled(widen<float>(b) * widen<float>(a), b, a);
}

ZTHALF_INLINE std::uint16_t quotientOf(std::uint16_t a, std::uint16_t b) {
  return settled(widen<float>(a) / widen<float>(b), a, b);
}

// The order of halves, without widening. Every test with a NaN is false but isUnequal. All of it is work on lanes of 16
// bits, without a branch.

ZTHALF_INLINE bool areNumbers(std::uint16_t a, std::uint16_t b) {
  const auto ofA = static_cast<std::int16_t>(pattern::magnitudeOf(a));
  const auto ofB = static_cast<std::int16_t>(pattern::magnitudeOf(b));
  return largerOf(ofA, ofB) <= std::int16_t{pattern::infinity};
}

ZTHALF_INLINE bool isEqual(std::uint16_t a, std::uint16_t b) {
  const bool numbers = areNumbers(a, b);
  return (pattern::orderKey(a) == pattern::orderKey(b)) & numbers;
}

ZTHALF_INLINE bool isUnequal(std::uint16_t a, std::uint16_t b) { return !isEqual(a, b); }

ZTHALF_INLINE bool isLess(std::uint16_t a, std::uint16_t b) {
  const bool numbers = areNumbers(a, b);
  return (pattern::orderKey(a) < pattern::orderKey(b)) & numbers;
}

ZTHALF_INLINE bool isGreater(std::uint16_t a, std::uint16_t b) { return isLess(b, a); }

ZTHALF_INLINE bool isLessOrEqual(std::uint16_t a, std::uint16_t b) {
  const bool numbers = areNumbers(a, b);
  return (pattern::orderKey(a) <= pattern::orderKey(b)) & numbers;
}

ZTHALF_INLINE bool isGreaterOrEqual(std::uint16_t a, std::uint16_t b) { return isLessOrEqual(b, a); }

}  // namespace zthalf
