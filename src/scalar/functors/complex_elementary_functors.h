// Functors of the elementary functions with a complex result, as the rows of complex/elementary_functions.h tell: a
// call for each element.
#pragma once

#include "scalar/complex/elementary_functions.h"
#include "scalar/complex/exponential.h"
#include "scalar/complex/inverse_functions.h"
#include "scalar/complex/logarithm.h"
#include "scalar/complex/root.h"
#include "scalar/complex/trigonometric.h"
#include "scalar/functors/operands.h"

namespace half::scalar::emulated {

template <class Operand, zthalf::complexHalf (*body)(Operand)>
struct complexOneByOne {
  static constexpr unsigned long grain = 256;
  static constexpr bool baseOnly = true;
  template <class T>
  element::CplxHalf operator()(T x) const {
    return asElement(body(plainOperand(x)));
  }
};

#define ZTHALF_DEFINE_FUNCTOR(function, Function, body) \
  struct cplx##Function##Ftor : complexOneByOne<zthalf::complexHalf, zthalf::body> {};
ZTHALF_COMPLEX_FUNCTIONS(ZTHALF_DEFINE_FUNCTOR)
#undef ZTHALF_DEFINE_FUNCTOR

#define ZTHALF_DEFINE_FUNCTOR(function, body) \
  struct function##RealToComplexFtor : complexOneByOne<std::uint16_t, zthalf::body> {};
ZTHALF_REAL_TO_COMPLEX_FUNCTIONS(ZTHALF_DEFINE_FUNCTOR)
#undef ZTHALF_DEFINE_FUNCTOR

}  // namespace half::scalar::emulated
