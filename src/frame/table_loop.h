// Loops that read a result table where the array is long enough.
// Internal: promises nothing to users of the library.
#pragma once

#include "frame/early_exit_loop.h"
#include "frame/simple_loop.h"
#include "tables/result_tables.h"
#include "zthalf/half_t.h"

namespace half_utils {

// From how many elements on a pass reads the table: where it wins although no line of the table is in a cache. Fetching
// costs about 4.5 ns a line and half a microsecond to begin with, at most 2,048 lines; with a warm table an element
// costs 0.25 ns. A function that is computed one element at a time takes 9 to 28 ns and loses from about 90 elements
// on; one that runs in vector lanes, 0.6 to 1.2 ns at the highest level, loses once the fetching is paid for.
template <class Ftor>
inline constexpr unsigned long tableFrom = zthalf::earnsLevels<Ftor> ? 32768 : 128;

// What Ftor computes, read from its table.
template <class Ftor>
struct lookUpFtor {
  static constexpr unsigned long grain = Ftor::grain;
  static constexpr bool baseOnly = true;  // one load after the other
  ZTHALF_INLINE fp16binary_t operator()(fp16binary_t x) const {
    return {zthalf::results::tableOf<Ftor>::results[x.bits]};
  }
};

template <class Ftor>
void unaryOpTableLoop(fp16binary_t* src, fp16binary_t* dst, unsigned long n, Ftor f) {
  if (n >= tableFrom<Ftor>) return unaryOpSimpleLoop(src, dst, n, lookUpFtor<Ftor>{});
  unaryOpSimpleLoop(src, dst, n, f);
}

template <class Ftor, class Pred>
bool unaryTableLoopWithEarlyExit(fp16binary_t* src, fp16binary_t* dst, unsigned long n, Ftor f, Pred stop) {
  using half::templates::emulated::halfUnarySimpleLoopWithEarlyExit;
  if (n >= tableFrom<Ftor>) return halfUnarySimpleLoopWithEarlyExit(src, dst, n, lookUpFtor<Ftor>{}, stop);
  return halfUnarySimpleLoopWithEarlyExit(src, dst, n, f, stop);
}

}  // namespace half_utils
