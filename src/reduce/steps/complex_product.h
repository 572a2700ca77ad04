// The product of complex accumulators in single and in double. It is neither the product of complex halves nor that of
// the elementwise operations.
#pragma once

#include "core/float_unit.h"
#include "reduce/steps/steps.h"
#include "scalar/multiply_add.h"

namespace half_utils {

using zthalf::asDouble;
using zthalf::definedUnit;
using zthalf::withSignFlipped;

// x z + y w, none of them zero. In single: exact products in double, whose sum is made safe for the rounding to single.
inline float sumOfProducts(float x, float z, float y, float w) {
  const double p = definedUnit::product(asDouble(x), asDouble(z));
  const double q = definedUnit::product(asDouble(y), asDouble(w));
  return static_cast<float>(zthalf::settled(zthalf::nudgedSum<29>(p, q), p, q));
}

// In double the first product is fused with the sum.
inline double sumOfProducts(double x, double z, double y, double w) {
  return zthalf::fusedMultiplyAdd(x, z, definedUnit::product(y, w));
}

// Parts that are zeros of either sign take no part, so that an infinity in the other operand makes no NaN with them.
// The order of the tests decides where several hold.
template <class Wide>
value<Wide, 2> complexProduct(value<Wide, 2> x, value<Wide, 2> y) {
  const Wide a = x.part[0], b = x.part[1], c = y.part[0], d = y.part[1];
  if (b == 0) return {{d != 0 && c == 0 ? 0 : definedUnit::product(a, c), d != 0 ? definedUnit::product(a, d) : 0}};
  if (d == 0) return {{a == 0 ? 0 : definedUnit::product(a, c), definedUnit::product(b, c)}};
  if (a == 0) return {{definedUnit::product(d, withSignFlipped(b)), c == 0 ? 0 : definedUnit::product(b, c)}};
  if (c == 0) return {{definedUnit::product(d, withSignFlipped(b)), definedUnit::product(a, d)}};
  return {{sumOfProducts(a, c, b, withSignFlipped(d)), sumOfProducts(a, d, b, c)}};
}

template <class Accumulator>
struct complexProductStep : stepOn<Accumulator> {
  using typename stepOn<Accumulator>::number;
  static constexpr bool plainIsEnough = true;
  static constexpr bool baseOnly = true;  // branches

  static number identity() { return {{1}}; }
  static number settled(number folded, number next) { return complexProduct(folded, next); }
  static number plain(number folded, number next) { return settled(folded, next); }
  static number finished(number total, number partial) { return settled(total, partial); }
};

}  // namespace half_utils
