// mod and rem of halves told twice more: by long division of the significands, one bit at a time, and by whole numbers
// of 2^-24. Neither uses floating point.
#pragma once

#include <bit>
#include <cstdint>

#include "tests/support/exact.h"

namespace zthalf::reference {

enum class remainderKind { rem, mod };

inline std::uint16_t signOf(std::uint16_t h) { return h & 0x8000; }
inline std::uint16_t magnitudeOf(std::uint16_t h) { return h & 0x7FFF; }
inline bool isInfinite(std::uint16_t h) { return magnitudeOf(h) == 0x7C00; }

// The results that need no division: those of NaNs, infinities and zeros. Returns whether there is one.
inline bool specialRemainder(remainderKind kind, std::uint16_t x, std::uint16_t y, std::uint16_t& result) {
  const bool isRem = kind == remainderKind::rem;
  const bool signsAgree = signOf(x) == signOf(y);
  if (exact::isNaN(x)) {
    result = x;
  } else if (isRem && exact::isNaN(y)) {
    result = signOf(x) | 0x7C00 | (y & 0x3FF);
  } else if (isRem && (isInfinite(x) || magnitudeOf(y) == 0)) {
    result = signOf(x) | 0x7E00;
  } else if (isRem && (isInfinite(y) || magnitudeOf(x) == 0)) {
    result = x;
  } else if (!isRem && magnitudeOf(y) == 0) {
    result = magnitudeOf(x) == 0 ? signOf(y) : x;
  } else if (!isRem && exact::isNaN(y)) {
    result = y;
  } else if (!isRem && isInfinite(x)) {
    result = signOf(y) | 0x7E00;
  } else if (!isRem && magnitudeOf(x) == 0) {
    result = signOf(y);
  } else if (!isRem && isInfinite(y)) {
    result = signsAgree ? x : y;
  } else {
    return false;
  }
  return true;
}

// A finite half that is not zero as m * 2^(e - 25), m with 11 bits.
struct normalized {
  int significand;
  int exponent;
};

inline normalized normalizedOf(std::uint16_t h) {
  const int field = h >> 10 & 31;
  if (field != 0) return {(h & 0x3FF) | 0x400, field};
  normalized v{h & 0x3FF, 1};
  while ((v.significand & 0x400) == 0) {
    v.significand *= 2;
    --v.exponent;
  }
  return v;
}

// r * 2^(e - 25), which is a half.
inline std::uint16_t assembled(int r, int exponent) {
  if (r == 0) return 0;
  while (r < 0x400 && exponent > 1) {
    r *= 2;
    --exponent;
  }
  while (exponent < 1) {
    r /= 2;
    ++exponent;
  }
  return static_cast<std::uint16_t>(r < 0x400 ? r : (exponent << 10) + (r - 0x400));
}

// |y| - |x| for |x| < |y|, rounded to nearest with ties to even: the significands aligned at y with two guard bits, and
// a sticky bit for what of x falls below them.
inline std::uint16_t shortfall(normalized x, normalized y) {
  const int distance = y.exponent - x.exponent;
  const std::int64_t guarded = x.significand * std::int64_t{4};
  const std::int64_t aligned = guarded >> distance;
  const bool sticky = aligned << distance != guarded;
  const std::int64_t difference = y.significand * std::int64_t{4} - aligned - (sticky ? 1 : 0);
  return exact::nearestHalf(static_cast<exact::wideInteger>(difference), y.exponent - 27, sticky);
}

inline std::uint16_t byLongDivision(remainderKind kind, std::uint16_t x, std::uint16_t y) {
  std::uint16_t result = 0;
  if (specialRemainder(kind, x, y, result)) return result;
  const bool isRem = kind == remainderKind::rem;
  const std::uint16_t sign = signOf(isRem ? x : y);
  const bool signsDiffer = signOf(x) != signOf(y);
  const normalized a = normalizedOf(x);
  const normalized b = normalizedOf(y);
  const int d = a.exponent - b.exponent;
  if (d < 0 && isRem) return x;
  if (d < 0) return signsDiffer ? static_cast<std::uint16_t>(shortfall(a, b) | sign) : x;
  if (a.significand == b.significand) return sign;

  int trailingZeros = 0;
  while ((b.significand >> trailingZeros & 1) == 0) ++trailingZeros;
  const bool isIntegerDivisor = b.exponent - (10 - trailingZeros) > 14;
  const int k = b.significand < a.significand ? 11 : 12;
  if (!isIntegerDivisor && d >= k + 1) return sign;

  int r = a.significand >= b.significand ? a.significand - b.significand : a.significand;
  for (int step = 0; step < d; ++step) {
    r *= 2;
    if (r >= b.significand) r -= b.significand;
  }
  if (!isIntegerDivisor) {
    const int distance = 2 * r > b.significand ? b.significand - r : r;
    if (distance << (k - d) <= b.significand) r = 0;
  }
  if (r == 0) return sign;
  if (!isRem && signsDiffer) r = b.significand - r;
  return static_cast<std::uint16_t>(assembled(r, b.exponent) | sign);
}

// A whole number of units, rounded to a half: to nearest, ties to even.
inline std::uint16_t halfOfUnits(std::uint64_t units) {
  const int below = units < 2048 ? 0 : static_cast<int>(std::bit_width(units)) - 11;  // bits that do not fit
  std::uint64_t kept = units >> below;
  const std::uint64_t dropped = (units - (kept << below)) * 2;
  const std::uint64_t unit = std::uint64_t{1} << below;
  if (dropped > unit || (dropped == unit && (kept & 1) != 0)) ++kept;
  return static_cast<std::uint16_t>(1024 * static_cast<std::uint64_t>(below) + kept);
}

// With X and Y the magnitudes in units: the remainder is X mod Y. Where Y is no multiple of one, it is zero unless its
// distance to the nearest multiple of Y is above Y * 2^(E - 11), for a quotient X / Y in [2^E, 2^(E+1)).
inline std::uint16_t inUnits(remainderKind kind, std::uint16_t x, std::uint16_t y) {
  std::uint16_t result = 0;
  if (specialRemainder(kind, x, y, result)) return result;
  const bool isRem = kind == remainderKind::rem;
  const auto wholeX = static_cast<std::uint64_t>(exact::unitsOf(magnitudeOf(x)));
  const auto wholeY = static_cast<std::uint64_t>(exact::unitsOf(magnitudeOf(y)));
  std::uint64_t r = wholeX % wholeY;
  if (wholeX >= wholeY && wholeY % exact::unitsInOne != 0) {
    const auto places = static_cast<int>(std::bit_width(wholeX)) - static_cast<int>(std::bit_width(wholeY));
    const int e = wholeY << places > wholeX ? places - 1 : places;
    const std::uint64_t distance = r < wholeY - r ? r : wholeY - r;
    if (e >= 11 || distance << (11 - e) <= wholeY) r = 0;
  }
  if (!isRem && r != 0 && signOf(x) != signOf(y)) r = wholeY - r;
  return halfOfUnits(r) | signOf(isRem ? x : y);
}

}  // namespace zthalf::reference
