// What other half-precision code offers for the operations measured here.
#pragma once

#include <complex>
#include <string>
#include <vector>

#include "zthalf/half_t.h"

namespace bench {

// The passes of one peer; null where it has none.
struct peerPasses {
  char const* name;
  void (*halfToSingle)(half_t*, float*, unsigned long);
  void (*singleToHalf)(float*, half_t*, unsigned long);
  void (*halfToDouble)(half_t*, double*, unsigned long);
  void (*doubleToHalf)(double*, half_t*, unsigned long);
  void (*int32ToHalf)(int*, half_t*, unsigned long);
  void (*halfToInt32)(half_t*, int*, unsigned long);
  void (*floor)(half_t*, half_t*, unsigned long);
  void (*plus)(half_t*, half_t*, half_t*, unsigned long);
  void (*minus)(half_t*, half_t*, half_t*, unsigned long);
  void (*times)(half_t*, half_t*, half_t*, unsigned long);
  void (*rdivide)(half_t*, half_t*, half_t*, unsigned long);
  // By the textbook formulas, which give other results where a part is zero, infinite or a NaN.
  void (*complexPlus)(std::complex<half_t>*, std::complex<half_t>*, std::complex<half_t>*, unsigned long);
  void (*complexTimes)(std::complex<half_t>*, std::complex<half_t>*, std::complex<half_t>*, unsigned long);
  void (*equal)(half_t*, half_t*, bool*, unsigned long);
  void (*less)(half_t*, half_t*, bool*, unsigned long);
  void (*smaller)(half_t*, half_t*, half_t*, unsigned long);
  void (*smallest)(half_t*, half_t*, unsigned long);              // to one element
  void (*positionOfSmallest)(half_t*, double*, unsigned long);    // from 1
  void (*matrixTimes)(half_t*, half_t*, half_t*, unsigned long);  // square matrices of that order
  void (*shortest)(std::complex<half_t>*, std::complex<half_t>*, unsigned long);
};

#define ZTHALF_PEER_JOIN_(a, b) a##b
#define ZTHALF_PEER_JOIN(a, b) ZTHALF_PEER_JOIN_(a, b)
#define ZTHALF_PEER_TEXT_(a) #a
#define ZTHALF_PEER_TEXT(a) ZTHALF_PEER_TEXT_(a)

// A peer's source is compiled once for each set of instructions; the set's name is part of the peer's.
#define ZTHALF_PEER(peer) ZTHALF_PEER_JOIN(peer, ZTHALF_PEER_SET)

#define ZTHALF_PEER_EXPORT __attribute__((visibility("default")))

// The peers that were compiled in and that this processor can run.
std::vector<peerPasses> const& peers();

}  // namespace bench
