// The binary rows of the entry list as data: the three roads to each operation.
#pragma once

#include <gtest/gtest.h>

#include <cstring>

#include "tests/support/shapes.h"
#include "tests/support/unary_rows.h"
#include "zthalf/detail/entries.h"
#include "zthalf/half_ops.h"
#include "zthalf/half_ptr.h"
#include "zthalf/half_vector.h"

namespace zthalf::testing {

template <class Left, class Right, class Out>
struct binaryRow {
  using left = Left;
  using right = Right;
  using output = Out;
  using pass = half_ptr::binary_entry<Left, Right, Out>*;

  char const* name;
  pass facade;     // half_vector::...
  pass entry;      // through half_ptr::...Ptr
  pass operation;  // half::...

  // One road, with the counts and sizes of a meeting.
  static void call(pass road, Left* a, Right* b, Out* c, meetingShapes const& shapes) {
    road(a, b, c, countOf(shapes.a), shapes.a.size(), shapes.a.data(), countOf(shapes.b), shapes.b.size(),
         shapes.b.data(), countOf(shapes.c), shapes.c.size(), shapes.c.data());
  }

  // The result for one pair of elements. It is asked for twice, over different bytes, so that a call which writes
  // nothing cannot pass for a result.
  Out ofOnePair(loaded<Left> x, loaded<Right> y) const {
    Out results[2];
    std::memset(static_cast<void*>(&results[0]), 0x00, sizeof(Out));
    std::memset(static_cast<void*>(&results[1]), 0xFF, sizeof(Out));
    for (Out& result : results) {
      const unsigned long one = 1;
      facade(reinterpret_cast<Left*>(&x), reinterpret_cast<Right*>(&y), &result, 1, 1, &one, 1, 1, &one, 1, 1, &one);
    }
    EXPECT_EQ(std::memcmp(&results[0], &results[1], sizeof(Out)), 0) << name << " of one pair is not written";
    return results[0];
  }
};

#define ZTHALF_ROW_OPERATION(op, Left, Right, Out)                                                                     \
  [](element::Left* a, element::Right* b, element::Out* c, unsigned long na, unsigned long ndimsA,                     \
     unsigned long const* dimsA, unsigned long nb, unsigned long ndimsB, unsigned long const* dimsB, unsigned long nc, \
     unsigned long ndimsC, unsigned long const* dimsC) {                                                               \
    namespace element = half::element;                                                                                 \
    half::op<element::Left, element::Right, element::Out>(stored(a), stored(b), stored(c), na, ndimsA, dimsA, nb,      \
                                                          ndimsB, dimsB, nc, ndimsC, dimsC);                           \
  }
#define ZTHALF_ROW_ENTRY(op, Left, Right, Out)                                                                         \
  [](element::Left* a, element::Right* b, element::Out* c, unsigned long na, unsigned long ndimsA,                     \
     unsigned long const* dimsA, unsigned long nb, unsigned long ndimsB, unsigned long const* dimsB, unsigned long nc, \
     unsigned long ndimsC, unsigned long const* dimsC) {                                                               \
    half_ptr::op##Left##Right##Ptr(stored(a), stored(b), stored(c), na, ndimsA, dimsA, nb, ndimsB, dimsB, nc, ndimsC,  \
                                   dimsC);                                                                             \
  }
// mod and rem: bare patterns behind the table, and no third type in the template's name.
template <class T>
T* bare(T* p) {
  return p;
}
inline unsigned short* bare(half_t* p) { return reinterpret_cast<unsigned short*>(p); }
#define ZTHALF_ROW_REMAINDER_OPERATION(op, Left, Right, Out)                                                           \
  [](element::Left* a, element::Right* b, element::Out* c, unsigned long na, unsigned long ndimsA,                     \
     unsigned long const* dimsA, unsigned long nb, unsigned long ndimsB, unsigned long const* dimsB, unsigned long nc, \
     unsigned long ndimsC, unsigned long const* dimsC) {                                                               \
    half::op<half::storage::Left, half::storage::Right>(bare(a), bare(b), bare(c), na, ndimsA, dimsA, nb, ndimsB,      \
                                                        dimsB, nc, ndimsC, dimsC);                                     \
  }
