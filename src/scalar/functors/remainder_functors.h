// Functors of mod and rem. The elements of a half array come as bare patterns.
#pragma once

#include <type_traits>

#include "scalar/half_remainder.h"
#include "scalar/mixed_operands.h"
#include "scalar/mixed_remainder.h"

namespace half::impl::emulated {

// What the loops run. The exported modFtor and remFtor are shells over these: an exported function cannot be merged
// into a wide pass.

struct modInLoopFtor {
  static constexpr unsigned long grain = 64;
  template <class A, class B>
  static constexpr bool baseOnlyFor = !std::is_same_v<A, B>;  // beside a float or double a long division

  ZTHALF_INLINE unsigned short operator()(unsigned short x, unsigned short y) const {
    return zthalf::modOfHalves(x, y);
  }
  template <class A, class B>
  unsigned short operator()(A x, B y) const {
    using wide = zthalf::widestOf<A, B>;
    return zthalf::modOfWide(zthalf::exactly<wide>(x), zthalf::exactly<wide>(y));
  }
};

struct remInLoopFtor {
  static constexpr unsigned long grain = 64;
  template <class A, class B>
  static constexpr bool baseOnlyFor = !std::is_same_v<A, B>;  // beside a float or double a long division

  ZTHALF_INLINE unsigned short operator()(unsigned short x, unsigned short y) const {
    return zthalf::remOfHalves(x, y);
  }
  template <class A, class B>
  unsigned short operator()(A x, B y) const {
    using wide = zthalf::widestOf<A, B>;
    return zthalf::remOfWide(zthalf::exactly<wide>(x), zthalf::exactly<wide>(y));
  }
};

}  // namespace half::impl::emulated
