#include "core/instruction_level.h"
#include "linalg/blas_impl.h"
#include "linalg/scaled_half.h"

namespace half::blas::impl {

namespace {

struct scalePass {
  static constexpr bool isWide = true;
  ZTHALF_INLINE static void run(unsigned short* x, unsigned long n, unsigned short alpha) {
    for (unsigned long i = 0; i < n; ++i) x[i] = zthalf::linalg::scaledHalf(alpha, x[i]);
  }
};

}  // namespace

// With a stride of 0 the bound is 0, and nothing is done.
void hscal(unsigned long n, unsigned short alpha, unsigned short* x, unsigned long incx) {
  if (incx == 1)
    return zthalf::leveled<scalePass, unsigned short*, unsigned long, unsigned short>::chosen()(x, n, alpha);
  for (unsigned long i = 0; i < n * incx; i += incx) x[i] = zthalf::linalg::scaledHalf(alpha, x[i]);
}

}  // namespace half::blas::impl
