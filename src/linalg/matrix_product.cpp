#include "linalg/matrix_product.h"

#include "linalg/blocked_product.h"
#include "linalg/tiny_product.h"

namespace zthalf::linalg {

template <class Base, bool isComplex>
void multiply(operand<Base> const& a, operand<Base> const& b, std::uint16_t* out, unsigned long m, unsigned long k,
              unsigned long n) {
  if (m == 0 || n == 0) return;
  if constexpr (std::is_same_v<Base, float> && !isComplex) {
    if (multiplyTiny(a, b, out, m, k, n)) return;
  }
  blockedProduct<Base, isComplex, false>(a, b, out, m, k, n).run();
}

template void multiply<float, false>(operand<float> const&, operand<float> const&, std::uint16_t*, unsigned long,
                                     unsigned long, unsigned long);
template void multiply<double, false>(operand<double> const&, operand<double> const&, std::uint16_t*, unsigned long,
                                      unsigned long, unsigned long);
template void multiply<float, true>(operand<float> const&, operand<float> const&, std::uint16_t*, unsigned long,
                                    unsigned long, unsigned long);
template void multiply<double, true>(operand<double> const&, operand<double> const&, std::uint16_t*, unsigned long,
                                     unsigned long, unsigned long);

}  // namespace zthalf::linalg
