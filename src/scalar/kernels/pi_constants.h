// Multiples of pi in two parts.
#pragma once

#include "core/bits.h"

namespace qsl_scalar {

// The upper part is the multiple rounded to float, the lower one the rest, rounded. Of pi/2 the rest is kept with its
// sign turned: pi/2 = halfPiUpper - halfPiExcess.
inline constexpr float piUpper = zthalf::floatOf(0x40490FDBu);         // 3.1415927410125732
inline constexpr float piLower = zthalf::floatOf(0xB3BBBD2Eu);         // -8.742277657347586e-08
inline constexpr float halfPiUpper = zthalf::floatOf(0x3FC90FDBu);     // 1.5707963705062866
inline constexpr float halfPiExcess = zthalf::floatOf(0x333BBD2Eu);    // 4.371138828673793e-08
inline constexpr float quarterPiUpper = zthalf::floatOf(0x3F490FDBu);  // 0.7853981852531433
inline constexpr float quarterPiLower = zthalf::floatOf(0xB2BBBD2Eu);  // -2.1855694143368964e-08

}  // namespace qsl_scalar
