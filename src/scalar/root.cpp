#include "scalar/root.h"

#include "zthalf/half_scalar.h"

namespace half_scalar {

half_t sqrt(half_t x) { return {zthalf::sqrtOf(x.bits)}; }
half_t rsqrt(half_t x) { return {zthalf::rsqrtOf(x.bits)}; }

}  // namespace half_scalar
