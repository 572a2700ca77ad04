// The elementary functions of single complex halves.
#include "scalar/complex/elementary_functions.h"

#include "scalar/complex/exponential.h"
#include "scalar/complex/inverse_functions.h"
#include "scalar/complex/logarithm.h"
#include "scalar/complex/power.h"
#include "scalar/complex/root.h"
#include "scalar/complex/trigonometric.h"
#include "zthalf/half_scalar.h"

namespace half_scalar {

using zthalf::bare;
using zthalf::dressed;

#define ZTHALF_DEFINE_FUNCTION(function, Function, body) \
  std::complex<half_t> function(std::complex<half_t> z) { return dressed(zthalf::body(bare(z))); }
ZTHALF_COMPLEX_FUNCTIONS(ZTHALF_DEFINE_FUNCTION)
#undef ZTHALF_DEFINE_FUNCTION

std::complex<half_t> power(std::complex<half_t> z, std::complex<half_t> w) {
  return dressed(zthalf::complexPowerOf(bare(z), bare(w)));
}

}  // namespace half_scalar
