// The real functions of single halves.
#include "scalar/functors/elementary_functors.h"
#include "zthalf/half_scalar.h"

namespace half_scalar {

#define ZTHALF_DEFINE_FUNCTION(function, ...) \
  half_t function(half_t x) { return {half::scalar::emulated::function##Ftor{}({x.bits}).bits}; }
ZTHALF_ELEMENTARY_FUNCTIONS(ZTHALF_DEFINE_FUNCTION)
#undef ZTHALF_DEFINE_FUNCTION

}  // namespace half_scalar
