// The functor of x * y + z.
// Internal: promises nothing to users of the library.
#pragma once

#include "scalar/multiply_add.h"
#include "zthalf/half_t.h"

namespace half::scalar::emulated {

// Each operand is a half, a float or a double; the result has the narrowest of the three types.
struct fmaFtor {
  static constexpr unsigned long grain = 256;

  // A double factor takes the fused operation, which is a call.
  template <class A, class B, class C>
  static constexpr bool baseOnlyFor = zthalf::anyDouble<A, B>;

  // Sums in double are long passes: reading a single element again costs a twentieth of one, and passes for every
  // mixture of arrays and single elements would be a megabyte.
  template <class A, class B, class C>
  static constexpr bool repeatsSinglesFor =
      !zthalf::anyDouble<A, B> && (zthalf::anyFloat<A, B> || zthalf::anyDouble<C>);

  template <class A, class B, class C>
  ZTHALF_INLINE auto operator()(A x, B y, C z) const {
    return element(zthalf::multiplyAdd(plain(x), plain(y), plain(z)));
  }

 private:
  ZTHALF_INLINE static std::uint16_t plain(fp16binary_t x) { return x.bits; }
  ZTHALF_INLINE static float plain(float x) { return x; }
  ZTHALF_INLINE static double plain(double x) { return x; }

  ZTHALF_INLINE static fp16binary_t element(std::uint16_t bits) { return {bits}; }
  ZTHALF_INLINE static float element(float x) { return x; }
  ZTHALF_INLINE static double element(double x) { return x; }
};

}  // namespace half::scalar::emulated
