// Quotients of halves with a complex operand, out of line.
#include "scalar/complex/quotient.h"

#include "scalar/complex/quotient_lanes.h"

namespace zthalf {

complexHalf quotientOfHalves(complexHalf x, complexHalf y) { return quotientOf(x, y); }
complexHalf quotientOfHalves(complexHalf x, std::uint16_t y) { return quotientOf(x, y); }
complexHalf quotientOfHalves(std::uint16_t x, complexHalf y) { return quotientOf(x, y); }

}  // namespace zthalf
