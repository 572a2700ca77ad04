// A part of an output that is not decided yet: a NaN whose payload says which infinities its chain has met.
#pragma once

#include "core/float_unit.h"

namespace zthalf::linalg {

template <class Base>
struct openPart {
  using word = typename formatOf<Base>::word;
  static constexpr word bare = bitsOf(defaultNaN<Base>);
  static constexpr word metPlus = 1, metMinus = 2, decided = 4;

  static Base opened() { return valueOf(bare); }
  static bool isOpen(Base x) { return x != x && (bitsOf(x) & decided) == 0; }
  static word met(Base x) { return bitsOf(x) & (metPlus | metMinus); }
  static Base withMet(word met) { return valueOf(bare | met); }

  // A decided NaN with the sign of another one; still a number that isOpen tells apart.
  static Base decidedAs(Base nan) { return valueOf((bitsOf(nan) ^ bitsOf(withoutSign(nan))) | bare | decided); }

  // The infinity that was met; of both, or of none where only the sum of two finite outputs can have been invalid, the
  // NaN of an invalid operation.
  static Base closed(Base x) {
    constexpr Base infinity = std::numeric_limits<Base>::infinity();
    if (met(x) == metPlus) return infinity;
    if (met(x) == metMinus) return withSignFlipped(infinity);
    return opened();
  }
};

// What a chain is after some special indices: untouched, an infinity or a NaN.
template <class Base>
struct chainEnd {
  Base value = 0;  // 0: only finite numbers so far

  void add(Base product) { value = value == 0 ? product : definedUnit::sum(value, product); }
  bool isNaN() const { return value != value; }
};

}  // namespace zthalf::linalg
