// Powers of two arrays: real, complex, of real operands with a complex result, and those that stop.
#include "elementwise/expanding.h"
#include "frame/loops/early_exit_loop.h"
#include "scalar/functors/power_functors.h"

namespace half {

namespace functor = scalar::emulated;

ZTHALF_EXPANDING(power, functor::onePowerFtor)
ZTHALF_EXPANDING(cplxPower, functor::cplxPowerFtor)

template <class Left, class Right>
void power(Left* a, Right* b, std::complex<fp16binary_t>* c, ZTHALF_THREE_SHAPES) {
  half_utils::halfBinaryOp<functor::cplxPowerFtor>(a, b, c, ZTHALF_THREE_SHAPE_NAMES);
}

// Counts alone say how elements meet: the right operand's is the divisor of the output's index.
template <class Left, class Right, class Out>
bool powerWithEarlyExit(Left* a, Right* b, Out* c, unsigned long, unsigned long, unsigned long const*, unsigned long nb,
                        unsigned long, unsigned long const*, unsigned long nc, unsigned long, unsigned long const*) {
  return templates::emulated::halfBinarySimpleLoopWithEarlyExit(a, b, c, nb, nc, functor::onePowerFtor{},
                                                                functor::leavesTheRealLine{});
}

ZTHALF_POWER_ENTRIES(ZTHALF_BINARY_ROW)
ZTHALF_COMPLEX_POWER_ENTRIES(ZTHALF_BINARY_ROW)
ZTHALF_REAL_TO_COMPLEX_POWER_ENTRIES(ZTHALF_REAL_TO_COMPLEX_POWER_ROW)
ZTHALF_POWER_EARLY_EXIT_ENTRIES(ZTHALF_POWER_EARLY_EXIT_ROW)

}  // namespace half
