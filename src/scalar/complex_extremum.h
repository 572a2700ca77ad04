// Which of two complex numbers min and max keep: the order is by length, then by angle. No comparison of the library
// but these knows it.
#pragma once

#include <cmath>
#include <complex>
#include <limits>

#include "scalar/extremum.h"
#include "scalar/kernels/atan2_double.h"
#include "scalar/kernels/atan2_single.h"
#include "scalar/kernels/hypot_double.h"
#include "scalar/kernels/hypot_single.h"

namespace zthalf {

inline float lengthOf(std::complex<float> z) { return qsl_scalar::hypotSingle(z.real(), z.imag()); }
inline double lengthOf(std::complex<double> z) { return qsl_scalar::hypotDouble(z.real(), z.imag()); }

inline float angleOf(std::complex<float> z) { return qsl_scalar::atan2Single(z.imag(), z.real()); }
inline double angleOf(std::complex<double> z) { return qsl_scalar::atan2Double(z.imag(), z.real()); }

// For numbers of the same length and angle, which rounding made the same. Along one ray the parts order the numbers;
// which way round depends on the half plane, and for the imaginary parts on the quadrant, for min and max alike.
template <class Kind, class T>
bool isReplacedOnOneRay(std::complex<T> held, std::complex<T> candidate, T angle) {
  const bool isUpper = angle >= 0;
  if (held.real() != candidate.real()) {
    return isUpper ? Kind::isAhead(held.real(), candidate.real()) : Kind::isAhead(candidate.real(), held.real());
  }
  return held.real() < 0 ? Kind::isAhead(held.imag(), candidate.imag()) : Kind::isAhead(candidate.imag(), held.imag());
}

// For numbers of one length. Where the lengths have overflowed, those of the halved numbers decide.
template <class Kind, class T>
bool isReplacedAtOneLength(std::complex<T> held, std::complex<T> candidate, T length) {
  if (length == std::numeric_limits<T>::infinity()) {
    const T half = T(0.5);
    const T ofHeld = lengthOf(std::complex<T>(held.real() * half, held.imag() * half));
    const T ofCandidate = lengthOf(std::complex<T>(candidate.real() * half, candidate.imag() * half));
    if (ofHeld != ofCandidate) return Kind::isAhead(ofCandidate, ofHeld);
  }
  const T angle = angleOf(held);
  const T ofCandidate = angleOf(candidate);
  if (angle != ofCandidate) return Kind::isAhead(ofCandidate, angle);
  return isReplacedOnOneRay<Kind>(held, candidate, angle);
}

// The same with the lengths at hand. A number counts as a NaN when its length is one: an infinity beside a NaN does.
// Unlike a real one, an omitted NaN does not give way to another.
template <class Kind, class T>
bool isReplaced(std::complex<T> held, T length, std::complex<T> candidate, T lengthOfCandidate) {
  if (held.real() == candidate.real() && held.imag() == candidate.imag()) return false;
  const bool isNaN = length != length;
  const bool candidateIsNaN = lengthOfCandidate != lengthOfCandidate;
  if (Kind::nanWins ? isNaN : candidateIsNaN) return false;
  if (Kind::nanWins ? candidateIsNaN : isNaN) return true;
  if (length != lengthOfCandidate) return Kind::isAhead(lengthOfCandidate, length);
  return isReplacedAtOneLength<Kind>(held, candidate, length);
}

template <class Kind>
bool isReplaced(std::complex<double> held, std::complex<double> candidate) {
  return isReplaced<Kind>(held, lengthOf(held), candidate, lengthOf(candidate));
}

// Squares of lengths are apart where no rounding, of them by 2^-24 of themselves at most and of the lengths by 2^-23,
// can have turned them round: then they are in the order of the lengths, unless these are subnormal and rounded by more
// than that. Two of them that overflowed are not apart, and nothing is apart from a NaN.
template <class Square>
ZTHALF_INLINE bool areApart(Square smaller, Square larger) {
  return smaller < larger * (1 - Square(0x1p-16));
}

// In double nothing is lost of the squares of floats. They alone decide between most numbers.
template <class Kind>
ZTHALF_INLINE bool isReplaced(std::complex<float> held, std::complex<float> candidate) {
  const auto squaredLengthOf = [](std::complex<float> z) {
    const double re = z.real(), im = z.imag();
    return re * re + im * im;
  };
  const double square = squaredLengthOf(held);
  const double squareOfCandidate = squaredLengthOf(candidate);
  if (square + squareOfCandidate > 0x1p-200) {  // the longer one is far above the subnormals
    if (areApart(square, squareOfCandidate)) return Kind::which == extremum::largest;
    if (areApart(squareOfCandidate, square)) return Kind::which == extremum::smallest;
  }
  return isReplaced<Kind>(held, lengthOf(held), candidate, lengthOf(candidate));
}

}  // namespace zthalf
