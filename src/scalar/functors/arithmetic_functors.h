// Functors of the arithmetic operations, on every pair of operands.
// Internal: promises nothing to users of the library.
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
  static constexpr bool baseOnlyFor = isMixedComplexPair<A, B>;
  template <class A, class B>
  ZTHALF_INLINE auto operator()(A x, B y) const {
    return element(zthalf::anyProduct(plainOperand(x), plainOperand(y)));
  }

  // Two complex halves, in vector lanes.
  template <class T1, class T2>
  requires(std::same_as<std::remove_pointer_t<T1>, complexHalf>&& std::same_as<std::remove_pointer_t<T2>, complexHalf>)
      ZTHALF_INLINE static void runInBlocks(T1 a, T2 b, complexHalf* c, unsigned long n) {
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
      return element(zthalf::quotientOfHalves(plainOperand(x), plainOperand(y)));
    } else {
      return element(zthalf::anyQuotient(plainOperand(x), plainOperand(y)));
    }
  }

  // Halves, one of them complex at least, in vector lanes.
  template <class A, class B>
  static constexpr bool repeatsSinglesFor = isComplexPairOfHalves<A, B>;
  template <class A, class B>
  requires isComplexPairOfHalves<A, B>
  static void runInBlocks(A* a, B* b, complexHalf* c, unsigned long n) { complexQuotientBlocks(a, b, c, n); }
};

}  // namespace half::scalar::emulated
