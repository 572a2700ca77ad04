#include "scalar/multiply_add.h"

#include <cmath>
#include <initializer_list>

#include "zthalf/half_scalar.h"

namespace zthalf {

double fusedMultiplyAdd(double x, double y, double z) {
  const double plain = std::fma(x, y, z);
  if (plain == plain) return plain;
  for (const double operand : {x, y, z}) {
    if (isSignalling(operand)) return quieted(operand);
  }
  for (const double operand : {x, y, z}) {
    if (operand != operand) return operand;
  }
  return defaultNaN<double>;
}

}  // namespace zthalf

namespace half_scalar {

// A NaN is rare, and settling one costs as much as the rest.
half_t fma(half_t x, half_t y, half_t z) {
  const std::uint16_t plain = zthalf::plainMultiplyAdd(x.bits, y.bits, z.bits);
  return {zthalf::pattern::isNaN(plain) ? zthalf::multiplyAdd(x.bits, y.bits, z.bits) : plain};
}

}  // namespace half_scalar
