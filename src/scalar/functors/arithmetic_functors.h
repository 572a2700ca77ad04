// Functors of the arithmetic operations, on every pair of operands.
#pragma once

#include <concepts>
#include <type_traits>

#include "scalar/functors/complex_product_blocks.h"
#include "scalar/functors/complex_quotient_blocks.h"
#include "scalar/functors/operands.h"
#include "scalar/mixed_arithmetic.h"

namespace half::scalar::emulated {

struct plusFtor {
  static constexpr unsigned long grain = 256;
  template <class A, class B>
  static constexpr bool baseOnlyFor = isMixedComplexPair<A, B>;
  template <class A, class B>
  ZTHALF_INLINE auto operator()(A x, B y) const {
    return asElement(zthalf::sumOf(plainOperand(x), plainOperand(y)));
  }
};

struct minusFtor {
  static constexpr unsigned long grain = 256;
  template <class A, class B>
  static constexpr bool baseOnlyFor = isMixedComplexPair<A, B>;
  template <class A, class B>
  ZTHALF_INLINE auto operator()(A x, B y) const {
    return asElement(zthalf::differenceOf(plainOperand(x), plainOperand(y)));
  }
};

struct timesFtor {
  static constexpr unsigned long grain = 256;
  template <class A, class B>
  static constexpr bool baseOnlyFor = isMixedComplexPair<A, B>;
  template <class A, class B>
  ZTHALF_INLINE auto operator()(A x, B y) const {
    return asElement(zthalf::productOf(plainOperand(x), plainOperand(y)));
  }

  // Two complex halves, in vector lanes.
  template <class T1, class T2>
  requires(std::same_as<std::remove_pointer_t<T1>, element::CplxHalf>&&
               std::same_as<std::remove_pointer_t<T2>, element::CplxHalf>) ZTHALF_INLINE
      static void runInBlocks(T1 a, T2 b, element::CplxHalf* c, unsigned long n) {
    complexProductBlocks(a, b, c, n);
  }
};

struct rdivideFtor {
  static constexpr unsigned long grain = 256;
  template <class A, class B>
  static constexpr bool baseOnlyFor = isComplexPair<A, B>;  // a chain of tests, or a pass that chooses its own level
  template <class A, class B>
  ZTHALF_INLINE auto operator()(A x, B y) const {
    if constexpr (isComplexPairOfHalves<A, B>) {
      return asElement(zthalf::quotientOfHalves(plainOperand(x), plainOperand(y)));
    } else {
      return asElement(zthalf::quotientOf(plainOperand(x), plainOperand(y)));
    }
  }

  // Halves, one of them complex at least, in vector lanes.
  template <class A, class B>
  static constexpr bool repeatsSinglesFor = isComplexPairOfHalves<A, B>;
  template <class A, class B>
  requires isComplexPairOfHalves<A, B>
  static void runInBlocks(A* a, B* b, element::CplxHalf* c, unsigned long n) { complexQuotientBlocks(a, b, c, n); }
};

}  // namespace half::scalar::emulated
