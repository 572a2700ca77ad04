// Pairs of a real and an imaginary part.
#include "elementwise/expanding.h"
#include "scalar/functors/sign_and_class_functors.h"

namespace half {

ZTHALF_EXPANDING(realToComplex, scalar::emulated::realToComplexFtor)

ZTHALF_PAIRING_ENTRIES(ZTHALF_BINARY_ROW)

}  // namespace half
