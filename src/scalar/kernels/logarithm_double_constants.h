// Constants of the logarithms in double precision.
#pragma once

#include "core/bits.h"

namespace qsl_scalar::doubles {

// ln 2 in two parts. The upper one has 32 significant bits, so that k times it is exact for every exponent k.
inline constexpr double ln2Upper = zthalf::doubleOf(0x3FE62E42FEE00000u);  // 0.6931471803691238
inline constexpr double ln2Lower = zthalf::doubleOf(0x3DEA39EF35793C76u);  // 1.9082149292705877e-10

// ln((1 + s) / (1 - s)) = 2s + s R, R = lg1 z + lg2 z^2 + ... + lg7 z^7, z = s^2, for |s| up to 0.1716; near 2/3, 2/5,
// ..., 2/15, and fitted.
ZTHALF_INLINE double logarithmSeries(double z) {
  constexpr double lg1 = zthalf::doubleOf(0x3FE5555555555593u);  // 0.6666666666666735
  constexpr double lg2 = zthalf::doubleOf(0x3FD999999997FA04u);  // 0.3999999999940942
  constexpr double lg3 = zthalf::doubleOf(0x3FD2492494229359u);  // 0.2857142874366239
  constexpr double lg4 = zthalf::doubleOf(0x3FCC71C51D8E78AFu);  // 0.22222198432149784
  constexpr double lg5 = zthalf::doubleOf(0x3FC7466496CB03DEu);  // 0.1818357216161805
  constexpr double lg6 = zthalf::doubleOf(0x3FC39A09D078C69Fu);  // 0.15313837699209373
  constexpr double lg7 = zthalf::doubleOf(0x3FC2F112DF3E5244u);  // 0.14798198605116586
  return z * (z * (z * (z * (z * (z * (z * lg7 + lg6) + lg5) + lg4) + lg3) + lg2) + lg1);
}

}  // namespace qsl_scalar::doubles
