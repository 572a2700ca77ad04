// Constants of the logarithms and exponentials, and of what is built on them.
#pragma once

#include "core/bits.h"

namespace qsl_scalar {

inline constexpr float log2E = zthalf::floatOf(0x3FB8AA3Bu);  // 1.4426950216293335
inline constexpr float ln2 = zthalf::floatOf(0x3F317218u);    // 0.6931471824645996

// ln 2 in two parts. The upper one has 15 significant bits, so that k * ln2Upper is exact for every exponent k.
inline constexpr float ln2Upper = zthalf::floatOf(0x3F317200u);  // 0.693145751953125
inline constexpr float ln2Lower = zthalf::floatOf(0x35BFBE8Eu);  // 1.428606765330187e-06

// The same with 12 significant bits in the upper part, for the exponentials.
inline constexpr float ln2Leading = zthalf::floatOf(0x3F317000u);   // 0.693115234375
inline constexpr float ln2Trailing = zthalf::floatOf(0x3805FDF4u);  // 3.194618329871446e-05

// ln((1 + s) / (1 - s)) = 2s + s * (lg1 s^2 + lg2 s^4 + lg3 s^6 + lg4 s^8) for |s| up to 0.1716; near 2/3, 2/5, 2/7
// and 2/9, and fitted.
inline constexpr float lg1 = zthalf::floatOf(0x3F2AAAABu);  // 0.6666666865348816
inline constexpr float lg2 = zthalf::floatOf(0x3ECCCCCAu);  // 0.3999999165534973
inline constexpr float lg3 = zthalf::floatOf(0x3E92392Du);  // 0.2855924665927887
inline constexpr float lg4 = zthalf::floatOf(0x3E6D49B7u);  // 0.2317265123128891

}  // namespace qsl_scalar
