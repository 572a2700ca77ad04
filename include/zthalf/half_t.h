// The value type: an IEEE 754 binary16 pattern with its arithmetic and its order.
#pragma once

#include <complex>
#include <cstdint>

#include "zthalf/detail/export.h"

/// A half-precision number: sign in bit 15, biased exponent (bias 15) in bits 14 to 10, fraction in bits 9 to 0.
///
/// The pattern is the value. 2 bytes, trivially copyable, an array of half_t is an array of patterns with no gaps.
/// `half_t{0x3C00}` is 1.0; conversions from numbers are in half_scalar.h and half_vector.h.
///
/// Arithmetic widens both operands to float (exact), performs one float operation in round-to-nearest-even with
/// subnormals kept, and rounds the float to half. For `+`, `-` and `/` that is two roundings on purpose: the result
/// may differ in the last place from a single correct rounding. Overflow gives an infinity, nothing is reported.
///
/// NaN results are 0x7E00 with the sign told here. An invalid operation (infinity minus infinity, 0 times infinity,
/// 0/0, infinity/infinity) gives the positive NaN 0x7E00. With one NaN operand the result has that NaN's sign. With
/// two, a signalling one (bit 9 clear) wins over a quiet one; otherwise the right operand of `+` and `*`, the left
/// operand of `-` and `/` gives the sign.
///
/// Comparisons are those of IEEE 754: both zeros are equal, and with a NaN every one of them is false but `!=`.
/// No operation has a failure path, reads or changes the floating-point environment, or throws.
struct ZTHALF_API half_t {
  std::uint16_t bits;  ///< the binary16 pattern

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
};

static_assert(sizeof(half_t) == 2 && alignof(half_t) == 2);
static_assert(sizeof(fp16binary_t) == 2 && alignof(fp16binary_t) == 2);

/// Complex halves: two adjacent patterns, real part first.
///
/// Each part of a result is rounded to half. A sum or difference is that of half_t on each part. Products and quotients
/// take no part in which an operand is zero, of either sign: a real or imaginary operand gives no spurious NaN beside
/// an infinity, and a part that nothing contributes to is +0. Otherwise
///   product:   each part as if it were computed exactly and rounded once;
///   quotient:  (x conj y) / |y|^2 step by step in float, by Smith's method where |y|^2 is infinite, by halves where
///   the
///              divisor's parts have one magnitude. Divided by zero, a part of zero gives +0 beside a part that is not.
/// NaN: 0x7E00 with the sign of the part that it comes from, positive where an operation is invalid; with two NaNs a
/// signalling one goes before a quiet one, then the one whose product or operand is written first above.
///
/// - changes the sign of both parts, but the imaginary part of a result is never -0.
/// == holds where both parts are equal, != where one differs. The four orderings look at the real parts alone.
ZTHALF_API std::complex<half_t> operator+(std::complex<half_t> x, std::complex<half_t> y);
ZTHALF_API std::complex<half_t> operator-(std::complex<half_t> x, std::complex<half_t> y);
ZTHALF_API std::complex<half_t> operator*(std::complex<half_t> x, std::complex<half_t> y);
ZTHALF_API std::complex<half_t> operator/(std::complex<half_t> x, std::complex<half_t> y);
ZTHALF_API std::complex<half_t> operator-(std::complex<half_t> z);

ZTHALF_API bool operator==(std::complex<half_t> x, std::complex<half_t> y);
ZTHALF_API bool operator!=(std::complex<half_t> x, std::complex<half_t> y);
ZTHALF_API bool operator>(std::complex<half_t> x, std::complex<half_t> y);
ZTHALF_API bool operator>=(std::complex<half_t> x, std::complex<half_t> y);
ZTHALF_API bool operator<(std::complex<half_t> x, std::complex<half_t> y);
ZTHALF_API bool operator<=(std::complex<half_t> x, std::complex<half_t> y);

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
