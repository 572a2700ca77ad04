#include "scalar/multiply_add.h"

#include <cmath>
#include <initializer_list>

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
