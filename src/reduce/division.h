// The one division of a mean: always in double, whatever the sum was made in.
#pragma once

#include <complex>

#include "core/nan_policy.h"
#include "reduce/reduction.h"

namespace half_utils {

inline double quotient(double x, double divisor) { return zthalf::settled(x / divisor, x, divisor); }

// Back to the output: a half sum's quotient is rounded straight to half, a single sum's goes through single first. The
// extra rounding is the result: do not unify the two.
template <class Out, class Accumulator>
struct quotientPart {
  static Out of(double q) { return outputPart<Out>::of(q); }
};
template <class Out>
struct quotientPart<Out, float> {
  static Out of(double q) { return outputPart<Out>::of(static_cast<float>(q)); }
};

template <class Accumulator, class Out, class Wide>
void storeQuotient(Out& out, value<Wide, 1> sum, unsigned long divisor) {
  out = quotientPart<Out, Accumulator>::of(quotient(sum.part[0], static_cast<double>(divisor)));
}

// A complex number divided by zero: a part that is zero gives zero where the other one is not, and an imaginary zero
// gives zero always. A NaN is not zero.
template <class Accumulator, class Out, class Wide>
void storeQuotient(std::complex<Out>& out, value<Wide, 2> sum, unsigned long divisor) {
  const double re = sum.part[0], im = sum.part[1], d = static_cast<double>(divisor);
  const double realPart = d == 0 && im != 0 && re == 0 ? 0 : quotient(re, d);
  const double imaginaryPart = d == 0 && im == 0 ? 0 : quotient(im, d);
  using part = quotientPart<Out, typename Accumulator::value_type>;
  out = {part::of(realPart), part::of(imaginaryPart)};
}

}  // namespace half_utils
