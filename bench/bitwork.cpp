// Operations on the patterns alone. The floor is a copy of the same bytes.
#include "bench/rows.h"
#include "zthalf/half_vector.h"

namespace bench {
namespace {

using complexHalf = std::complex<half_t>;

const bool added = addRows([] {
  unaryRow<half_t, half_t>("uminus", half_vector::uminus);
  unaryInPlace<half_t, half_t>("uminus", half_vector::uminus);
  unaryHardships<half_t, half_t>("uminus", half_vector::uminus);
  unaryRow<half_t, half_t>("abs", half_vector::abs);
  unaryRow<half_t, half_t>("sign", half_vector::sign);
  unaryInPlace<half_t, half_t>("sign", half_vector::sign);
  unaryRow<half_t, bool>("isnan", half_vector::isnan);
  unaryRow<half_t, bool>("isinf", half_vector::isinf);
  unaryRow<half_t, bool>("isfinite", half_vector::isfinite);
  unaryRow<complexHalf, complexHalf>("complex-uminus", half_vector::uminus);
  unaryInPlace<complexHalf, complexHalf>("complex-uminus", half_vector::uminus);
  unaryRow<complexHalf, complexHalf>("conj", half_vector::conj);
  unaryRow<complexHalf, half_t>("real", half_vector::real);
  unaryRow<complexHalf, half_t>("imag", half_vector::imag);
  unaryRow<half_t, complexHalf>("real-to-complex", half_vector::realToComplex);
  unaryRow<complexHalf, bool>("complex-isnan", half_vector::isnan);
  unaryRow<complexHalf, bool>("complex-isinf", half_vector::isinf);
  unaryRow<complexHalf, bool>("complex-isfinite", half_vector::isfinite);
});

}  // namespace
}  // namespace bench
