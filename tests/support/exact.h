// Halves in exact integer arithmetic: no floating-point unit, no bit tricks on patterns. Slow, and plainly right.
#pragma once

#include <cstdint>
#include <cstdlib>

namespace zthalf::exact {

using wideInteger = unsigned __int128;

inline bool isNaN(std::uint16_t h) { return (h & 0x7C00) == 0x7C00 && (h & 0x03FF) != 0; }
inline bool isFinite(std::uint16_t h) { return (h & 0x7C00) != 0x7C00; }
inline bool isNegative(std::uint16_t h) { return (h & 0x8000) != 0; }

// Every finite half is a whole multiple of 2^-24, below 2^40 of them.
inline constexpr int unitExponent = -24;
inline constexpr std::int64_t unitsInOne = std::int64_t{1} << 24;

// An infinity gives the 65536 that would follow the largest finite half, signed; a NaN must not come here.
inline std::int64_t unitsOf(std::uint16_t h) {
  const int exponent = h >> 10 & 31;
  const std::int64_t fraction = h & 0x3FF;
  const std::int64_t magnitude = exponent == 0 ? fraction : (fraction + 1024) << (exponent - 1);
  return isNegative(h) ? -magnitude : magnitude;
}

// The half nearest to count * 2^exponent, ties to even, as a pattern without sign. With more set the value is greater
// than that by less than one unit of count.
inline std::uint16_t nearestHalf(wideInteger count, int exponent, bool more = false) {
  if (count == 0) return 0x0000;
  int width = 0;
  while (width < 128 && count >> width != 0) ++width;
  // The last place of the result, and how many bits of the count lie below it.
  const int last = width + exponent - 11 > unitExponent ? width + exponent - 11 : unitExponent;
  const int below = last - exponent;
  wideInteger kept = 0;
  if (below <= 0) {
    kept = count << -below;
  } else if (below <= 128) {
    kept = below == 128 ? 0 : count >> below;
    const wideInteger dropped = count - (below == 128 ? 0 : kept << below);
    const wideInteger half = wideInteger{1} << (below - 1);
    const bool tie = dropped == half && !more;
    if (tie ? (kept & 1) != 0 : dropped >= half) ++kept;
  }
  const int step = last - unitExponent;  // the binade, counted from the subnormals
  if (step > 30) return 0x7C00;
  const auto pattern = static_cast<std::uint32_t>(step) * 1024 + static_cast<std::uint32_t>(kept);
  return pattern >= 0x7C00 ? 0x7C00 : static_cast<std::uint16_t>(pattern);
}

// A whole number of units that is a half: the conversion back.
inline std::uint16_t patternOf(std::int64_t units) {
  const std::uint16_t magnitude = nearestHalf(static_cast<wideInteger>(std::llabs(units)), unitExponent);
  return static_cast<std::uint16_t>(magnitude | (units < 0 ? 0x8000 : 0));
}

// Sum, difference, product and quotient of finite halves, exact and then rounded once. A float holds 24 bits, two more
// than twice the 11 of a half, so rounding to float first and to half then can never give another result.
// A zero sum is plus zero unless both terms are minus zero; the quotient's divisor must not be zero.

inline std::uint16_t sum(std::uint16_t a, std::uint16_t b) {
  const std::int64_t units = unitsOf(a) + unitsOf(b);
  if (units == 0) return a == 0x8000 && b == 0x8000 ? 0x8000 : 0x0000;
  return patternOf(units);
}

inline std::uint16_t difference(std::uint16_t a, std::uint16_t b) { return sum(a, b ^ 0x8000); }

inline wideInteger magnitudeOf(std::uint16_t h) { return static_cast<wideInteger>(std::llabs(unitsOf(h))); }

inline std::uint16_t product(std::uint16_t a, std::uint16_t b) {
  return static_cast<std::uint16_t>(nearestHalf(magnitudeOf(a) * magnitudeOf(b), 2 * unitExponent) |
                                    ((a ^ b) & 0x8000));
}

inline std::uint16_t quotient(std::uint16_t a, std::uint16_t b) {
  constexpr int extra = 80;  // bits of the quotient below the units: far beyond the last place of any half
  const wideInteger numerator = magnitudeOf(a) << extra;
  const wideInteger whole = numerator / magnitudeOf(b);
  const bool more = whole * magnitudeOf(b) != numerator;
  return static_cast<std::uint16_t>(nearestHalf(whole, -extra, more) | ((a ^ b) & 0x8000));
}

}  // namespace zthalf::exact
