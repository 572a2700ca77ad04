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
    const zthalf::complexOf<float> x{folded.part[0], folded.part[1]}, y{next.part[0], next.part[1]};
    const auto product =
        zthalf::onDefinedUnit([&](auto unit) { return zthalf::timesComplex<zthalf::exactInSingle>(unit, x, y); });
    return {{roundedToHalf(product.re), roundedToHalf(product.im)}};
  }
  static number plain(number folded, number next) { return settled(folded, next); }
};

}  // namespace half_utils
