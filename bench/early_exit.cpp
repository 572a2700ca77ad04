// Scans that end at the first element that answers them. From 2049 elements on they run on several threads.
#include "bench/rows.h"
#include "zthalf/half_vector.h"

namespace bench {
namespace {

using complexHalf = std::complex<half_t>;

// All imaginary parts are zero but the one at the place given; n for none.
auto scan(unsigned long n, unsigned long place) {
  return [=] {
    array<complexHalf> source(n);
    for (unsigned long i = 0; i < n; ++i)
      source.data()[i] = {half_t{0x3C00}, half_t{i == place ? half_t{1} : half_t{0}}};
    return [=] {
      bool all = half_vector::isImagZero(source.data(), n);
      benchmark::DoNotOptimize(all);
    };
  };
}

const bool added = addRows([] {
  for (const unsigned long n : {2048ul, leavesNearCaches}) {
    measureOurs({"is-imag-zero", "all-zero", n, true}, scan(n, n));
    measureOurs({"is-imag-zero", "found-first", n, true}, scan(n, 0));
    measureOurs({"is-imag-zero", "found-halfway", n, true}, scan(n, n / 2));
  }
});

}  // namespace
}  // namespace bench
