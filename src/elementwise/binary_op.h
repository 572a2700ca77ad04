// The one engine under every two-operand elementwise operation.
// Internal: promises nothing to users of the library.
#pragma once

#include <algorithm>
#include <cstdint>
#include <type_traits>

#include "core/instruction_level.h"
#include "elementwise/expansion.h"
#include "frame/loop_policy.h"

namespace half_utils {

// An operand of a flat loop is an array (a pointer) or one value that meets every element of the other side.
template <class T>
ZTHALF_INLINE T elementOf(T* array, unsigned long i) {
  return array[i];
}
template <class T>
ZTHALF_INLINE T elementOf(T value, unsigned long) {
  return value;
}

template <class T>
ZTHALF_INLINE T* from(T* array, unsigned long begin) {
  return array + begin;
}
template <class T>
ZTHALF_INLINE T from(T value, unsigned long) {
  return value;
}

// Whether n results from c on overlap the operand in another way than element upon element.
template <class T, class R>
ZTHALF_INLINE bool areShifted(T* a, R* c, unsigned long n) {
  const auto begin = reinterpret_cast<std::uintptr_t>(a), out = reinterpret_cast<std::uintptr_t>(c);
  return begin + n * sizeof(T) > out && out + n * sizeof(R) > begin && !(begin == out && sizeof(T) == sizeof(R));
}
template <class T, class R>
ZTHALF_INLINE bool areShifted(T, R*, unsigned long) {
  return false;
}

// The ascending pass, as it stands; the compiler sees to overlap before it takes a wide form, and moves the widening of
// a single value out of the loop.
template <class Ftor, class T1, class T2, class R>
struct binaryPass {
  static constexpr bool isWide = zthalf::earnsLevelsFor<Ftor, std::remove_pointer_t<T1>, std::remove_pointer_t<T2>>;
  ZTHALF_INLINE static void run(T1 a, T2 b, R* c, unsigned long n) {
    // A functor's own pass reads ahead of what it writes.
    if constexpr (requires { Ftor::runInBlocks(a, b, c, n); }) {
      if (!areShifted(a, c, n) && !areShifted(b, c, n)) return Ftor::runInBlocks(a, b, c, n);
    }
    for (unsigned long i = 0; i < n; ++i) c[i] = Ftor{}(elementOf(a, i), elementOf(b, i));
  }
};

template <class Ftor, class T1, class T2, class R>
auto binaryPassInUse() {
  return zthalf::leveled<binaryPass<Ftor, T1, T2, R>, T1, T2, R*, unsigned long>::chosen();
}

template <class Ftor, class T1, class T2, class R>
void binaryOpParallel(T1 a, T2 b, R* c, unsigned long n, Ftor) {
  const auto pass = binaryPassInUse<Ftor, T1, T2, R>();
  forAffineRanges(n, Ftor::grain, [=](unsigned long begin, unsigned long end) {
    pass(from(a, begin), from(b, begin), c + begin, end - begin);
  });
}

// The flat loop: c[i] = f(a[i] or a, b[i] or b) for i from 0 to n - 1.
template <class Ftor, class T1, class T2, class R>
void halfBinaryOpParallelLoop(T1 a, T2 b, R* c, unsigned long n, Ftor f) {
  static_assert(std::is_empty_v<Ftor>, "a functor keeps nothing from one element to the next");
  if (forks(n)) return binaryOpParallel(a, b, c, n, f);
  binaryPassInUse<Ftor, T1, T2, R>()(a, b, c, n);
}

// The general expansion. Within a run an operand that does not vary is read once. Parallel or not, what differs is only
// who visits which run.
template <class Ftor, class A, class B, class C>
void expandOp(A* a, B* b, C* c, expansionPlan const& plan, bool parallel) {
  const auto visit = [&](runBody body) {
    parallel ? forEachRunInParallel(plan, Ftor::grain / 2, body) : forEachRun(plan, body);
  };
  using offset = unsigned long;
  switch (plan.runMeeting) {
    case rightVaries:
      return visit([=, &plan, pass = binaryPassInUse<Ftor, A, B*, C>()](offset atA, offset atB, offset atC) {
        pass(a[atA], b + atB, c + atC, plan.run);
      });
    case leftVaries:
      return visit([=, &plan, pass = binaryPassInUse<Ftor, A*, B, C>()](offset atA, offset atB, offset atC) {
        pass(a + atA, b[atB], c + atC, plan.run);
      });
    default:
      return visit([=, &plan, pass = binaryPassInUse<Ftor, A*, B*, C>()](offset atA, offset atB, offset atC) {
        pass(a + atA, b + atB, c + atC, plan.run);
      });
  }
}

// The whole operation. The order of the tests is part of the contract: an empty output touches nothing; where element
// counts alone say that the arrays meet one by one, or that one side is a single element, dimensions are not looked at.
// One element against one element is a pair of arrays, not a scalar form.
template <class Ftor, class A, class B, class C>
void halfBinaryOp(A* a, B* b, C* c, shape shapeA, shape shapeB, shape shapeC) {
  if (shapeC.n == 0) return;
  if (std::max(shapeA.n, shapeB.n) == shapeC.n) {
    if (shapeA.n == shapeB.n) return halfBinaryOpParallelLoop<Ftor, A*, B*, C>(a, b, c, shapeA.n, Ftor{});
    if (shapeA.n == 1) return halfBinaryOpParallelLoop<Ftor, A, B*, C>(a[0], b, c, shapeB.n, Ftor{});
    if (shapeB.n == 1) return halfBinaryOpParallelLoop<Ftor, A*, B, C>(a, b[0], c, shapeA.n, Ftor{});
  }
  const expansionPlan plan(shapeA, shapeB, shapeC);
  expandOp<Ftor>(a, b, c, plan, shapeC.n >= expansionThreshold);
}

template <class Ftor, class A, class B, class C>
void halfBinaryOp(A* a, B* b, C* c, unsigned long na, unsigned long ndimsA, unsigned long const* dimsA,
                  unsigned long nb, unsigned long ndimsB, unsigned long const* dimsB, unsigned long nc,
                  unsigned long ndimsC, unsigned long const* dimsC) {
  halfBinaryOp<Ftor>(a, b, c, {na, ndimsA, dimsA}, {nb, ndimsB, dimsB}, {nc, ndimsC, dimsC});
}

}  // namespace half_utils