#define ZTHALF_ROW_REMAINDER_ENTRY(op, Left, Right, Out)                                                               \
  [](element::Left* a, element::Right* b, element::Out* c, unsigned long na, unsigned long ndimsA,                     \
     unsigned long const* dimsA, unsigned long nb, unsigned long ndimsB, unsigned long const* dimsB, unsigned long nc, \
     unsigned long ndimsC, unsigned long const* dimsC) {                                                               \
    half_ptr::op##Left##Right##Ptr(bare(a), bare(b), bare(c), na, ndimsA, dimsA, nb, ndimsB, dimsB, nc, ndimsC,        \
                                   dimsC);                                                                             \
  }
#define ZTHALF_VISIT_REMAINDER_ROW(op, Left, Right, Out)                                                         \
  visit(binaryRow<element::Left, element::Right, element::Out>{#op #Left #Right, &half_vector::op,               \
                                                               ZTHALF_ROW_REMAINDER_ENTRY(op, Left, Right, Out), \
                                                               ZTHALF_ROW_REMAINDER_OPERATION(op, Left, Right, Out)});
#define ZTHALF_VISIT_ROW(op, Left, Right, Out)                                                         \
  visit(binaryRow<element::Left, element::Right, element::Out>{#op #Left #Right, &half_vector::op,     \
                                                               ZTHALF_ROW_ENTRY(op, Left, Right, Out), \
                                                               ZTHALF_ROW_OPERATION(op, Left, Right, Out)});

// visit(row) for every binary row.
template <class Visit>
void forEachBinaryRow(Visit visit) {
  ZTHALF_BINARY_ENTRIES(ZTHALF_VISIT_ROW)
  ZTHALF_REMAINDER_ENTRIES(ZTHALF_VISIT_REMAINDER_ROW)
}

// The functions that choose an entry by the types that are passed, as functions of typed operands.
namespace chosen {

template <class T>
inline constexpr FloatTypeEnum typeOf = std::is_same_v<T, double>  ? FloatTypeDouble
                                        : std::is_same_v<T, float> ? FloatTypeSingle
                                                                   : FloatTypeHalf;
template <class T>
inline constexpr FloatTypeEnum typeOf<std::complex<T>> = typeOf<T>;
template <class T>
inline constexpr bool isComplex = false;
template <class T>
inline constexpr bool isComplex<std::complex<T>> = true;

#define ZTHALF_DEFINE_CHOSEN(op, selector, omitNaN)                                                                   \
  template <class Left, class Right, class Out>                                                                       \
  void op(Left* a, Right* b, Out* c, unsigned long na, unsigned long ndimsA, unsigned long const* dimsA,              \
          unsigned long nb, unsigned long ndimsB, unsigned long const* dimsB, unsigned long nc, unsigned long ndimsC, \
          unsigned long const* dimsC) {                                                                               \
    half_vector::selector(a, b, c, na, ndimsA, dimsA, nb, ndimsB, dimsB, nc, ndimsC, dimsC, typeOf<Left>,             \
                          typeOf<Right>, isComplex<Left>, isComplex<Right>, omitNaN);                                 \
  }
ZTHALF_DEFINE_CHOSEN(min, minBinOp, false)
ZTHALF_DEFINE_CHOSEN(minOmitNaN, minBinOp, true)
ZTHALF_DEFINE_CHOSEN(max, maxBinOp, false)
ZTHALF_DEFINE_CHOSEN(maxOmitNaN, maxBinOp, true)
#undef ZTHALF_DEFINE_CHOSEN

}  // namespace chosen

#define ZTHALF_VISIT_CHOSEN_ROW(op, Left, Right, Out)                             \
  visit(binaryRow<element::Left, element::Right, element::Out>{                   \
      #op #Left #Right, &chosen::op<element::Left, element::Right, element::Out>, \
      ZTHALF_ROW_ENTRY(op, Left, Right, Out), ZTHALF_ROW_OPERATION(op, Left, Right, Out)});

// visit(row) for every binary row that has no function of the facade to itself.
template <class Visit>
void forEachChosenBinaryRow(Visit visit) {
  ZTHALF_CHOSEN_BINARY_ENTRIES(ZTHALF_VISIT_CHOSEN_ROW)
}

#undef ZTHALF_VISIT_CHOSEN_ROW
#undef ZTHALF_VISIT_ROW
#undef ZTHALF_VISIT_REMAINDER_ROW
#undef ZTHALF_ROW_REMAINDER_ENTRY
#undef ZTHALF_ROW_REMAINDER_OPERATION
#undef ZTHALF_ROW_ENTRY
#undef ZTHALF_ROW_OPERATION

}  // namespace zthalf::testing
