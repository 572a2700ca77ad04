// What each unary operation does to one element: the expected value of the tests that are read from the entry list.
//
// rule::<facade name> of an element. A name that is not here is looked up in half_scalar, so a row whose operation
// has a scalar function of the same name needs nothing; any other row does not compile before it has its rule here.
#pragma once

#include <complex>
#include <cstdint>
#include <type_traits>

#include "tests/support/drawn_values.h"
#include "zthalf/half_scalar.h"
#include "zthalf/half_t.h"

namespace zthalf::testing::rule {

using namespace half_scalar;
using half_scalar::isfinite;
using half_scalar::isinf;
using half_scalar::isnan;

using complexHalf = std::complex<half_t>;

inline half_t convertToHalf(float x) { return {impl::convertSingleToHalf(x)}; }
inline half_t convertToHalf(double x) { return {impl::convertDoubleToHalf(x)}; }
inline half_t convertToHalf(unsigned char x) { return {impl::convertUint8ToHalf(x)}; }
inline half_t convertToHalf(signed char x) { return {impl::convertInt8ToHalf(x)}; }
inline half_t convertToHalf(unsigned short x) { return {impl::convertUint16ToHalf(x)}; }
inline half_t convertToHalf(short x) { return {impl::convertInt16ToHalf(x)}; }
inline half_t convertToHalf(unsigned int x) { return {impl::convertUint32ToHalf(x)}; }
inline half_t convertToHalf(int x) { return {impl::convertInt32ToHalf(x)}; }
inline half_t convertToHalf(unsigned long long x) { return {impl::convertUint64ToHalf(x)}; }
inline half_t convertToHalf(long long x) { return {impl::convertInt64ToHalf(x)}; }
inline half_t convertToHalf(logicalByte x) { return {impl::convertLogicalToHalf(x.byte != 0)}; }

// A half on its way to the type that the row names.
struct halfToBeConverted {
  half_t x;

  operator float() const { return impl::convertHalfToSingle(x.bits); }
  operator double() const { return impl::convertHalfToDouble(x.bits); }
  operator unsigned char() const { return impl::convertHalfToUint8(x.bits); }
  operator signed char() const { return impl::convertHalfToInt8(x.bits); }
  operator unsigned short() const { return impl::convertHalfToUint16(x.bits); }
  operator short() const { return impl::convertHalfToInt16(x.bits); }
  operator unsigned int() const { return impl::convertHalfToUint32(x.bits); }
  operator int() const { return impl::convertHalfToInt32(x.bits); }
  operator unsigned long long() const { return impl::convertHalfToUint64(x.bits); }
  operator long long() const { return impl::convertHalfToInt64(x.bits); }
  operator bool() const { return impl::convertHalfToLogical(x.bits); }
};

inline halfToBeConverted convertFromHalf(half_t x) { return {x}; }

inline half_t uminus(half_t x) { return -x; }

// The imaginary part of a negated or conjugated value is never minus zero.
inline half_t negatedImaginaryPart(half_t x) {
  return x.bits == 0x0000 || x.bits == 0x8000 ? half_t{0} : half_t{static_cast<std::uint16_t>(x.bits ^ 0x8000)};
}
inline complexHalf uminus(complexHalf z) { return {uminus(z.real()), negatedImaginaryPart(z.imag())}; }
inline complexHalf conj(complexHalf z) { return {z.real(), negatedImaginaryPart(z.imag())}; }
inline half_t real(complexHalf z) { return z.real(); }
inline half_t imag(complexHalf z) { return z.imag(); }
inline complexHalf realToComplex(complexHalf z) { return z; }

// A half whose result is complex goes to the rule as a complex half with an imaginary part of +0.
template <class Out, class In>
auto operandFor(In x) {
  if constexpr (std::is_same_v<In, half_t> && std::is_same_v<Out, complexHalf>) {
    return complexHalf{x, half_t{0}};
  } else {
    return x;
  }
}

// Holds a rule to the output type of its row: std::complex would take a real result silently.
template <class Out, class Result>
Out exactly(Result result) {
  static_assert(std::is_same_v<Out, Result> || std::is_same_v<Result, halfToBeConverted>,
                "this row needs a rule of its own");
  return result;
}

}  // namespace zthalf::testing::rule
