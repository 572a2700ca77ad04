// Operations that apply part by part to a complex element: a real operation, and a combiner for the two results.
#pragma once

#include <complex>
#include <type_traits>

#include "core/bits.h"
#include "scalar/functors/comparison_functors.h"
#include "scalar/functors/operands.h"
#include "zthalf/half_t.h"

namespace half::utils {

struct boolOrFtor {
  ZTHALF_INLINE bool operator()(bool first, bool second) const { return first | second; }
};

struct boolAndFtor {
  ZTHALF_INLINE bool operator()(bool first, bool second) const { return first & second; }
};

struct getFirstArgFtor {
  template <class T>
  ZTHALF_INLINE T operator()(T first, T) const {
    return first;
  }
};

struct combineRealComplexFtor {
  template <class T>
  ZTHALF_INLINE std::complex<T> operator()(T first, T second) const {
    return {first, second};
  }
};

// Threshold and Grain are the loop's two numbers; the threshold decides nothing while the gate of the simple loop
// stands at the top bit of the count.
template <class Op, class Combiner, unsigned long Threshold, unsigned long Grain>
struct ElementwiseUnaryOpFtor {
  static constexpr unsigned long grain = Grain;

  template <class T>
  ZTHALF_INLINE auto operator()(T x) const {
    return Op{}(x);
  }

  template <class T>
  ZTHALF_INLINE auto operator()(std::complex<T> z) const {
    return Combiner{}(Op{}(z.real()), Op{}(z.imag()));
  }
};

// The same for two operands. Where one of them is real, the other one's imaginary part has nothing to meet, and Op says
// what that means.
template <class Op, class Combiner, unsigned long Threshold, unsigned long Grain>
struct ElementwiseBinaryOpFtor {
  static constexpr unsigned long grain = Grain;
  using none = scalar::emulated::noImaginaryPart;
  template <class T>
  using partsOf = scalar::emulated::partsOf<T>;

  // The orderings look at real parts alone.
  static constexpr bool isOfRealParts = std::is_same_v<Combiner, getFirstArgFtor>;

  // Wide levels are for pairs of real operands and for complex halves among themselves. Complex numbers of other types
  // beside complex halves are rare, and are three quarters of all pairs: at all levels they alone would be as large as
  // the rest of the library's code.
  template <class T>
  static constexpr bool isOfHalves = std::is_same_v<typename partsOf<T>::type, fp16binary_t>;
  template <class A, class B>
  static constexpr bool baseOnlyFor = (partsOf<A>::areTwo || partsOf<B>::areTwo) && !(isOfHalves<A> && isOfHalves<B>);

  template <class A, class B>
  ZTHALF_INLINE auto operator()(A a, B b) const {
    return Op{}(a, b);
  }

  template <class A, class B>
  ZTHALF_INLINE auto operator()(std::complex<A> a, B b) const {
    if constexpr (isOfRealParts)
      return Op{}(a.real(), b);
    else
      return Combiner{}(Op{}(a.real(), b), Op{}(a.imag(), none{}));
  }

  template <class A, class B>
  ZTHALF_INLINE auto operator()(A a, std::complex<B> b) const {
    if constexpr (isOfRealParts)
      return Op{}(a, b.real());
    else
      return Combiner{}(Op{}(a, b.real()), Op{}(b.imag(), none{}));
  }

  template <class A, class B>
  ZTHALF_INLINE auto operator()(std::complex<A> a, std::complex<B> b) const {
    if constexpr (isOfRealParts)
      return Op{}(a.real(), b.real());
    else
      return Combiner{}(Op{}(a.real(), b.real()), Op{}(a.imag(), b.imag()));
  }
};

}  // namespace half::utils
