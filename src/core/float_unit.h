// The four operations on the processor's unit and on the unit that defines all results.
//
// A long formula is written once, as a template on a unit. On numbers both units give the same bits; they differ in
// which NaN comes out. So the formula runs on the processor first, and again on the defining unit only if a NaN came
// out: settling a NaN at every step would cost more than the formula.
#pragma once

#include <cmath>

#include "core/bits.h"
#include "core/nan_policy.h"

namespace zthalf {

struct plainUnit {
  static constexpr bool settles = false;
  template <class Wide>
  ZTHALF_INLINE static Wide sum(Wide x, Wide y) {
    return x + y;
  }
  template <class Wide>
  ZTHALF_INLINE static Wide difference(Wide x, Wide y) {
    return x - y;
  }
  template <class Wide>
  ZTHALF_INLINE static Wide product(Wide x, Wide y) {
    return x * y;
  }
  template <class Wide>
  ZTHALF_INLINE static Wide quotient(Wide x, Wide y) {
    return x / y;
  }
};

// The first operand is the one whose NaN is delivered, unless only the second one's is signalling.
struct definedUnit {
  static constexpr bool settles = true;
  template <class Wide>
  static Wide sum(Wide x, Wide y) {
    return settled(x + y, x, y);
  }
  template <class Wide>
  static Wide difference(Wide x, Wide y) {
    return settled(x - y, x, y);
  }
  template <class Wide>
  static Wide product(Wide x, Wide y) {
    return settled(x * y, x, y);
  }
  template <class Wide>
  static Wide quotient(Wide x, Wide y) {
    return settled(x / y, x, y);
  }
};

// The same unit with the factors of each product exchanged: it shows in which of two NaNs comes out.
template <class Unit>
struct factorsExchanged : Unit {
  template <class Wide>
  ZTHALF_INLINE static Wide product(Wide x, Wide y) {
    return Unit::product(y, x);
  }
};

// The sign bit turned over, that of a NaN too. Written with a minus, compilers carry the sign into other operations.
template <class Wide>
ZTHALF_INLINE Wide withSignFlipped(Wide x) {
  using word = typename formatOf<Wide>::word;
  return valueOf(bitsOf(x) ^ (word{1} << (8 * sizeof(word) - 1)));
}

template <class Wide>
ZTHALF_INLINE Wide withoutSign(Wide x) {
  using word = typename formatOf<Wide>::word;
  return valueOf(bitsOf(x) & ~(word{1} << (8 * sizeof(word) - 1)));
}

}  // namespace zthalf
