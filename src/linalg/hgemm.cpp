// The two branches of hgemm. All of c is computed before any of it is written, so a caller's matrices may lie in each
// other, as they do where a leading dimension is smaller than the rows.
#include "linalg/blas_impl.h"
#include "linalg/blocked_product.h"
#include "linalg/half_chains.h"
#include "linalg/options.h"

namespace half::blas::impl {

namespace {

using zthalf::linalg::operand;

struct target {
  unsigned short* c;
  unsigned long m, n, ldc;

  void write(unsigned short const* dense) const {
    for (unsigned long j = 0; j < n; ++j) std::copy_n(dense + j * m, m, c + j * ldc);
  }
};

fp16binary_t const* halves(unsigned short const* patterns) { return reinterpret_cast<fp16binary_t const*>(patterns); }

}  // namespace

void hgemm(char* transa, char*, unsigned long m, unsigned long n, unsigned long k, unsigned short alpha,
           unsigned short* a, unsigned long lda, unsigned short* b, unsigned long ldb, unsigned short beta,
           unsigned short* c, unsigned long ldc) {
  namespace pattern = zthalf::pattern;
  if (m == 0 || n == 0) return;
  if (k == 0 && beta == pattern::one) return;
  if (pattern::isZero(alpha)) return;  // c stays, whatever beta is
  const target to{c, m, n, ldc};
  if (zthalf::linalg::isOption(transa, 'n')) {
    const operand<float> left(halves(a), lda), right(halves(b), ldb, alpha);
    zthalf::linalg::blockedProduct<float, false, true> product(left, right, nullptr, m, k, n, {beta, c, ldc});
    product.run();
    to.write(product.out());
  } else {
    zthalf::linalg::halfChains chains(m, n, k, {a, lda}, {b, ldb});
    chains.run(alpha, {beta, c, ldc});
    to.write(chains.out());
  }
}

}  // namespace half::blas::impl
