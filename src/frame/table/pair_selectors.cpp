// The functions of min and max that choose an entry of the table by the types that are passed.
#include <type_traits>

#include "core/shape_parameters.h"
#include "zthalf/detail/entries.h"
#include "zthalf/half_extrema.h"
#include "zthalf/half_ptr.h"

namespace half_vector {

namespace {

template <class T>
constexpr FloatTypeEnum partTypeOf = std::is_same_v<T, double>  ? FloatTypeDouble
                                     : std::is_same_v<T, float> ? FloatTypeSingle
                                                                : FloatTypeHalf;
template <class T>
constexpr FloatTypeEnum partTypeOf<std::complex<T>> = partTypeOf<T>;

template <class T>
constexpr bool isComplex = false;
template <class T>
constexpr bool isComplex<std::complex<T>> = true;

// The types of two operands as one number.
constexpr unsigned pairOf(FloatTypeEnum typeA, FloatTypeEnum typeB, bool complexA, bool complexB) {
  return static_cast<unsigned>(typeA) << 4 | static_cast<unsigned>(typeB) << 2 | unsigned{complexA} << 1 |
         unsigned{complexB};
}

template <class Left, class Right>
constexpr unsigned pairOfTypes = pairOf(partTypeOf<Left>, partTypeOf<Right>, isComplex<Left>, isComplex<Right>);

// What pairOf gives for a pair that no entry is for.
constexpr unsigned noPair = ~0u;

// Beside a single or double operand on the left the right one is half, whatever its type says.
unsigned pairAsked(FloatTypeEnum typeA, FloatTypeEnum typeB, bool complexA, bool complexB) {
  if (typeA > FloatTypeDouble) return noPair;
  if (typeA != FloatTypeHalf) return pairOf(typeA, FloatTypeHalf, complexA, complexB);
  if (typeB > FloatTypeDouble) return noPair;
  return pairOf(typeA, typeB, complexA, complexB);
}

namespace stored = half::element;

#define ZTHALF_CASE_OF_PAIR(op, Left, Right, Out)                                                        \
  case pairOfTypes<stored::Left, stored::Right>:                                                         \
    return half_ptr::op##Left##Right##Ptr(static_cast<stored::Left*>(a), static_cast<stored::Right*>(b), \
                                          static_cast<stored::Out*>(c), ZTHALF_THREE_SHAPE_NAMES);

#define ZTHALF_DEFINE_CHOICE_OF_PAIR(op)                                           \
  void op##OfPair(unsigned pair, void* a, void* b, void* c, ZTHALF_THREE_SHAPES) { \
    switch (pair) { ZTHALF_TWENTY_PAIRS(ZTHALF_CASE_OF_PAIR, op) }                 \
  }

ZTHALF_DEFINE_CHOICE_OF_PAIR(min)
ZTHALF_DEFINE_CHOICE_OF_PAIR(minOmitNaN)
ZTHALF_DEFINE_CHOICE_OF_PAIR(max)
ZTHALF_DEFINE_CHOICE_OF_PAIR(maxOmitNaN)

#undef ZTHALF_DEFINE_CHOICE_OF_PAIR
#undef ZTHALF_CASE_OF_PAIR

}  // namespace

void minBinOp(void* a, void* b, void* c, ZTHALF_THREE_SHAPES, FloatTypeEnum typeA, FloatTypeEnum typeB, bool complexA,
              bool complexB, bool omitNaN) {
  const auto choose = omitNaN ? &minOmitNaNOfPair : &minOfPair;
  choose(pairAsked(typeA, typeB, complexA, complexB), a, b, c, ZTHALF_THREE_SHAPE_NAMES);
}

void maxBinOp(void* a, void* b, void* c, ZTHALF_THREE_SHAPES, FloatTypeEnum typeA, FloatTypeEnum typeB, bool complexA,
              bool complexB, bool omitNaN) {
  const auto choose = omitNaN ? &maxOmitNaNOfPair : &maxOfPair;
  choose(pairAsked(typeA, typeB, complexA, complexB), a, b, c, ZTHALF_THREE_SHAPE_NAMES);
}

}  // namespace half_vector
