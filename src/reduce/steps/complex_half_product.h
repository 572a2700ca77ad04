// The product of complex half accumulators: that of the operator on complex halves, with its parts left in single.
#pragma once

#include "reduce/steps/steps.h"
#include "scalar/complex/product.h"

namespace half_utils {

struct complexHalfProductStep : stepOn<std::complex<fp16binary_t>> {
  static constexpr bool plainIsEnough = true;
  static constexpr bool baseOnly = true;  // branches

  static number identity() { return {{1}}; }
  static number settled(number folded, number next) {
    return rounded([&](auto unit) {
      return zthalf::timesComplex<zthalf::exactInSingle>(unit, complexOf(folded), complexOf(next));
    });
  }
  static number plain(number folded, number next) { return settled(folded, next); }

  // The total is the left factor, and so its terms come first in each sum; but within each multiplication the partial's
  // part is the first operand. A real total multiplies the partial's parts that way already.
  static number finished(number total, number partial) {
    const auto x = complexOf(total), y = complexOf(partial);
    return rounded([&](auto unit) {
      if (x.im == 0) return zthalf::timesReal(unit, y, x.re);
      return zthalf::timesComplex<zthalf::exactInSingle>(zthalf::factorsExchanged<decltype(unit)>{}, x, y);
    });
  }

 private:
  static zthalf::complexOf<float> complexOf(number z) { return {z.part[0], z.part[1]}; }

  template <class Formula>
  static number rounded(Formula product) {
    const zthalf::complexOf<float> z = zthalf::onDefinedUnit(product);
    return {{roundedToHalf(z.re), roundedToHalf(z.im)}};
  }
};

}  // namespace half_utils
