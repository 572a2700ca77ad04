// The elementary functions on arrays: of halves, plain, stopping, and with a complex result; of complex halves; and
// log2 as fraction and exponent.
#include "core/instantiate.h"
#include "frame/loops/result_loop.h"
#include "frame/loops/simple_loop.h"
#include "frame/unary/stop_conditions.h"
#include "scalar/functors/complex_elementary_functors.h"
#include "scalar/functors/elementary_functors.h"
#include "scalar/functors/power_functors.h"
#include "zthalf/half_ops.h"

namespace half {

namespace functor = scalar::emulated;

// Some are functions, the others templates with one instance. Their names are the functors'.

#define ZTHALF_DEFINE_FUNCTION(entry, ...)                             \
  void entry(fp16binary_t* src, fp16binary_t* dst, unsigned long n) {  \
    half_utils::unaryOpTableLoop(src, dst, n, functor::entry##Ftor{}); \
  }
ZTHALF_ROOT_ENTRIES(ZTHALF_DEFINE_FUNCTION)
ZTHALF_LOGARITHM_ENTRIES(ZTHALF_DEFINE_FUNCTION)
ZTHALF_BOUNDED_DOMAIN_ENTRIES(ZTHALF_DEFINE_FUNCTION)

// Of real elements by the result table, of complex ones by the complex form of the same name.
template <class Ftor, class CplxFtor>
void overElements(fp16binary_t* src, fp16binary_t* dst, unsigned long n) {
  half_utils::unaryOpTableLoop(src, dst, n, Ftor{});
}
template <class Ftor, class CplxFtor>
void overElements(std::complex<fp16binary_t>* src, std::complex<fp16binary_t>* dst, unsigned long n) {
  half_utils::unaryOpSimpleLoop(src, dst, n, CplxFtor{});
}
#define ZTHALF_DEFINE_TEMPLATE(cplxEntry, entry, ...)                          \
  template <class T>                                                           \
  void entry(T* src, T* dst, unsigned long n) {                                \
    overElements<functor::entry##Ftor, functor::cplxEntry##Ftor>(src, dst, n); \
  }
ZTHALF_COMPLEX_TEMPLATE_ENTRIES(ZTHALF_DEFINE_TEMPLATE)

#define ZTHALF_DEFINE_COMPLEX(entry, ...)                                                         \
  void entry(std::complex<fp16binary_t>* src, std::complex<fp16binary_t>* dst, unsigned long n) { \
    half_utils::unaryOpSimpleLoop(src, dst, n, functor::entry##Ftor{});                           \
  }
ZTHALF_COMPLEX_FUNCTION_ENTRIES(ZTHALF_DEFINE_COMPLEX)

#define ZTHALF_DEFINE_REAL_TO_COMPLEX(entry, function, ...)                            \
  void function(fp16binary_t* src, std::complex<fp16binary_t>* dst, unsigned long n) { \
    half_utils::unaryOpSimpleLoop(src, dst, n, functor::entry##Ftor{});                \
  }
ZTHALF_REAL_TO_COMPLEX_ENTRIES(ZTHALF_DEFINE_REAL_TO_COMPLEX)

#define ZTHALF_DEFINE_STOPPING(function, condition)                                        \
  bool function##EarlyExit(fp16binary_t* src, fp16binary_t* dst, unsigned long n) {        \
    return half_utils::unaryTableLoopWithEarlyExit(src, dst, n, functor::function##Ftor{}, \
                                                   templates::emulated::condition{});      \
  }
ZTHALF_DEFINE_STOPPING(sqrt, isNegativeNumber)
ZTHALF_DEFINE_STOPPING(log, isNegativeNumber)
ZTHALF_DEFINE_STOPPING(log1p, isBelowMinusOne)
ZTHALF_DEFINE_STOPPING(log2, isNegativeNumber)
ZTHALF_DEFINE_STOPPING(log10, isNegativeNumber)
ZTHALF_DEFINE_STOPPING(asin, isBeyondOne)
ZTHALF_DEFINE_STOPPING(acos, isBeyondOne)
ZTHALF_DEFINE_STOPPING(atanh, isBeyondOne)

void log2TwoOut(fp16binary_t* src, fp16binary_t* fraction, fp16binary_t* exponent, unsigned long n) {
  half_utils::twoOutSimpleLoop(src, fraction, exponent, n, functor::log2TwoOutFtor{});
}

void cplxLog2TwoOut(std::complex<fp16binary_t>* src, fp16binary_t* fraction, fp16binary_t* exponent, unsigned long n) {
  half_utils::twoOutSimpleLoop(src, fraction, exponent, n, functor::cplxLog2TwoOutFtor{});
}

ZTHALF_EXPONENTIAL_ENTRIES(ZTHALF_UNARY_ROW)
ZTHALF_TRIGONOMETRIC_ENTRIES(ZTHALF_UNARY_ROW)
ZTHALF_ARC_TANGENT_ENTRIES(ZTHALF_UNARY_ROW)
ZTHALF_HYPERBOLIC_ENTRIES(ZTHALF_UNARY_ROW)
ZTHALF_COMPLEX_TEMPLATE_ENTRIES(ZTHALF_UNARY_ROW)

}  // namespace half
