// The loop under every simple unary operation: one element in, one or two out.
#pragma once

#include <type_traits>

#include "core/instruction_level.h"
#include "frame/loops/loop_policy.h"
#include "frame/loops/parallel_ranges.h"

namespace half_utils {

// A plain ascending loop. Where source and destination overlap, each element is read after the earlier ones
// were written; the compiler checks for overlap itself before it takes a wide form of the loop.
template <class Ftor, class In, class Out>
struct unaryPass {
  static constexpr bool isWide = zthalf::earnsLevelsFor<Ftor, In>;
  ZTHALF_INLINE static void run(In* src, Out* dst, unsigned long n) {
    for (unsigned long i = 0; i < n; ++i) dst[i] = Ftor{}(src[i]);
  }
};

template <class Ftor, class In, class Out>
struct twoOutPass {
  static constexpr bool isWide = zthalf::earnsLevels<Ftor>;
  ZTHALF_INLINE static void run(In* src, Out* first, Out* second, unsigned long n) {
    for (unsigned long i = 0; i < n; ++i) Ftor{}(src[i], first[i], second[i]);
  }
};

template <class Ftor, class In, class Out>
void unaryOpParallel(In* src, Out* dst, unsigned long n, Ftor) {
  const auto pass = zthalf::leveled<unaryPass<Ftor, In, Out>, In*, Out*, unsigned long>::chosen();
  forAffineRanges(n, Ftor::grain,
                  [=](unsigned long begin, unsigned long end) { pass(src + begin, dst + begin, end - begin); });
}

// dst[i] = f(src[i]) for i from 0 to n - 1, in ascending order also where the arrays overlap.
template <class Ftor, class In, class Out>
void unaryOpSimpleLoop(In* src, Out* dst, unsigned long n, Ftor f) {
  static_assert(std::is_empty_v<Ftor>, "a functor keeps nothing from one element to the next");
  if (forks(n)) return unaryOpParallel(src, dst, n, f);
  zthalf::leveled<unaryPass<Ftor, In, Out>, In*, Out*, unsigned long>::chosen()(src, dst, n);
}

template <class Ftor, class In, class Out>
void twoOutParallel(In* src, Out* first, Out* second, unsigned long n, Ftor) {
  const auto pass = zthalf::leveled<twoOutPass<Ftor, In, Out>, In*, Out*, Out*, unsigned long>::chosen();
  forAffineRanges(n, Ftor::grain, [=](unsigned long begin, unsigned long end) {
    pass(src + begin, first + begin, second + begin, end - begin);
  });
}

// f(src[i], first[i], second[i]) for i from 0 to n - 1; f writes both outputs of its element.
template <class Ftor, class In, class Out>
void twoOutSimpleLoop(In* src, Out* first, Out* second, unsigned long n, Ftor f) {
  static_assert(std::is_empty_v<Ftor>, "a functor keeps nothing from one element to the next");
  if (forks(n)) return twoOutParallel(src, first, second, n, f);
  zthalf::leveled<twoOutPass<Ftor, In, Out>, In*, Out*, Out*, unsigned long>::chosen()(src, first, second, n);
}

}  // namespace half_utils
