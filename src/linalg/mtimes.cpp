// The matrix product of two arrays: its two routes, and the working type that goes with the operands' types.
#include "core/instantiate.h"
#include "linalg/matrix_product.h"
#include "zthalf/half_ops.h"

namespace half {

namespace {

template <class T>
using partOf = typename zthalf::linalg::storedPart<T>::type;

// Two halves, or a half and a single, multiply in float; a double on either side makes it double.
template <class Left, class Right>
using baseFor =
    std::conditional_t<std::is_same_v<partOf<Left>, double> || std::is_same_v<partOf<Right>, double>, double, float>;

}  // namespace

// An inner dimension of 1 is an outer product, in which every output is a single product: the elementwise one, with its
// own rules for zeros, NaNs and complex numbers.
template <class Left, class Right, class Out>
void mtimes(Left* a, Right* b, Out* c, unsigned long m, unsigned long k, unsigned long n) {
  using namespace zthalf::linalg;
  if (k == 1) {
    const unsigned long column[] = {m, 1}, row[] = {1, n}, matrix[] = {m, n};
    return times<Left, Right, Out>(a, b, c, m, 2, column, n, 2, row, m * n, 2, matrix);
  }
  using base = baseFor<Left, Right>;
  multiply<base, isComplexElement<Out>>(operand<base>(a, m), operand<base>(b, k), reinterpret_cast<std::uint16_t*>(c),
                                        m, k, n);
}

ZTHALF_PRODUCT_ENTRIES(ZTHALF_PRODUCT_ROW)

}  // namespace half
