// z 2^w of two complex halves. A source of its own: what is linked without a host must not need it.
#include "host/api/warnings.h"
#include "zthalf/half_scalar.h"

namespace half_scalar {

std::complex<half_t> pow2(std::complex<half_t> z, std::complex<half_t> w) {
  zthalf::warnOfIgnoredImaginaryPart();
  return {pow2(z.real(), w.real()), half_t{0}};
}

}  // namespace half_scalar
