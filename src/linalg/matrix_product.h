// The product of two dense matrices in a working type, rounded to half once.
#pragma once

#include "linalg/operand.h"

namespace zthalf::linalg {

// out, m by n, is a, m by k, times b, k by n. The inner dimension is not 1; with 0 the outputs are +0. The working type
// is Base, or a complex number of it. Memory is allocated before anything is written.
template <class Base, bool isComplex>
void multiply(operand<Base> const& a, operand<Base> const& b, std::uint16_t* out, unsigned long m, unsigned long k,
              unsigned long n);

}  // namespace zthalf::linalg
