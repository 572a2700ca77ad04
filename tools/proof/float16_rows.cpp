// Rows of loops over the compiler's own half type, as one would write them.
#include <cmath>

#include "tools/proof/peer.h"

// GCC has the type's limits before it has the type in C++: on ARM until version 13.
#if defined(__FLT16_MAX__) && (defined(__x86_64__) || defined(__clang__) || __GNUC__ >= 13)
namespace {

struct float16Loops {
  using half = _Float16;

  template <class Accumulator>
  static Accumulator sum(half const* x, unsigned long n) {
    Accumulator total = 0;
    for (unsigned long i = 0; i < n; ++i) total += x[i];
    return total;
  }

  static void times(half const* x, half const* y, half* out, unsigned long n) {
    for (unsigned long i = 0; i < n; ++i) out[i] = x[i] * y[i];
  }

  static void exp(half const* x, half* out, unsigned long n) {
    for (unsigned long i = 0; i < n; ++i) out[i] = static_cast<half>(std::exp(static_cast<float>(x[i])));
  }

  static void complexTimes(half const* z, half const* w, half* out, unsigned long n) {
    for (unsigned long i = 0; i < 2 * n; i += 2) {
      out[i] = z[i] * w[i] - z[i + 1] * w[i + 1];
      out[i + 1] = z[i] * w[i + 1] + z[i + 1] * w[i];
    }
  }
};

}  // namespace

int main() { return proof::printPeerRows<float16Loops>("_Float16 loops", PROOF_SET); }
#else
int main() { return 0; }  // the compiler has no such type here: no rows
#endif
