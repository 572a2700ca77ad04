#include <algorithm>
#include <cstdint>

#include "core/instruction_level.h"
#include "core/patterns.h"
#include "linalg/blas_impl.h"

namespace half::blas::impl {

namespace {

// Halves are ordered by magnitude as their patterns without sign are, infinities last. A NaN is larger than nothing.
ZTHALF_INLINE std::int16_t rankOf(std::uint16_t x) {
  return static_cast<std::int16_t>(zthalf::pattern::magnitudeOf(x) & ~zthalf::pattern::nanMask(x));
}

// The largest rank of n elements.
struct largestRankPass {
  static constexpr bool isWide = true;
  ZTHALF_INLINE static void run(unsigned short const* x, unsigned long n, std::int16_t* largest) {
    std::int16_t most = 0;
    for (unsigned long i = 0; i < n; ++i) most = zthalf::largerOf(most, rankOf(x[i]));
    *largest = most;
  }
};

// The first place of the largest rank: block by block, and then in the first block that has it.
unsigned long placeOfLargest(unsigned long n, unsigned short const* x) {
  constexpr unsigned long blockSize = 256;
  const auto largestRank =
      zthalf::leveled<largestRankPass, unsigned short const*, unsigned long, std::int16_t*>::chosen();
  std::int16_t best = rankOf(x[0]);
  unsigned long block = n;
  for (unsigned long begin = 0; begin < n; begin += blockSize) {
    std::int16_t rank;
    largestRank(x + begin, std::min(blockSize, n - begin), &rank);
    if (rank > best) {
      best = rank;
      block = begin;
    }
  }
  if (block == n) return 0;
  while (rankOf(x[block]) != best) ++block;
  return block;
}

}  // namespace

unsigned long ihamax(unsigned long n, unsigned short* x, unsigned long incx) {
  if (n < 2 || incx == 0) return 0;
  if (zthalf::pattern::isNaN(x[0])) return 0;  // nothing is larger than it
  if (incx == 1) return placeOfLargest(n, x);
  std::int16_t best = rankOf(x[0]);
  unsigned long index = 0;
  for (unsigned long i = 1; i < n; ++i) {
    const std::int16_t rank = rankOf(x[i * incx]);
    if (rank > best) {
      best = rank;
      index = i;
    }
  }
  return index;
}

}  // namespace half::blas::impl
