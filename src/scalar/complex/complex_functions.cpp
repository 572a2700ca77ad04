// Sign, class, rounding, magnitude and spacing of single complex halves.
#include "scalar/complex/magnitude.h"
#include "scalar/rounding.h"
#include "scalar/sign_and_class.h"
#include "zthalf/half_scalar.h"

namespace half_scalar {

namespace {

using zthalf::bare;
using complexValue = std::complex<half_t>;

// A real function on each part.
template <class Function>
complexValue onParts(complexValue z, Function f) {
  return {half_t{f(z.real().bits)}, half_t{f(z.imag().bits)}};
}

}  // namespace

complexValue uminus(complexValue z) {
  return {half_t{zthalf::negated(z.real().bits)}, half_t{zthalf::negatedUnlessZero(z.imag().bits)}};
}
complexValue conj(complexValue z) { return {z.real(), half_t{zthalf::negatedUnlessZero(z.imag().bits)}}; }

complexValue ceil(complexValue z) { return onParts(z, zthalf::ceilOf); }
complexValue floor(complexValue z) { return onParts(z, zthalf::floorOf); }
complexValue fix(complexValue z) { return onParts(z, zthalf::fixOf); }
complexValue round(complexValue z) { return onParts(z, zthalf::roundOf); }

complexValue sign(complexValue z) { return zthalf::dressed(zthalf::directionOf(bare(z))); }
half_t abs(complexValue z) { return {zthalf::magnitudeOf(bare(z))}; }
half_t eps(complexValue z) { return {zthalf::epsOf(bare(z))}; }

bool isnan(complexValue z) { return isnan(z.real()) || isnan(z.imag()); }
bool isinf(complexValue z) { return isinf(z.real()) || isinf(z.imag()); }
bool isfinite(complexValue z) { return isfinite(z.real()) && isfinite(z.imag()); }

half_t hypot(complexValue x, complexValue y) { return hypot(abs(x), abs(y)); }

}  // namespace half_scalar
