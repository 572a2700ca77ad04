// The loops under every operation of two or three operands, compiled once: what is particular to an operation and its
// element types is a handful of flat passes. A copy of the engine for each of more than 500 pairs and triples of types
// would be larger than the rest of the library.
#pragma once

#include <array>
#include <cstddef>
#include <type_traits>

#include "core/instruction_level.h"
#include "elementwise/expansion.h"

namespace half_utils {

using operandPointers = std::array<void*, mostOperands>;

// One ascending pass over n elements. An operand that varies along it is an array, any other a single element.
using flatPass = void (*)(operandPointers const& in, void* out, unsigned long n);

struct elementwiseOp {
  unsigned operands;
  std::array<std::size_t, mostOperands> sizes;  // bytes of an element of each operand
  std::size_t outSize;
  unsigned long grain;
  flatPass (*passFor)(meeting along);  // the pass at the instruction level in use
  bool repeatsSingles = false;         // there is a pass of arrays only: single elements are repeated into blocks

  meeting allVary() const { return (1u << operands) - 1; }
};

// Whether a functor has passes of arrays alone for these element types: its member template repeatsSinglesFor says so.
template <class Ftor, class... Elements>
inline constexpr bool repeatsSingles = requires {
  requires Ftor::template repeatsSinglesFor<Elements...>;
};

// A pass written on element types, run(operands..., output, n), as the loops call it. An operand of pointer type is an
// array, any other a single element, which is read before anything is written.
template <class Pass>
struct passOnPointers {
  static constexpr bool isWide = Pass::isWide;

  ZTHALF_INLINE static void run(operandPointers const& in, void* out, unsigned long n) { call(&Pass::run, in, out, n); }

  static flatPass chosen() {
    return zthalf::leveled<passOnPointers, operandPointers const&, void*, unsigned long>::chosen();
  }

 private:
  template <class Operand>
  ZTHALF_INLINE static Operand operandAt(void* p) {
    if constexpr (std::is_pointer_v<Operand>) {
      return static_cast<Operand>(p);
    } else {
      return *static_cast<Operand*>(p);
    }
  }

  template <class A, class B, class R>
  ZTHALF_INLINE static void call(void (*)(A, B, R*, unsigned long), operandPointers const& in, void* out,
                                 unsigned long n) {
    Pass::run(operandAt<A>(in[0]), operandAt<B>(in[1]), static_cast<R*>(out), n);
  }
  template <class A, class B, class C, class R>
  ZTHALF_INLINE static void call(void (*)(A, B, C, R*, unsigned long), operandPointers const& in, void* out,
                                 unsigned long n) {
    Pass::run(operandAt<A>(in[0]), operandAt<B>(in[1]), operandAt<C>(in[2]), static_cast<R*>(out), n);
  }
};

// The flat loop: one pass, or beyond every array's size pieces of it on several threads.
void flatLoop(elementwiseOp const& op, meeting along, operandPointers const& in, void* out, unsigned long n);
void flatLoopInParallel(elementwiseOp const& op, meeting along, operandPointers const& in, void* out, unsigned long n);

// The general expansion. Parallel or not, what differs is only who visits which part of the output.
void expand(elementwiseOp const& op, operandPointers const& in, void* out, expansionPlan const& plan, bool parallel);

// An operand of a flat loop is an array (a pointer) or one value that meets every element of the other sides.
template <class T>
ZTHALF_INLINE T elementOf(T* array, unsigned long i) {
  return array[i];
}
template <class T>
ZTHALF_INLINE T elementOf(T value, unsigned long) {
  return value;
}

// Where an operand stands in memory.
template <class T>
void* addressOf(T*& array) {
  return array;
}
template <class T>
void* addressOf(T& value) {
  return &value;
}

}  // namespace half_utils
