// Functors of hypot and of the angle that atan2 gives.
#pragma once

#include "scalar/angle.h"
#include "scalar/complex/mixed_magnitude.h"
#include "scalar/functors/operands.h"
#include "scalar/hypot.h"

namespace half::scalar::emulated {

struct hypotFtor {
  static constexpr unsigned long grain = 256;
  template <class A, class B>
  static constexpr bool baseOnlyFor =
      zthalf::anyDouble<operandOf<A>, operandOf<B>> || isComplexPair<A, B>;  // many steps for an element

  template <class A, class B>
  ZTHALF_INLINE auto operator()(A x, B y) const {
    return asElement(zthalf::hypotOf(plainOperand(x), plainOperand(y)));
  }
};

// The ordinate comes first.
struct atan2Ftor {
  static constexpr unsigned long grain = 256;
  template <class A, class B>
  static constexpr bool baseOnlyFor = zthalf::anyDouble<A, B>;  // a call for each element

  template <class A, class B>
  ZTHALF_INLINE fp16binary_t operator()(A y, B x) const {
    return {zthalf::atan2Of(plainOperand(y), plainOperand(x))};
  }
};

}  // namespace half::scalar::emulated
