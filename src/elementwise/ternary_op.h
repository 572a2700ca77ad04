// The engine under elementwise operations of three operands.
#pragma once

#include <type_traits>

#include "elementwise/elementwise_op.h"

namespace half_utils {

template <class Ftor, class T1, class T2, class T3, class R>
struct ternaryPass {
  static constexpr bool isWide =
      zthalf::earnsLevelsFor<Ftor, std::remove_pointer_t<T1>, std::remove_pointer_t<T2>, std::remove_pointer_t<T3>>;
  ZTHALF_INLINE static void run(T1 a, T2 b, T3 c, R* d, unsigned long n) {
    for (unsigned long i = 0; i < n; ++i) d[i] = Ftor{}(elementOf(a, i), elementOf(b, i), elementOf(c, i));
  }
};

// Which operands vary along a pass; the others are single elements. All seven meetings are sums of these.
inline constexpr meeting aVaries = 4, bVaries = 2, cVaries = 1;

template <class Ftor, class A, class B, class C, class D>
flatPass ternaryPassFor(meeting along) {
  if constexpr (!repeatsSingles<Ftor, A, B, C>) {
    switch (along) {
      case cVaries:
        return passOnPointers<ternaryPass<Ftor, A, B, C*, D>>::chosen();
      case bVaries:
        return passOnPointers<ternaryPass<Ftor, A, B*, C, D>>::chosen();
      case bVaries | cVaries:
        return passOnPointers<ternaryPass<Ftor, A, B*, C*, D>>::chosen();
      case aVaries:
        return passOnPointers<ternaryPass<Ftor, A*, B, C, D>>::chosen();
      case aVaries | cVaries:
        return passOnPointers<ternaryPass<Ftor, A*, B, C*, D>>::chosen();
      case aVaries | bVaries:
        return passOnPointers<ternaryPass<Ftor, A*, B*, C, D>>::chosen();
      default:
        break;
    }
  }
  return passOnPointers<ternaryPass<Ftor, A*, B*, C*, D>>::chosen();
}

template <class Ftor, class A, class B, class C, class D>
inline constexpr elementwiseOp ternaryOp{3,           {sizeof(A), sizeof(B), sizeof(C)}, sizeof(D),
                                         Ftor::grain, &ternaryPassFor<Ftor, A, B, C, D>, repeatsSingles<Ftor, A, B, C>};

template <class Ftor, class T1, class T2, class T3, class R>
inline constexpr elementwiseOp const& flatTernaryOp =
    ternaryOp<Ftor, std::remove_pointer_t<T1>, std::remove_pointer_t<T2>, std::remove_pointer_t<T3>, R>;

template <class T1, class T2, class T3>
inline constexpr meeting ternaryMeetingOf = (std::is_pointer_v<T1> ? aVaries : 0u) |
                                            (std::is_pointer_v<T2> ? bVaries : 0u) |
                                            (std::is_pointer_v<T3> ? cVaries : 0u);

template <class Ftor, class T1, class T2, class T3, class R>
void ternaryOpParallel(T1 a, T2 b, T3 c, R* d, unsigned long n, Ftor) {
  flatLoopInParallel(flatTernaryOp<Ftor, T1, T2, T3, R>, ternaryMeetingOf<T1, T2, T3>,
                     {addressOf(a), addressOf(b), addressOf(c)}, d, n);
}

// The flat loop: d[i] = f(a[i] or a, b[i] or b, c[i] or c) for i from 0 to n - 1.
template <class Ftor, class T1, class T2, class T3, class R>
void halfTernaryOpParallelLoop(T1 a, T2 b, T3 c, R* d, unsigned long n, Ftor) {
  static_assert(std::is_empty_v<Ftor>, "a functor keeps nothing from one element to the next");
  flatLoop(flatTernaryOp<Ftor, T1, T2, T3, R>, ternaryMeetingOf<T1, T2, T3>, {addressOf(a), addressOf(b), addressOf(c)},
           d, n);
}

template <class Ftor, class A, class B, class C, class D>
void expandTernaryOp(A* a, B* b, C* c, D* d, expansionPlan const& plan, bool parallel) {
  expand(ternaryOp<Ftor, A, B, C, D>, {a, b, c}, d, plan, parallel);
}

// The whole operation. Unlike with two operands, sizes decide and not only counts: two operands of more than one
// element whose shapes differ anywhere, a missing dimension counting as 1, make it an expansion.
void meetAndRun(elementwiseOp const& op, operandPointers const& in, void* out, shape const& shapeA, shape const& shapeB,
                shape const& shapeC, shape const& shapeD);

template <class Ftor, class A, class B, class C, class D>
void halfTernaryOp(A* a, B* b, C* c, D* d, unsigned long na, unsigned long ndimsA, unsigned long const* dimsA,
                   unsigned long nb, unsigned long ndimsB, unsigned long const* dimsB, unsigned long nc,
                   unsigned long ndimsC, unsigned long const* dimsC, unsigned long nd, unsigned long ndimsD,
                   unsigned long const* dimsD) {
  static_assert(std::is_empty_v<Ftor>, "a functor keeps nothing from one element to the next");
  meetAndRun(ternaryOp<Ftor, A, B, C, D>, {a, b, c}, d, {na, ndimsA, dimsA}, {nb, ndimsB, dimsB}, {nc, ndimsC, dimsC},
             {nd, ndimsD, dimsD});
}

}  // namespace half_utils
