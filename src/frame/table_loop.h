// Loops that read a result table where the array is long enough.
// Internal: promises nothing to users of the library.
#pragma once

#include "frame/early_exit_loop.h"
#include "frame/simple_loop.h"
#include "tables/result_tables.h"
#include "zthalf/half_t.h"

namespace half_utils {

inline constexpr unsigned long tableFrom = 2048;

inline constexpr bool readsTable(unsigned long n) { return n >= tableFrom; }

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
  if (readsTable(n)) return unaryOpSimpleLoop(src, dst, n, lookUpFtor<Ftor>{});
  unaryOpSimpleLoop(src, dst, n, f);
}

template <class Ftor, class Pred>
bool unaryTableLoopWithEarlyExit(fp16binary_t* src, fp16binary_t* dst, unsigned long n, Ftor f, Pred stop) {
  using half::templates::emulated::halfUnarySimpleLoopWithEarlyExit;
  if (readsTable(n)) return halfUnarySimpleLoopWithEarlyExit(src, dst, n, lookUpFtor<Ftor>{}, stop);
  return halfUnarySimpleLoopWithEarlyExit(src, dst, n, f, stop);
}

}  // namespace half_utils
