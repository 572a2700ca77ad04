// Functors of the arithmetic operations, on every pair of operands.
// Internal: promises nothing to users of the library.
#pragma once

#include <concepts>

#include "scalar/complex/product_lanes.h"
#include "scalar/functors/operands.h"
#include "scalar/mixed_arithmetic.h"

namespace half::scalar::emulated {

struct plusFtor {
  static constexpr unsigned long grain = 256;
  template <class A, class B>
  static constexpr bool baseOnlyFor = isMixedComplexPair<A, B>;
  template <class A, class B>
  ZTHALF_INLINE auto operator()(A x, B y) const {
    return element(zthalf::anySum(plainOperand(x), plainOperand(y)));
  }
};

struct minusFtor {
  static constexpr unsigned long grain = 256;
  template <class A, class B>
  static constexpr bool baseOnlyFor = isMixedComplexPair<A, B>;
  template <class A, class B>
  ZTHALF_INLINE auto operator()(A x, B y) const {
    return element(zthalf::anyDifference(plainOperand(x), plainOperand(y)));
  }
};

struct timesFtor {
  static constexpr unsigned long grain = 256;
  template <class A, class B>
  static constexpr bool baseOnlyFor =
      isComplexPair<A, B> && !(std::is_same_v<A, complexHalf> && std::is_same_v<B, complexHalf>);
  template <class A, class B>
  ZTHALF_INLINE auto operator()(A x, B y) const {
    return element(zthalf::anyProduct(plainOperand(x), plainOperand(y)));
  }

  // In lanes: what most data want, and every case.
  template <std::same_as<complexHalf> Z>
  ZTHALF_INLINE auto plain(Z x, Z y) const {
    const zthalf::productInDoubt product = zthalf::plainProductInLanes(plainOperand(x), plainOperand(y));
    struct {
      complexHalf value;
      bool doubt;
    } result{element(product.value), product.doubt};
    return result;
  }
  template <std::same_as<complexHalf> Z>
  ZTHALF_INLINE complexHalf careful(Z x, Z y) const {
    return element(zthalf::productInLanes(plainOperand(x), plainOperand(y)));
  }
};

struct rdivideFtor {
  static constexpr unsigned long grain = 256;
  template <class A, class B>
  static constexpr bool baseOnlyFor = isComplexPair<A, B>;  // a chain of tests
  template <class A, class B>
  ZTHALF_INLINE auto operator()(A x, B y) const {
    return element(zthalf::anyQuotient(plainOperand(x), plainOperand(y)));
  }
};

}  // namespace half::scalar::emulated
