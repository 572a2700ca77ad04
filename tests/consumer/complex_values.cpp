// Complex halves in a user's program: every way to write an operation gives one result. The exit status is 1 if not.
#include <zthalf/zthalf.h>

#include <algorithm>
#include <complex>
#include <cstdint>
#include <cstdio>
#include <numeric>
#include <vector>

namespace {

using complexHalf = std::complex<half_t>;

std::uint32_t bitsOf(complexHalf z) { return z.real().bits | std::uint32_t{z.imag().bits} << 16; }

struct difference {
  char const* what;
  unsigned long count = 0;

  void note(complexHalf one, complexHalf other) { count += bitsOf(one) != bitsOf(other); }
};

template <class X, class Y>
complexHalf quotientOfArrays(X x, Y y) {
  complexHalf result;
  unsigned long const dims[] = {1};
  half_vector::rdivide(&x, &y, &result, 1, 1, dims, 1, 1, dims, 1, 1, dims);
  return result;
}

}  // namespace

int main() {
  difference sums{"+="}, differences{"-="}, products{"*="}, quotients{"/="}, folded{"a fold"}, real{"/ real"},
      left{"real /"}, conjugates{"conj"};
  std::uint64_t state = 1;
  const auto next = [&] {
    state = state * 6364136223846793005u + 1442695040888963407u;
    // One pattern in eight is a zero, an infinity or a NaN.
    static const std::uint16_t special[] = {0x0000, 0x8000, 0x7C00, 0xFC00, 0x7E00, 0xFD01, 0x7C01, 0xFE00};
    const auto pattern = static_cast<std::uint16_t>(state >> 48);
    return half_t{(state >> 40 & 7) == 0 ? special[state >> 36 & 7] : pattern};
  };
  for (int i = 0; i < 200000; ++i) {
    const complexHalf x{next(), next()}, y{next(), next()};
    const half_t h = next();
    complexHalf z = x;
    sums.note(z += y, x + y);
    differences.note((z = x) -= y, x - y);
    products.note((z = x) *= y, x * y);
    quotients.note((z = x) /= y, x / y);
    const complexHalf several[] = {x, y, z};
    folded.note(std::accumulate(several, several + 3, complexHalf{}), complexHalf{} + x + y + z);
    real.note(x / h, quotientOfArrays(x, h));
    left.note(h / x, quotientOfArrays(h, x));
    conjugates.note(std::conj(x), half_scalar::conj(x));
  }
  bool right = true;
  for (const difference& d : {sums, differences, products, quotients, folded, real, left, conjugates}) {
    if (d.count != 0) std::printf("%s: %lu of 200000 differ\n", d.what, d.count);
    right = right && d.count == 0;
  }
  return right ? 0 : 1;
}
