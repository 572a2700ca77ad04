// Logarithms on arrays, plain, stopping, and as fraction and exponent.
#include "frame/simple_loop.h"
#include "frame/stop_conditions.h"
#include "frame/table_loop.h"
#include "scalar/functors/logarithm_functors.h"
#include "zthalf/half_ops.h"

namespace half {

using half_utils::twoOutSimpleLoop;
using half_utils::unaryOpTableLoop;
using half_utils::unaryTableLoopWithEarlyExit;
using templates::emulated::isBelowMinusOne;
using templates::emulated::isNegativeNumber;
namespace functor = scalar::emulated;

void log(fp16binary_t* src, fp16binary_t* dst, unsigned long n) { unaryOpTableLoop(src, dst, n, functor::logFtor{}); }

void log1p(fp16binary_t* src, fp16binary_t* dst, unsigned long n) {
  unaryOpTableLoop(src, dst, n, functor::log1pFtor{});
}

void log2(fp16binary_t* src, fp16binary_t* dst, unsigned long n) { unaryOpTableLoop(src, dst, n, functor::log2Ftor{}); }

void log10(fp16binary_t* src, fp16binary_t* dst, unsigned long n) {
  unaryOpTableLoop(src, dst, n, functor::log10Ftor{});
}

bool logEarlyExit(fp16binary_t* src, fp16binary_t* dst, unsigned long n) {
  return unaryTableLoopWithEarlyExit(src, dst, n, functor::logFtor{}, isNegativeNumber{});
}

bool log1pEarlyExit(fp16binary_t* src, fp16binary_t* dst, unsigned long n) {
  return unaryTableLoopWithEarlyExit(src, dst, n, functor::log1pFtor{}, isBelowMinusOne{});
}

bool log2EarlyExit(fp16binary_t* src, fp16binary_t* dst, unsigned long n) {
  return unaryTableLoopWithEarlyExit(src, dst, n, functor::log2Ftor{}, isNegativeNumber{});
}

bool log10EarlyExit(fp16binary_t* src, fp16binary_t* dst, unsigned long n) {
  return unaryTableLoopWithEarlyExit(src, dst, n, functor::log10Ftor{}, isNegativeNumber{});
}

void log2TwoOut(fp16binary_t* src, fp16binary_t* fraction, fp16binary_t* exponent, unsigned long n) {
  twoOutSimpleLoop(src, fraction, exponent, n, functor::log2TwoOutFtor{});
}

void cplxLog2TwoOut(std::complex<fp16binary_t>* src, fp16binary_t* fraction, fp16binary_t* exponent, unsigned long n) {
  twoOutSimpleLoop(src, fraction, exponent, n, functor::cplxLog2TwoOutFtor{});
}

}  // namespace half
