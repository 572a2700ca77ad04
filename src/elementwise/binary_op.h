// The one engine under every two-operand elementwise operation.
#pragma once

#include <algorithm>
#include <cstdint>
#include <type_traits>

#include "elementwise/elementwise_op.h"

namespace half_utils {

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

// A plain ascending loop. The compiler adds its own overlap check before the vector form, and moves the widening of a
// single value out of the loop.
template <class Ftor, class T1, class T2, class R>
struct binaryPass {
  static constexpr bool isWide = zthalf::earnsLevelsFor<Ftor, std::remove_pointer_t<T1>, std::remove_pointer_t<T2>>;
  ZTHALF_INLINE static void run(T1 a, T2 b, R* c, unsigned long n) {
    // A functor's own pass reads a block before writing it, so no operand may be shifted against the output.
    if constexpr (requires { Ftor::runInBlocks(a, b, c, n); }) {
      if (!areShifted(a, c, n) && !areShifted(b, c, n)) return Ftor::runInBlocks(a, b, c, n);
    }
    for (unsigned long i = 0; i < n; ++i) c[i] = Ftor{}(elementOf(a, i), elementOf(b, i));
  }
};

template <class Ftor, class A, class B, class C>
flatPass binaryPassFor(meeting along) {
  if constexpr (!repeatsSingles<Ftor, A, B>) {
    if (along == rightVaries) return passOnPointers<binaryPass<Ftor, A, B*, C>>::chosen();
    if (along == leftVaries) return passOnPointers<binaryPass<Ftor, A*, B, C>>::chosen();
  }
  return passOnPointers<binaryPass<Ftor, A*, B*, C>>::chosen();
}

template <class Ftor, class A, class B, class C>
inline constexpr elementwiseOp binaryOp{2,           {sizeof(A), sizeof(B)},        sizeof(C),
                                        Ftor::grain, &binaryPassFor<Ftor, A, B, C>, repeatsSingles<Ftor, A, B>};

// How the operands of a flat loop meet, by their types.
template <class T1, class T2>
inline constexpr meeting meetingOf = (std::is_pointer_v<T1> ? leftVaries : neitherVaries) |
                                     (std::is_pointer_v<T2> ? rightVaries : neitherVaries);

template <class Ftor, class T1, class T2, class R>
inline constexpr elementwiseOp const& flatBinaryOp =
    binaryOp<Ftor, std::remove_pointer_t<T1>, std::remove_pointer_t<T2>, R>;

template <class Ftor, class T1, class T2, class R>
void binaryOpParallel(T1 a, T2 b, R* c, unsigned long n, Ftor) {
  flatLoopInParallel(flatBinaryOp<Ftor, T1, T2, R>, meetingOf<T1, T2>, {addressOf(a), addressOf(b)}, c, n);
}

// The flat loop: c[i] = f(a[i] or a, b[i] or b) for i from 0 to n - 1.
template <class Ftor, class T1, class T2, class R>
void halfBinaryOpParallelLoop(T1 a, T2 b, R* c, unsigned long n, Ftor) {
  static_assert(std::is_empty_v<Ftor>, "a functor keeps nothing from one element to the next");
  flatLoop(flatBinaryOp<Ftor, T1, T2, R>, meetingOf<T1, T2>, {addressOf(a), addressOf(b)}, c, n);
}

template <class Ftor, class A, class B, class C>
void expandOp(A* a, B* b, C* c, expansionPlan const& plan, bool parallel) {
  expand(binaryOp<Ftor, A, B, C>, {a, b}, c, plan, parallel);
}

// How two operands meet in a flat loop, by the counts of the operands and of the output, and over how many elements;
// neitherVaries where they do not. Counts alone decide, dimensions are not looked at. One element against one element
// is a pair of arrays, not a scalar form.
struct flatMeeting {
  meeting along;
  unsigned long n;
};
inline flatMeeting flatMeetingOf(unsigned long na, unsigned long nb, unsigned long nc) {
  if (std::max(na, nb) == nc) {
    if (na == nb) return {bothVary, na};
    if (na == 1) return {rightVaries, nb};
    if (nb == 1) return {leftVaries, na};
  }
  return {neitherVaries, 0};
}

void expandBinary(elementwiseOp const& op, operandPointers const& in, void* out, shape const& a, shape const& b,
                  shape const& c);

// The whole operation. The order of the tests is part of the contract, and an empty output touches nothing.
template <class Ftor, class A, class B, class C>
void halfBinaryOp(A* a, B* b, C* c, unsigned long na, unsigned long ndimsA, unsigned long const* dimsA,
                  unsigned long nb, unsigned long ndimsB, unsigned long const* dimsB, unsigned long nc,
                  unsigned long ndimsC, unsigned long const* dimsC) {
  static_assert(std::is_empty_v<Ftor>, "a functor keeps nothing from one element to the next");
  if (nc == 0) return;
  const operandPointers in{a, b};
  const flatMeeting flat = flatMeetingOf(na, nb, nc);
  if (flat.along != neitherVaries) return flatLoop(binaryOp<Ftor, A, B, C>, flat.along, in, c, flat.n);
  expandBinary(binaryOp<Ftor, A, B, C>, in, c, {na, ndimsA, dimsA}, {nb, ndimsB, dimsB}, {nc, ndimsC, dimsC});
}

template <class Ftor, class A, class B, class C>
void halfBinaryOp(A* a, B* b, C* c, shape shapeA, shape shapeB, shape shapeC) {
  halfBinaryOp<Ftor>(a, b, c, shapeA.n, shapeA.ndims, shapeA.dims, shapeB.n, shapeB.ndims, shapeB.dims, shapeC.n,
                     shapeC.ndims, shapeC.dims);
}

}  // namespace half_utils
