// Logarithms of a complex half, and the complex logarithms of a real one.
#pragma once

#include "scalar/complex/complex_value.h"

namespace zthalf {

// Of a number that has no real logarithm: the one of its magnitude and an imaginary part of pi, divided by the
// logarithm of the base. Of all else the real logarithm and +0.
complexHalf complexLogOf(std::uint16_t x);
complexHalf complexLog1pOf(std::uint16_t x);
complexHalf complexLog2Of(std::uint16_t x);
complexHalf complexLog10Of(std::uint16_t x);

// A zero imaginary part of either sign leads to these; on the imaginary axis the imaginary part is half of pi as well.
complexHalf logOf(complexHalf z);
complexHalf log1pOf(complexHalf z);
complexHalf log2Of(complexHalf z);
complexHalf log10Of(complexHalf z);

}  // namespace zthalf
