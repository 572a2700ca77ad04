// The complex product of matrix products, on the unit that defines the results: four products, a difference and a sum,
// and where both parts come out as NaNs, infinities restored as the C standard's Annex G has it.
//
// Neither the operator of complex halves nor the accumulators of `prod` multiply in this way.
#pragma once

#include <complex>

#include "core/float_unit.h"

namespace zthalf::linalg {

template <class Base>
ZTHALF_INLINE bool isInfinite(Base x) {
  return withoutSign(x) == std::numeric_limits<Base>::infinity();
}

template <class Base>
ZTHALF_INLINE Base withSignOf(Base magnitude, Base x) {
  return valueOf(bitsOf(withoutSign(magnitude)) | (bitsOf(x) ^ bitsOf(withoutSign(x))));
}

// Infinite parts become 1, the others 0, each with its sign.
template <class Base>
inline void boxInfinity(Base& p, Base& q) {
  p = withSignOf(isInfinite(p) ? Base{1} : Base{0}, p);
  q = withSignOf(isInfinite(q) ? Base{1} : Base{0}, q);
}

template <class Base>
inline void nanToZero(Base& x) {
  if (x != x) x = withSignOf(Base{0}, x);
}

// Not merged into its callers: it is large, and only called where a NaN came out.
template <class Base>
[[gnu::noinline]] std::complex<Base> annexGProduct(std::complex<Base> a, std::complex<Base> b) {
  using unit = definedUnit;
  Base p = a.real(), q = a.imag(), r = b.real(), s = b.imag();
  const Base ac = unit::product(p, r), bd = unit::product(q, s);
  const Base ad = unit::product(p, s), bc = unit::product(q, r);
  const Base x = unit::difference(ac, bd), y = unit::sum(bc, ad);
  if (x == x || y == y) return {x, y};

  bool again = false;
  if (isInfinite(p) || isInfinite(q)) {
    boxInfinity(p, q);
    nanToZero(r);
    nanToZero(s);
    again = true;
  }
  if (isInfinite(r) || isInfinite(s)) {
    boxInfinity(r, s);
    nanToZero(p);
    nanToZero(q);
    again = true;
  }
  if (!again && (isInfinite(ac) || isInfinite(bd) || isInfinite(ad) || isInfinite(bc))) {
    nanToZero(p);
    nanToZero(q);
    nanToZero(r);
    nanToZero(s);
    again = true;
  }
  if (!again) return {x, y};
  constexpr Base infinity = std::numeric_limits<Base>::infinity();
  return {unit::product(infinity, unit::difference(unit::product(p, r), unit::product(q, s))),
          unit::product(infinity, unit::sum(unit::product(p, s), unit::product(q, r)))};
}

}  // namespace zthalf::linalg
