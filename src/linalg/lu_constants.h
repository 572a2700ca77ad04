// What both factorisations hand to the routines they call.
#pragma once

#include "zthalf/half_scalar.h"
#include "zthalf/half_t.h"

namespace zthalf::linalg {

// info where the leading dimension is smaller than the rows. The work is done all the same.
inline constexpr int tooSmallLeadingDimension = -4;

inline half_t halfOne() { return {half_scalar::impl::convertDoubleToHalf(1.0)}; }
inline half_t halfZero() { return {half_scalar::impl::convertDoubleToHalf(0.0)}; }

// Options are taken by pointers to what may be written.
struct solveOptions {
  char left[2] = "L", lower[2] = "L", plain[2] = "N", unit[2] = "U";
};

}  // namespace zthalf::linalg
