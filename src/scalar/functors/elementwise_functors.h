// Operations that apply part by part to a complex element: a real operation, and a combiner for the two results.
// Internal: promises nothing to users of the library.
#pragma once

#include <complex>
#include <type_traits>

#include "core/bits.h"
#include "scalar/functors/comparison_functors.h"
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

template <class T>
struct partsOf {
  static constexpr bool areTwo = false;
  using type = T;
};
template <class T>
struct partsOf<std::complex<T>> {
  static constexpr bool areTwo = true;
  using type = T;
};

// The same for two operands. Where one of them is real, the other one's imaginary part has nothing to meet, and Op says
// what that means.
template <class Op, class Combiner, unsigned long Threshold, unsigned long Grain>
struct ElementwiseBinaryOpFtor {
  static constexpr unsigned long grain = Grain;
  using none = scalar::emulated::noImaginaryPart;

  // Wide levels are for pairs of real operands and for complex ones that are made of halves or singles and meet such.
  // Complex doubles, integers and logicals beside complex halves are rare, and are three fifths of all pairs: at all
  // levels they alone would be as large as the rest.
  template <class T>
  static constexpr bool isOfHalvesOrSingles =
      std::is_same_v<typename partsOf<T>::type, fp16binary_t> || std::is_same_v<typename partsOf<T>::type, float>;
  template <class A, class B>
  static constexpr bool baseOnlyFor = (partsOf<A>::areTwo || partsOf<B>::areTwo) &&
                                      !(isOfHalvesOrSingles<A> && isOfHalvesOrSingles<B>);

  template <class A, class B>
  ZTHALF_INLINE auto operator()(A a, B b) const {
    return Op{}(a, b);
  }

  template <class A, class B>
  ZTHALF_INLINE auto operator()(std::complex<A> a, B b) const {
    return Combiner{}(Op{}(a.real(), b), Op{}(a.imag(), none{}));
  }

  template <class A, class B>
  ZTHALF_INLINE auto operator()(A a, std::complex<B> b) const {
    return Combiner{}(Op{}(a, b.real()), Op{}(b.imag(), none{}));
  }

  template <class A, class B>
  ZTHALF_INLINE auto operator()(std::complex<A> a, std::complex<B> b) const {
    return Combiner{}(Op{}(a.real(), b.real()), Op{}(a.imag(), b.imag()));
  }
};

}  // namespace half::utils
