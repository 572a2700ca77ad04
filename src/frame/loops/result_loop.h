// Loops that read a result table where the array is long enough.
#pragma once

#include "frame/loops/early_exit_loop.h"
#include "frame/loops/look_up.h"
#include "frame/loops/simple_loop.h"
#include "results/result_tables.h"
#include "zthalf/half_t.h"

namespace half_utils {

// From how many elements on a pass reads the table, at each level.
struct tableThresholds {
  unsigned long base, v3, v4;
};

// With a warm table an element costs 0.45 ns; computed it costs this many (AMD EPYC of the Zen 4 kind, ns):
//
//              base       v3          v4
//   exp, log   2.6, 3.9   1.1, 1.6    0.86, 1.17
//   roots      1.6, 1.9   0.70, 0.84  0.43, 0.50
//
// A table no line of which is in a cache costs 2.5 microseconds more where the numbers lie in eight binades of one
// sign, and 6 where they are patterns of all kinds (bench/cold_tables.cpp). The thresholds lie between the counts at
// which these two are paid back, so that a first call never loses much and every later one wins. They suit processors
// that compute more slowly as well: a Zen 3 core takes 1.9 and 2.7 ns for exp and log at level v3. Roots at level v4
// hardly gain; there the number is from an Intel server, whose table took 0.25 ns.
inline constexpr tableThresholds inLanes{2048, 4096, 8192};
inline constexpr tableThresholds quickInLanes{4096, 16384, 32768};
// One element at a time takes 9 to 28 ns, and the first 90 elements or so pay for what they fetch.
inline constexpr tableThresholds oneByOne{128, 128, 128};

template <class Ftor>
inline constexpr bool isQuick = requires {
  requires Ftor::isQuick;
};

template <class Ftor>
inline constexpr tableThresholds thresholdsOf = !zthalf::earnsLevelsFor<Ftor, fp16binary_t> ? oneByOne
                                                : isQuick<Ftor>                             ? quickInLanes
                                                                                            : inLanes;

template <class Ftor>
unsigned long tableFrom() {
  constexpr tableThresholds from = thresholdsOf<Ftor>;
  if constexpr (from.base == from.v4) return from.base;
  switch (zthalf::currentLevel()) {
    case zthalf::instructionLevel::v4:
      return from.v4;
    case zthalf::instructionLevel::v3:
      return from.v3;
    default:
      return from.base;
  }
}

// Short arrays are not asked for a level.
template <class Ftor>
bool readsTable(unsigned long n) {
  return n >= thresholdsOf<Ftor>.base && n >= tableFrom<Ftor>();
}

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
struct unaryPass<lookUpFtor<Ftor>, fp16binary_t, fp16binary_t> {
  static constexpr bool isWide = false;
  static void run(fp16binary_t* src, fp16binary_t* dst, unsigned long n) {
    lookUp(zthalf::results::tableOf<Ftor>::results, src, dst, n);
  }
};

template <class Ftor>
void unaryOpTableLoop(fp16binary_t* src, fp16binary_t* dst, unsigned long n, Ftor f) {
  if (readsTable<Ftor>(n)) return unaryOpSimpleLoop(src, dst, n, lookUpFtor<Ftor>{});
  unaryOpSimpleLoop(src, dst, n, f);
}

template <class Ftor, class Pred>
bool unaryTableLoopWithEarlyExit(fp16binary_t* src, fp16binary_t* dst, unsigned long n, Ftor f, Pred stop) {
  using half::templates::emulated::halfUnarySimpleLoopWithEarlyExit;
  if (readsTable<Ftor>(n)) return halfUnarySimpleLoopWithEarlyExit(src, dst, n, lookUpFtor<Ftor>{}, stop);
  return halfUnarySimpleLoopWithEarlyExit(src, dst, n, f, stop);
}

}  // namespace half_utils
