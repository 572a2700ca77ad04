// Functors of the six comparisons of real operands.
#pragma once

#include <concepts>
#include <cstdint>
#include <type_traits>

#include "core/bits.h"
#include "core/float_conversion.h"
#include "core/patterns.h"
#include "scalar/half_arithmetic.h"
#include "zthalf/half_t.h"

namespace half::scalar::emulated {

// An element of a logical array: any byte may stand there, and any but zero is true. Reading it as a bool would be
// undefined.
struct logicalElement {
  std::uint8_t byte;
};

// Stands against an imaginary part where the other operand has none. Only eq and ne look at imaginary parts.
struct noImaginaryPart {};

namespace realOps {

// An integer among the halves, as a float. From 2^17 on it lies between the largest finite half and infinity, where no
// half tells one from another, so it is held there first: vector units convert signed integers of 32 bits, and not all
// of them any other.
template <class Integer>
ZTHALF_INLINE float amongHalves(Integer value) {
  if constexpr (sizeof(Integer) < sizeof(std::int32_t)) {
    return static_cast<float>(static_cast<std::int32_t>(value));
  } else {
    constexpr auto limit = Integer{1} << 17;
    Integer held = zthalf::smallerOf(value, limit);
    if constexpr (std::is_signed_v<Integer>) held = zthalf::largerOf(held, static_cast<Integer>(-limit));
    return static_cast<float>(static_cast<std::int32_t>(held));
  }
}

ZTHALF_INLINE float comparable(float part) { return part; }
ZTHALF_INLINE float comparable(logicalElement part) { return static_cast<float>(std::int32_t{part.byte != 0}); }
template <std::integral T>
ZTHALF_INLINE float comparable(T part) {
  return amongHalves(part);
}

// The answer of Test: on the patterns of two halves; otherwise on numbers, in double beside a double and in float
// beside anything else, which both hold every half.
template <class Test>
struct comparisonFtor {
  ZTHALF_INLINE bool operator()(fp16binary_t a, fp16binary_t b) const { return Test::ofHalves(a.bits, b.bits); }
  ZTHALF_INLINE bool operator()(fp16binary_t a, double b) const {
    return Test::ofNumbers(zthalf::widen<double>(a.bits), b);
  }
  template <class B>
  ZTHALF_INLINE bool operator()(fp16binary_t a, B b) const {
    return Test::ofNumbers(zthalf::widen<float>(a.bits), comparable(b));
  }
  ZTHALF_INLINE bool operator()(logicalElement a, fp16binary_t b) const {
    return Test::ofNumbers(comparable(a), zthalf::widen<float>(b.bits));
  }

  ZTHALF_INLINE bool operator()(fp16binary_t imaginary, noImaginaryPart) const {
    return Test::againstZero(zthalf::pattern::isZero(imaginary.bits));
  }
  template <class T>
  ZTHALF_INLINE bool operator()(T imaginary, noImaginaryPart) const {
    return Test::againstZero(imaginary == 0);
  }
};

struct equality {
  ZTHALF_INLINE static bool ofHalves(std::uint16_t a, std::uint16_t b) { return zthalf::isEqual(a, b); }
  template <class Wide>
  ZTHALF_INLINE static bool ofNumbers(Wide a, Wide b) {
    return a == b;
  }
  ZTHALF_INLINE static bool againstZero(bool isZero) { return isZero; }
};

struct inequality {
  ZTHALF_INLINE static bool ofHalves(std::uint16_t a, std::uint16_t b) { return zthalf::isUnequal(a, b); }
  template <class Wide>
  ZTHALF_INLINE static bool ofNumbers(Wide a, Wide b) {
    return a != b;
  }
  ZTHALF_INLINE static bool againstZero(bool isZero) { return !isZero; }
};

struct lessThan {
  ZTHALF_INLINE static bool ofHalves(std::uint16_t a, std::uint16_t b) { return zthalf::isLess(a, b); }
  template <class Wide>
  ZTHALF_INLINE static bool ofNumbers(Wide a, Wide b) {
    return a < b;
  }
};

struct greaterThan {
  ZTHALF_INLINE static bool ofHalves(std::uint16_t a, std::uint16_t b) { return zthalf::isGreater(a, b); }
  template <class Wide>
  ZTHALF_INLINE static bool ofNumbers(Wide a, Wide b) {
    return a > b;
  }
};

struct lessOrEqual {
  ZTHALF_INLINE static bool ofHalves(std::uint16_t a, std::uint16_t b) { return zthalf::isLessOrEqual(a, b); }
  template <class Wide>
  ZTHALF_INLINE static bool ofNumbers(Wide a, Wide b) {
    return a <= b;
  }
};

struct greaterOrEqual {
  ZTHALF_INLINE static bool ofHalves(std::uint16_t a, std::uint16_t b) { return zthalf::isGreaterOrEqual(a, b); }
  template <class Wide>
  ZTHALF_INLINE static bool ofNumbers(Wide a, Wide b) {
    return a >= b;
  }
};

struct eqFtor : comparisonFtor<equality> {};
struct neFtor : comparisonFtor<inequality> {};
struct ltFtor : comparisonFtor<lessThan> {};
struct gtFtor : comparisonFtor<greaterThan> {};
struct leFtor : comparisonFtor<lessOrEqual> {};
struct geFtor : comparisonFtor<greaterOrEqual> {};

}  // namespace realOps

}  // namespace half::scalar::emulated
