// Which NaN an output of a product is, and which infinity a complex one.
#pragma once

#include "linalg/operand.h"
#include "linalg/result.h"

namespace zthalf::linalg {

// Decides anew the outputs of a stored tile that hold a NaN: those of rows i0 and columns j0 onwards of the whole
// product, with inner dimension k.
template <class Base, bool isComplex>
void settleNaNs(operand<Base> const& a, operand<Base> const& b, unsigned long k, unsigned long i0, unsigned long j0,
                finishedTile<Base> const& tile);

}  // namespace zthalf::linalg
