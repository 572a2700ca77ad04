// The functor of x * y + z.
#pragma once

#include "scalar/functors/operands.h"
#include "scalar/multiply_add.h"
#include "zthalf/half_t.h"

namespace half::scalar::emulated {

// Each operand is a half, a float or a double; the result has the narrowest of the three types.
struct fmaFtor {
  static constexpr unsigned long grain = 256;

  // A double factor takes the fused operation, which is a call.
  template <class A, class B, class C>
  static constexpr bool baseOnlyFor = zthalf::anyDouble<A, B>;

  // Repeating a single element into a block costs 5 % of such a pass; one pass for each mixture would add a megabyte of
  // code.
  template <class A, class B, class C>
  static constexpr bool repeatsSinglesFor =
      !zthalf::anyDouble<A, B> && (zthalf::anyFloat<A, B> || zthalf::anyDouble<C>);

  template <class A, class B, class C>
  ZTHALF_INLINE auto operator()(A x, B y, C z) const {
    return asElement(zthalf::multiplyAdd(plainOperand(x), plainOperand(y), plainOperand(z)));
  }
};

}  // namespace half::scalar::emulated
