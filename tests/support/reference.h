// What the library's values must be, written once more in another way: conversions step by step with branches,
// arithmetic with the NaN decided before any float operation, order by the numbers. Slow; volatile keeps every
// operation a real, separately rounded one.
#pragma once

#include <bit>
#include <cmath>
#include <cstdint>
#include <limits>
#include <type_traits>

namespace zthalf::reference {

// Conversions between halves and floats or doubles.

inline std::uint16_t narrowed(float x) {
  const auto bits = std::bit_cast<std::uint32_t>(x);
  const std::uint32_t sign = bits >> 16 & 0x8000;
  const std::uint32_t magnitude = bits & 0x7FFFFFFF;
  const std::uint32_t exponent = magnitude >> 23;
  if (magnitude > 0x7F800000) return static_cast<std::uint16_t>(0x7E00 | sign);
  if (magnitude >= 0x477FF000) return static_cast<std::uint16_t>(0x7C00 | sign);  // 65520
  const std::uint32_t k = exponent >= 113 ? exponent - 113 : 0;
  volatile float power = std::bit_cast<float>(0x3F000000 + (k << 23));  // 2^(k-1)
  volatile float sum = std::bit_cast<float>(magnitude) + power;
  const std::uint32_t low = std::bit_cast<std::uint32_t>(float{sum}) & 0xFFF;
  return static_cast<std::uint16_t>(((k << 10) | sign) + low);
}

inline std::uint16_t narrowed(double x) {
  const auto bits = std::bit_cast<std::uint64_t>(x);
  const std::uint64_t sign = bits >> 48 & 0x8000;
  const std::uint64_t magnitude = bits & 0x7FFFFFFFFFFFFFFF;
  const std::uint64_t exponent = magnitude >> 52;
  if (magnitude > 0x7FF0000000000000) return static_cast<std::uint16_t>(0x7E00 | sign);
  if (magnitude >= 0x40EFFE0000000000) return static_cast<std::uint16_t>(0x7C00 | sign);  // 65520
  const std::uint64_t k = exponent >= 1009 ? exponent - 1009 : 0;
  volatile double power = std::bit_cast<double>(0x41B0000000000000 + (k << 52));  // 2^(k+28)
  volatile double sum = std::bit_cast<double>(magnitude) + power;
  const std::uint64_t low = std::bit_cast<std::uint64_t>(double{sum}) & 0xFFF;
  return static_cast<std::uint16_t>(((k << 10) | sign) + low);
}

// The exponent field goes raw into the wide one; one exact multiplication moves the bias and normalises.
inline float widenedToSingle(std::uint16_t h) {
  const std::uint32_t exponent = h >> 10 & 31;
  const std::uint32_t word = (h & 0x8000u) << 16 | exponent << 23 | (h & 0x3FFu) << 13;
  if (exponent == 31) return std::bit_cast<float>(word | 0x7F800000);
  volatile float raw = std::bit_cast<float>(word);
  return raw * 0x1p112f;
}

inline double widenedToDouble(std::uint16_t h) {
  const std::uint64_t exponent = h >> 10 & 31;
  const std::uint64_t word = (h & 0x8000ull) << 48 | exponent << 52 | (h & 0x3FFull) << 42;
  if (exponent == 31) return std::bit_cast<double>(word | 0x7FF0000000000000);
  volatile double raw = std::bit_cast<double>(word);
  return raw * 0x1p1008;
}

// Half to integer. The magnitude is cut after the point and the first bit cut off is added, so ties go away from zero.
template <class Integer>
Integer toInteger(std::uint16_t h) {
  using limits = std::numeric_limits<Integer>;
  const bool negative = h >> 15 != 0;
  const int exponent = h >> 10 & 31;
  const int significand = 1024 + (h & 0x3FF);
  if (std::is_unsigned_v<Integer> && negative) return 0;
  if (exponent == 31) {
    if (significand != 1024) return 0;  // a NaN
    return negative ? limits::min() : limits::max();
  }
  if (exponent < 14) return 0;
  const std::int64_t value = exponent >= 25 ? std::int64_t{significand} << (exponent - 25)
                                            : (significand >> (25 - exponent)) + (significand >> (24 - exponent) & 1);
  if (sizeof(Integer) > 2) return static_cast<Integer>(negative ? -value : value);
  const auto most = static_cast<std::int64_t>(limits::max());
  const auto least = static_cast<std::int64_t>(limits::min());
  const std::int64_t wanted = negative ? -value : value;
  return static_cast<Integer>(wanted > most ? most : wanted < least ? least : wanted);
}

// NaNs.

inline bool isNaN(std::uint16_t h) { return (h & 0x7C00) == 0x7C00 && (h & 0x03FF) != 0; }
inline bool isSignalling(std::uint16_t h) { return isNaN(h) && (h & 0x0200) == 0; }

// The NaN operand that decides the sign, where at least one is a NaN: of two alike the first, else the signalling one.
inline std::uint16_t decidingNaN(std::uint16_t first, std::uint16_t second) {
  if (!isNaN(first)) return second;
  if (!isNaN(second)) return first;
  if (isSignalling(first)) return first;
  if (isSignalling(second)) return second;
  return first;
}

// Arithmetic of halves. operate gets the floats in the order in which first and second are given.
template <class Operate>
std::uint16_t operation(std::uint16_t first, std::uint16_t second, Operate operate) {
  if (isNaN(first) || isNaN(second)) {
    return static_cast<std::uint16_t>(0x7E00 | (decidingNaN(first, second) & 0x8000));
  }
  volatile float x = widenedToSingle(first);
  volatile float y = widenedToSingle(second);
  volatile float result = operate(x, y);
  if (std::isnan(float{result})) return 0x7E00;  // an invalid operation: positive
  return narrowed(float{result});
}

// The right operand is the first one of + and *.
inline std::uint16_t sum(std::uint16_t a, std::uint16_t b) {
  return operation(b, a, [](float first, float second) { return first + second; });
}
inline std::uint16_t difference(std::uint16_t a, std::uint16_t b) {
  return operation(a, b, [](float first, float second) { return first - second; });
}
inline std::uint16_t product(std::uint16_t a, std::uint16_t b) {
  return operation(b, a, [](float first, float second) { return first * second; });
}
inline std::uint16_t quotient(std::uint16_t a, std::uint16_t b) {
  return operation(a, b, [](float first, float second) { return first / second; });
}

}  // namespace zthalf::reference
