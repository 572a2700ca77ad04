#include "host/ulp_loops.h"

#include <array>
#include <complex>
#include <tuple>
#include <utility>

#include "elementwise/binary_op.h"
#include "scalar/functors/spacing_functors.h"

namespace zthalf {

namespace {

using elementOfKind =
    std::tuple<fp16binary_t, float, double, std::complex<fp16binary_t>, std::complex<float>, std::complex<double>>;
static_assert(std::tuple_size_v<elementOfKind> == elementKinds);

template <unsigned kindA, unsigned kindB>
void loop(void* a, void* b, double* out, unsigned long n) {
  using A = std::tuple_element_t<kindA, elementOfKind>;
  using B = std::tuple_element_t<kindB, elementOfKind>;
  half_utils::halfBinaryOpParallelLoop(static_cast<A*>(a), static_cast<B*>(b), out, n,
                                       half::scalar::emulated::ulpFtor{});
}

template <unsigned... pairs>
constexpr std::array<ulpLoop, sizeof...(pairs)> allLoops(std::integer_sequence<unsigned, pairs...>) {
  return {loop<pairs / elementKinds, pairs % elementKinds>...};
}
constexpr auto loops = allLoops(std::make_integer_sequence<unsigned, elementKinds * elementKinds>{});

}  // namespace

ulpLoop ulpLoopFor(elementKind a, elementKind b) { return loops[a * elementKinds + b]; }

}  // namespace zthalf
