// Complex halves: the class and its operators. half_t.h includes this file.
#pragma once

#include <complex>

#include "zthalf/detail/entry_shapes.h"
#include "zthalf/detail/export.h"
#include "zthalf/half_t.h"

template <>
class std::complex<half_t>;

/// Complex halves: two adjacent patterns, real part first.
///
/// Each part of a result is rounded to half. A sum or difference is that of half_t on each part. Products and quotients
/// take no part in which an operand is zero, of either sign: a real or imaginary operand gives no spurious NaN beside
/// an infinity, and a part that nothing contributes to is +0. Otherwise
///   product:   each part as if it were computed exactly and rounded once;
///   quotient:  (x conj y) / |y|^2 step by step in float, by Smith's method where |y|^2 is infinite; where the
///              divisor's parts have equal magnitude, both parts of x are halved first. Divided by zero, a part of zero
///              gives +0 beside a part that is not.
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

// What the operators with one real operand run, on single elements. Their documentation is in half_ops.h.
namespace half {

template <class Left, class Right, class Out>
ZTHALF_API void plus(Left*, Right*, Out*, unsigned long, unsigned long, unsigned long const*, unsigned long,
                     unsigned long, unsigned long const*, unsigned long, unsigned long, unsigned long const*);
template <class Left, class Right, class Out>
ZTHALF_API void minus(Left*, Right*, Out*, unsigned long, unsigned long, unsigned long const*, unsigned long,
                      unsigned long, unsigned long const*, unsigned long, unsigned long, unsigned long const*);
template <class Left, class Right, class Out>
ZTHALF_API void times(Left*, Right*, Out*, unsigned long, unsigned long, unsigned long const*, unsigned long,
                      unsigned long, unsigned long const*, unsigned long, unsigned long, unsigned long const*);
template <class Left, class Right, class Out>
ZTHALF_API void rdivide(Left*, Right*, Out*, unsigned long, unsigned long, unsigned long const*, unsigned long,
                        unsigned long, unsigned long const*, unsigned long, unsigned long, unsigned long const*);

}  // namespace half

/// A complex half with the interface of the standard class. `z *= w` is `z = z * w`, and so on: every operator runs the
/// library's own arithmetic, whatever the standard library at hand does for other types.
///
/// 4 bytes at an alignment of 2, trivially copyable, passed in a register as the general template is; an array of n of
/// them is an array of 2 n halves. `std::complex<half_t>{{0x3C00}, {0x4000}}` is 1 + 2i.
///
/// With one real operand the result is that of the array operation of half_vector.h on that pair of types, and may
/// differ from the result with a complex operand whose imaginary part is +0:
///   sums:        +0 is added to the imaginary part;
///   differences: z - x keeps the imaginary part bit for bit, x - z takes it from +0;
///   products:    zero parts of z are not multiplied; of two NaNs the one in z goes before a real one;
///   quotients:   z / x divides zero parts too; but by a zero x, a zero imaginary part gives +0, and so does a zero
///                real part beside an imaginary part that is not zero. x over an imaginary z has a real part of zero
///                with the sign of the divisor.
/// Conversions from other complex numbers, and operators with other numbers, do not compile.
template <>
class std::complex<half_t> {
 public:
  using value_type = half_t;

  constexpr complex(half_t re = half_t{}, half_t im = half_t{}) noexcept : parts_{re, im} {}

  constexpr half_t real() const noexcept { return parts_[0]; }
  constexpr half_t imag() const noexcept { return parts_[1]; }
  constexpr void real(half_t re) noexcept { parts_[0] = re; }
  constexpr void imag(half_t im) noexcept { parts_[1] = im; }

  complex& operator+=(complex z) { return *this = *this + z; }
  complex& operator-=(complex z) { return *this = *this - z; }
  complex& operator*=(complex z) { return *this = *this * z; }
  complex& operator/=(complex z) { return *this = *this / z; }
  complex& operator+=(half_t x) { return *this = *this + x; }
  complex& operator-=(half_t x) { return *this = *this - x; }
  complex& operator*=(half_t x) { return *this = *this * x; }
  complex& operator/=(half_t x) { return *this = *this / x; }

  // Friends, so that they are looked for beside a complex half only: the standard templates do not come before them,
  // and what converts to half_t does not end here unasked.
  friend complex operator+(complex z, half_t x) { return ofPair<Complex, Real>(half::plus, z, x); }
  friend complex operator+(half_t x, complex z) { return ofPair<Real, Complex>(half::plus, x, z); }
  friend complex operator-(complex z, half_t x) { return ofPair<Complex, Real>(half::minus, z, x); }
  friend complex operator-(half_t x, complex z) { return ofPair<Real, Complex>(half::minus, x, z); }
  friend complex operator*(complex z, half_t x) { return ofPair<Complex, Real>(half::times, z, x); }
  friend complex operator*(half_t x, complex z) { return ofPair<Real, Complex>(half::times, x, z); }
  friend complex operator/(complex z, half_t x) { return ofPair<Complex, Real>(half::rdivide, z, x); }
  friend complex operator/(half_t x, complex z) { return ofPair<Real, Complex>(half::rdivide, x, z); }

 private:
  // The same storage under the names that the operations use.
  using Real = fp16binary_t;
  using Complex = complex<fp16binary_t>;

  // One source for the bits: the array operation, with one element on each side.
  template <class Left, class Right, class X, class Y>
  static complex ofPair(half_ptr::binary_entry<Left, Right, Complex> operation, X x, Y y) {
    static_assert(sizeof(X) == sizeof(Left) && sizeof(Y) == sizeof(Right));
    complex result;
    constexpr unsigned long one[] = {1};
    operation(reinterpret_cast<Left*>(&x), reinterpret_cast<Right*>(&y), reinterpret_cast<Complex*>(&result),  //
              1, 1, one, 1, 1, one, 1, 1, one);
    return result;
  }

  half_t parts_[2];
};

static_assert(sizeof(std::complex<half_t>) == 4 && alignof(std::complex<half_t>) == 2);

#include "zthalf/detail/complex_half_functions.h"
