// Conversions in chunks of one size: a pass has one body without a remainder loop, which keeps it small, and short
// arrays, of which products have many, are converted in vectors as well.
#pragma once

#include <cstring>

#include "core/bits.h"

namespace zthalf::linalg {

inline constexpr unsigned long chunkSize = 32;

// convert(in, at) gets the numbers of chunkSize elements, `parts` of them each, from index `at` on; what follows the
// last element is zeros.
template <unsigned parts, class In, class Convert>
ZTHALF_INLINE void forEachChunk(In const* from, unsigned long n, Convert convert) {
  for (unsigned long at = 0; at < n; at += chunkSize) {
    In const* chunk = from + parts * at;
    In last[parts * chunkSize];
    if (n - at < chunkSize) {
      std::memset(last, 0, sizeof last);
      std::memcpy(last, chunk, parts * (n - at) * sizeof(In));
      chunk = last;
    }
    convert(chunk, at);
  }
}

template <class Out>
ZTHALF_INLINE void keepWholeChunk(Out* to, Out const (&chunk)[chunkSize]) {
  std::memcpy(to, chunk, sizeof chunk);
}

// The first count elements of a chunk, where they belong.
template <class Out>
ZTHALF_INLINE void keepChunk(Out* to, Out const* chunk, unsigned long count, unsigned parts) {
  if (count == chunkSize) {
    std::memcpy(to, chunk, parts * chunkSize * sizeof(Out));
  } else {
    std::memcpy(to, chunk, parts * count * sizeof(Out));
  }
}

}  // namespace zthalf::linalg
