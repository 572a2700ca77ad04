// Sign, class, rounding, magnitude and spacing of single complex halves.
#include "scalar/complex/magnitude.h"
#include "scalar/rounding.h"
#include "scalar/sign_and_class.h"
#include "zthalf/half_scalar.h"

namespace half_scalar {

namespace {

using complexHalf = std::complex<half_t>;

zthalf::complexHalf bare(complexHalf z) { return {z.real().bits, z.imag().bits}; }

// A real function on each part.
template <class Function>
complexHalf onParts(complexHalf z, Function f) {
  return {half_t{f(z.real().bits)}, half_t{f(z.imag().bits)}};
}

}  // namespace

complexHalf uminus(complexHalf z) {
  return {half_t{zthalf::negated(z.real().bits)}, half_t{zthalf::negatedUnlessZero(z.imag().bits)}};
}
complexHalf conj(complexHalf z) { return {z.real(), half_t{zthalf::negatedUnlessZero(z.imag().bits)}}; }

complexHalf ceil(complexHalf z) { return onParts(z, zthalf::ceilOf); }
complexHalf floor(complexHalf z) { return onParts(z, zthalf::floorOf); }
complexHalf fix(complexHalf z) { return onParts(z, zthalf::fixOf); }
complexHalf round(complexHalf z) { return onParts(z, zthalf::roundOf); }

complexHalf sign(complexHalf z) {
  const zthalf::complexHalf direction = zthalf::directionOf(bare(z));
  return {half_t{direction.re}, half_t{direction.im}};
}
half_t abs(complexHalf z) { return {zthalf::magnitudeOf(bare(z))}; }
half_t eps(complexHalf z) { return {zthalf::epsOf(bare(z))}; }

bool isnan(complexHalf z) { return isnan(z.real()) || isnan(z.imag()); }
bool isinf(complexHalf z) { return isinf(z.real()) || isinf(z.imag()); }
bool isfinite(complexHalf z) { return isfinite(z.real()) && isfinite(z.imag()); }

half_t hypot(complexHalf x, complexHalf y) { return hypot(abs(x), abs(y)); }

}  // namespace half_scalar
