// Loops that stop at the first element that meets a condition, and report it.
#pragma once

#include <algorithm>
#include <cstdlib>
#include <functional>
#include <type_traits>

#include "core/instruction_level.h"
#include "frame/loops/loop_policy.h"
#include "frame/loops/parallel_ranges.h"
#include "frame/loops/simple_loop.h"

namespace half::templates::emulated {

inline constexpr unsigned long earlyExitGrain = 256;

// Whether any of n elements meets the condition, as a wide pass without branches.
template <class Pred, class T>
struct anyPass {
  static constexpr bool isWide = true;
  ZTHALF_INLINE static void run(T* src, unsigned long n, bool* met) {
    unsigned any = 0;
    for (unsigned long i = 0; i < n; ++i) any |= Pred{}(src[i]);
    *met = any != 0;
  }
};

// Elements are looked at in blocks of this size, so that a scan both runs wide and ends early.
inline constexpr unsigned long scanBlock = 512;

template <class Pred, class T>
bool anyMeets(T* src, unsigned long n) {
  const auto pass = zthalf::leveled<anyPass<Pred, T>, T*, unsigned long, bool*>::chosen();
  bool met = false;
  for (unsigned long i = 0; i < n && !met; i += scanBlock) pass(src + i, std::min(scanBlock, n - i), &met);
  return met;
}

// One element after the other. On false, what stands before the stopping element is finished and the rest untouched.
template <class Ftor, class Pred, class In, class Out>
bool unaryWithEarlyExitOneByOne(In* src, Out* dst, unsigned long n, Ftor f, Pred stop) {
  for (unsigned long i = 0; i < n; ++i) {
    if (stop(src[i])) return false;
    dst[i] = f(src[i]);
  }
  return true;
}

// The same result by blocks: a block without a stopping element goes through the wide pass, the first one with such an
// element is walked. Only right where no write can change an element that is still to be looked at.
template <class Ftor, class Pred, class In, class Out>
bool unaryWithEarlyExitByBlocks(In* src, Out* dst, unsigned long n, Ftor f, Pred stop) {
  for (unsigned long i = 0; i < n; i += scanBlock) {
    const unsigned long count = std::min(scanBlock, n - i);
    if (anyMeets<Pred>(src + i, count)) return unaryWithEarlyExitOneByOne(src + i, dst + i, count, f, stop);
    half_utils::unaryOpSimpleLoop(src + i, dst + i, count, f);
  }
  return true;
}

// A body asks for the end of its piece at each step, and so stops soon after another one has cancelled. It asks once:
// the end falls on the beginning at any moment, and of two answers each may be another. Which elements have been
// written on false is not determined.
template <class Range, class Ftor, class Pred, class In, class Out>
void unaryWithEarlyExitPiece(Range const& r, In* src, Out* dst, Ftor f, Pred stop) {
  for (unsigned long i = r.begin(); i < r.end(); ++i) {
    if (stop(src[i])) {
      r.cancel();
    } else {
      dst[i] = f(src[i]);
    }
  }
}

template <class Ftor, class Pred, class In, class Out>
bool unaryWithEarlyExitParallel(In* src, Out* dst, unsigned long n, Ftor f, Pred stop) {
  return half_utils::forRangesUntilCancelled(n, earlyExitGrain, [=](half_utils::cancellableIndices const& r) {
    unaryWithEarlyExitPiece(r, src, dst, f, stop);
  });
}

// dst[i] = f(src[i]) in ascending order up to the first element for which stop is true. True when there is none; on
// false that element's place in dst and all later ones are untouched.
template <class Ftor, class Pred, class In, class Out>
bool halfUnarySimpleLoopWithEarlyExit(In* src, Out* dst, unsigned long n, Ftor f, Pred stop) {
  static_assert(std::is_empty_v<Ftor> && std::is_empty_v<Pred>);
  if (half_utils::forks(n)) return unaryWithEarlyExitParallel(src, dst, n, f, stop);
  const auto source = reinterpret_cast<std::uintptr_t>(src);
  const auto destination = reinterpret_cast<std::uintptr_t>(dst);
  const bool apart = destination + n * sizeof(Out) <= source || source + n * sizeof(In) <= destination;
  const bool inPlace = destination == source && sizeof(In) == sizeof(Out);
  return apart || inPlace ? unaryWithEarlyExitByBlocks(src, dst, n, f, stop)
                          : unaryWithEarlyExitOneByOne(src, dst, n, f, stop);
}

// The element pair of output i: the quotient and the remainder of i by divisor, as ints. So a scalar on the left, a
// scalar on the right (divisor 1) and a row against a column meet as expected. Two arrays of equal size do not meet one
// by one: a[0] meets every b. That is the definition.
inline std::div_t pairOf(unsigned long i, unsigned long divisor) {
  return std::div(static_cast<int>(i), static_cast<int>(divisor));
}

template <class Range, class Ftor, class Pred, class Left, class Right, class Out>
void binaryWithEarlyExitPiece(Range const& r, Left* a, Right* b, Out* dst, unsigned long divisor, Ftor f, Pred stop) {
  for (unsigned long i = r.begin(); i < r.end(); ++i) {
    const std::div_t pair = pairOf(i, divisor);
    if (stop(a[pair.quot], b[pair.rem])) {
      r.cancel();
    } else {
      dst[i] = f(a[pair.quot], b[pair.rem]);
    }
  }
}

template <class Ftor, class Pred, class Left, class Right, class Out>
bool binaryWithEarlyExitParallel(Left* a, Right* b, Out* dst, unsigned long divisor, unsigned long n, Ftor f,
                                 Pred stop) {
  return half_utils::forRangesUntilCancelled(n, earlyExitGrain, [=](half_utils::cancellableIndices const& r) {
    binaryWithEarlyExitPiece(r, a, b, dst, divisor, f, stop);
  });
}

// dst[i] = f(a[i / divisor], b[i % divisor]) up to the first pair for which stop is true; reports as the unary loop.
template <class Ftor, class Pred, class Left, class Right, class Out>
bool halfBinarySimpleLoopWithEarlyExit(Left* a, Right* b, Out* dst, unsigned long divisor, unsigned long n, Ftor f,
                                       Pred stop) {
  if (half_utils::forks(n)) return binaryWithEarlyExitParallel(a, b, dst, divisor, n, f, stop);
  for (unsigned long i = 0; i < n; ++i) {
    const std::div_t pair = pairOf(i, divisor);
    if (stop(a[pair.quot], b[pair.rem])) return false;
    dst[i] = f(a[pair.quot], b[pair.rem]);
  }
  return true;
}

// A piece by blocks. Between them the end is asked for, once: whether there is a block and how long it is must follow
// from one answer.
template <class Pred, class Range, class T>
void scanPiece(Range const& r, T* src) {
  for (unsigned long i = r.begin(), end; i < (end = r.end()); i += scanBlock) {
    if (anyMeets<Pred>(src + i, std::min(scanBlock, end - i))) r.cancel();
  }
}

// True when no element of src meets the condition. Above the threshold the scan really is parallel.
template <class Pred, class T>
bool halfUnarySimpleReduceWithEarlyExit(T* src, unsigned long n, Pred, unsigned long threshold, unsigned long grain) {
  static_assert(std::is_empty_v<Pred>);
  if (n <= threshold) return !anyMeets<Pred>(src, n);
  return half_utils::forRangesUntilCancelled(n, grain,
                                             [=](half_utils::cancellableIndices const& r) { scanPiece<Pred>(r, src); });
}

}  // namespace half::templates::emulated
