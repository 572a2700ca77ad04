// The value type: an IEEE 754 binary16 pattern with its arithmetic and its order.
#pragma once

#include <complex>
#include <cstdint>
#include <initializer_list>
#include <type_traits>

#include "zthalf/detail/export.h"
#include "zthalf/detail/one_pattern.h"

/// A half-precision number: sign in bit 15, biased exponent (bias 15) in bits 14 to 10, fraction in bits 9 to 0.
///
/// The pattern is the value. 2 bytes, trivially copyable, an array of half_t is an array of patterns with no gaps.
/// `half_t{0x3C00}` is 1.0; conversions from numbers are in half_scalar.h and half_vector.h.
///
/// No number becomes a half by itself, or is taken for a pattern: braces hold the pattern, and there is no construction
/// in parentheses, no cast and no implicit conversion. `half_t(1.5f)`, `half_t{1.5f}`, `static_cast<half_t>(x)` and a
/// vector of halves made from a range of numbers do not compile.
///
/// Arithmetic widens both operands to float (exact), performs one float operation in round-to-nearest-even with
/// subnormals kept, and rounds the float to half. For `+`, `-` and `/` that is two roundings, but a float is wide
/// enough for the result to be that of a single one: it is the half nearest to the exact sum, difference or quotient.
/// Overflow gives an infinity, nothing is reported.
///
/// NaN results are 0x7E00 with the sign stated here. An invalid operation (infinity minus infinity, 0 times infinity,
/// 0/0, infinity/infinity) gives the positive NaN 0x7E00. With one NaN operand the result has that NaN's sign. With
/// two, a signalling one (bit 9 clear) wins over a quiet one; otherwise the right operand of `+` and `*`, the left
/// operand of `-` and `/` gives the sign.
///
/// Comparisons are those of IEEE 754: both zeros are equal, and with a NaN every one of them is false but `!=`.
/// No operation has a failure path, reads or changes the floating-point environment, or throws.
struct ZTHALF_API half_t {
  std::uint16_t bits;  ///< the binary16 pattern

  /// Without braces the pattern is left as it is in memory; `half_t{}` is +0.
  half_t() = default;
  /// `half_t{0x3C00}`, or `{0x3C00}` where a half_t is expected: exactly one pattern. Of two a constant expression does
  /// not compile, nor does optimised code that shows them; otherwise the program stops there.
  [[gnu::always_inline]] constexpr half_t(std::initializer_list<std::uint16_t> pattern) noexcept
      : bits(zthalf::onlyPatternOf(pattern)) {}
  /// Floats, doubles and truth values are no patterns, whatever their value.
  template <class T, zthalf::enable_if_no_pattern<T> = 0>
  half_t(std::initializer_list<T>) = delete;

  /// The same pattern, NaN included.
  half_t operator+() const;
  /// The pattern with its sign bit flipped, NaN and zeros included.
  half_t operator-() const;

  half_t operator+(half_t other) const;
  half_t operator-(half_t other) const;
  half_t operator*(half_t other) const;
  half_t operator/(half_t other) const;
  half_t& operator+=(half_t other);
  half_t& operator-=(half_t other);
  half_t& operator*=(half_t other);
  half_t& operator/=(half_t other);

  /// Adds 1.0. From 2048 on the sum may round back to the old value. A NaN becomes quiet and keeps its sign.
  half_t& operator++();
  /// Adds 1.0 to the object and returns its old pattern, unchanged even if it was a signalling NaN.
  half_t operator++(int);
  /// Adds -1.0, with the same remarks as `++`.
  half_t& operator--();
  half_t operator--(int);

  bool operator==(half_t other) const;
  bool operator!=(half_t other) const;
  bool operator>(half_t other) const;
  bool operator>=(half_t other) const;
  bool operator<(half_t other) const;
  bool operator<=(half_t other) const;
};

/// The same storage under the name that the operation templates of half_ops.h use for an element.
/// A `half_t*` may be passed as a `fp16binary_t*` unchanged; the type has no operations of its own.
struct ZTHALF_API fp16binary_t {
  std::uint16_t bits;  ///< the binary16 pattern

  /// As in half_t.
  fp16binary_t() = default;
  [[gnu::always_inline]] constexpr fp16binary_t(std::initializer_list<std::uint16_t> pattern) noexcept
      : bits(zthalf::onlyPatternOf(pattern)) {}
  template <class T, zthalf::enable_if_no_pattern<T> = 0>
  fp16binary_t(std::initializer_list<T>) = delete;
};

static_assert(sizeof(half_t) == 2 && alignof(half_t) == 2);
static_assert(sizeof(fp16binary_t) == 2 && alignof(fp16binary_t) == 2);

namespace half {

/// The real type that belongs to an element type: what `abs` and `eps` of a real or complex array give.
template <class T>
struct realType;

template <>
struct realType<fp16binary_t> {
  using type = fp16binary_t;
};

template <>
struct realType<std::complex<fp16binary_t>> {
  using type = fp16binary_t;
};

}  // namespace half

// What the standard library's own templates would otherwise make of a half: limits of zero, and other complex products.
#include "zthalf/complex_half.h"
#include "zthalf/half_limits.h"
