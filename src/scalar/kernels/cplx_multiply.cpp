#include "scalar/kernels/cplx_multiply.h"

namespace qsl_scalar {

// With x = a + b i, y = c + d i, m1 = max(|a|, |b|), a1 = a / m1, b1 = b / m1, so that one of them is 1 or -1, and m2,
// c1, d1 likewise,
//
//   re = m2 (m1 (a1 c1 - b1 d1)),   im = m2 (m1 (b1 c1 + a1 d1))
//
// overflow only where the result does. A part is repaired if it is a NaN, or infinite though both factors are finite.
// Where the bracket vanishes the part is zero; but with an infinite factor beside one that is real or imaginary, the
// two terms are taken once more, and those that are NaN count as zeros.
//
// Cases above the formula: an imaginary times a real factor and the reverse have one term only, and a real part of +0.
template <class Wide>
complexOf<Wide> cmulRecover(complexOf<Wide> x, complexOf<Wide> y, complexOf<Wide> plain) {
  using unit = zthalf::calledUnit;
  const auto [a, b] = x;
  const auto [c, d] = y;
  if (b == 0 && c == 0) return {0, unit::product(a, d)};
  if (a == 0 && d == 0) return {0, unit::product(b, c)};

  const auto largerOf = [](Wide u, Wide v) {
    const Wide p = zthalf::withoutSign(u);
    const Wide q = zthalf::withoutSign(v);
    return p >= q || isNaN(v) ? p : q;
  };
  const auto scaledBy = [](Wide u, Wide m) {
    return zthalf::withoutSign(u) == m ? withSignOf(Wide(1), u) : unit::quotient(u, m);
  };
  const Wide m1 = largerOf(a, b);
  const Wide m2 = largerOf(c, d);
  const Wide a1 = scaledBy(a, m1);
  const Wide b1 = scaledBy(b, m1);
  const Wide c1 = scaledBy(c, m2);
  const Wide d1 = scaledBy(d, m2);
  constexpr Wide most = realKernels<Wide>::largestFinite;
  const bool areFinite = m1 <= most && m2 <= most;
  const bool isInfiniteOnAnAxis = ((d == 0 || c == 0) && m1 > most) || ((b == 0 || a == 0) && m2 > most);

  const auto needsRepair = [=](Wide part) { return isNaN(part) || (!isFiniteNumber(part) && areFinite); };
  const auto unscaled = [=](Wide bracket) { return unit::product(m2, unit::product(m1, bracket)); };
  // A term, or a zero with the sign that it would have.
  const auto termOf = [](Wide u, Wide v, Wide u1, Wide v1) {
    const Wide term = unit::product(u, v);
    return isNaN(term) ? withSignOf(Wide(0), unit::product(u1, v1)) : term;
  };

  complexOf<Wide> result = plain;
  if (needsRepair(plain.re)) {
    const Wide bracket = unit::difference(unit::product(a1, c1), unit::product(b1, d1));
    if (bracket != 0) {
      result.re = unscaled(bracket);
    } else {
      result.re = isInfiniteOnAnAxis ? unit::difference(termOf(a, c, a1, c1), termOf(b, d, b1, d1)) : Wide(0);
    }
  }
  if (needsRepair(plain.im)) {
    const Wide bracket = unit::sum(unit::product(b1, c1), unit::product(a1, d1));
    if (bracket != 0) {
      result.im = unscaled(bracket);
    } else {
      result.im = isInfiniteOnAnAxis ? unit::sum(termOf(b, c, b1, c1), termOf(a, d, a1, d1)) : Wide(0);
    }
  }
  return result;
}

template complexOf<float> cmulRecover(complexOf<float>, complexOf<float>, complexOf<float>);
template complexOf<double> cmulRecover(complexOf<double>, complexOf<double>, complexOf<double>);

}  // namespace qsl_scalar
