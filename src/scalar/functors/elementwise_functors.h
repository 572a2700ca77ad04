// Operations that apply part by part to a complex element: a real operation, and a combiner for the two results.
// Internal: promises nothing to users of the library.
#pragma once

#include <complex>

#include "core/bits.h"
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

}  // namespace half::utils
