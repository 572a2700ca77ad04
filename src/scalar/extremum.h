// Which of two numbers min and max keep: halves as patterns, and floats and doubles.
//
// One element is held, and a candidate replaces it or does not. A tie never replaces, and the two zeros tie, so of
// equal elements the first one is kept. What max does is what min does with every comparison reversed.
#pragma once

#include <cstdint>

#include "core/bits.h"
#include "core/float_conversion.h"
#include "core/patterns.h"
#include "scalar/mixed_operands.h"

namespace zthalf {

enum class extremum : std::uint8_t { smallest, largest };

// Where a NaN wins, the first one is kept. Where NaNs are omitted, one is held only until the next element comes,
// whatever that is: of nothing but NaNs the last one is kept.
enum class nanRule : std::uint8_t { wins, omitted };

// A kind of extremum as one type.
template <extremum Which, nanRule Rule>
struct extremumKind {
  static constexpr extremum which = Which;
  static constexpr nanRule rule = Rule;
  static constexpr bool nanWins = Rule == nanRule::wins;

  // Whether u stands ahead of v. False where either is a NaN.
  template <class T>
  ZTHALF_INLINE static bool isAhead(T u, T v) {
    return Which == extremum::smallest ? u < v : u > v;
  }
};

using minKind = extremumKind<extremum::smallest, nanRule::wins>;
using maxKind = extremumKind<extremum::largest, nanRule::wins>;
using minOmitNaNKind = extremumKind<extremum::smallest, nanRule::omitted>;
using maxOmitNaNKind = extremumKind<extremum::largest, nanRule::omitted>;

// The places that NaNs have beyond those of all numbers, which lie between -0x7C00 and 0x7C00.
inline constexpr std::int16_t firstPlace = -0x8000;
inline constexpr std::int16_t lastPlace = 0x7FFF;

// A half's place: the one whose place is smaller is kept. The places of numbers are in the order of the numbers, or of
// the negated ones for max; NaNs come first or last.
template <class Kind>
ZTHALF_INLINE std::int16_t placeOf(std::uint16_t x) {
  constexpr std::uint16_t nanPlace = static_cast<std::uint16_t>(Kind::nanWins ? firstPlace : lastPlace);
  const std::uint16_t key = static_cast<std::uint16_t>(
      pattern::orderKey(Kind::which == extremum::smallest ? x : static_cast<std::uint16_t>(x ^ pattern::signBit)));
  return static_cast<std::int16_t>(select(pattern::nanMask(x), nanPlace, key));
}

// An omitted NaN gives way to another one: as a candidate it is one place ahead.
template <class Kind>
ZTHALF_INLINE bool isReplaced(std::uint16_t held, std::uint16_t candidate) {
  const std::int16_t place = placeOf<Kind>(candidate);
  if constexpr (Kind::nanWins) {
    return place < placeOf<Kind>(held);
  } else {
    return smallerOf(place, static_cast<std::int16_t>(lastPlace - 1)) < placeOf<Kind>(held);
  }
}

template <class Kind>
ZTHALF_INLINE bool isReplaced(float held, float candidate) {
  const bool isBehind = Kind::isAhead(candidate, held);
  return Kind::nanWins ? (held == held) & ((candidate != candidate) | isBehind) : (held != held) | isBehind;
}

template <class Kind>
ZTHALF_INLINE bool isReplaced(double held, double candidate) {
  const bool isBehind = Kind::isAhead(candidate, held);
  return Kind::nanWins ? (held == held) & ((candidate != candidate) | isBehind) : (held != held) | isBehind;
}

// An operand as a result: rounded to half. Of a half only a NaN changes, into the quiet NaN of its sign.
template <class T>
ZTHALF_INLINE std::uint16_t asResult(T x) {
  if constexpr (isHalfOperand<T>) {
    return select(pattern::nanMask(x), static_cast<std::uint16_t>(pattern::signOf(x) | pattern::quietNaN), x);
  } else {
    return narrow(x);
  }
}

// The extremum of two operands, the left one held. They are compared in the wider of their types, and the choice is
// made between what they are as halves, which is less work in lanes than choosing between wide ones.
template <class Kind, class Left, class Right>
ZTHALF_INLINE std::uint16_t extremumOf(Left x, Right y) {
  if constexpr (isHalfOperand<Left> && isHalfOperand<Right>) {
    return asResult(select(maskOf<std::uint16_t>(isReplaced<Kind>(x, y)), y, x));
  } else {
    using wide = widestOf<Left, Right>;
    const bool takesRight = isReplaced<Kind>(exactly<wide>(x), exactly<wide>(y));
    return select(maskOf<std::uint16_t>(takesRight), asResult(y), asResult(x));
  }
}

}  // namespace zthalf
