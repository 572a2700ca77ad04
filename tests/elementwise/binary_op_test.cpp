// The engine under two-operand operations, with a functor that shows which elements met and in which order.
#include "elementwise/binary_op.h"

#include <gtest/gtest.h>

#include <numeric>
#include <stdexcept>
#include <vector>

#include "tests/support/pair_loops.h"
#include "tests/support/shapes.h"
#include "tests/support/threads.h"

namespace zthalf {
namespace {

using namespace zthalf::testing;

using leftElement = unsigned short;
using rightElement = unsigned int;
using outElement = unsigned long long;

struct pairFtor {
  static constexpr unsigned long grain = 64;
  template <class A, class B>
  ZTHALF_INLINE outElement operator()(A a, B b) const {
    return static_cast<outElement>(a) << 32 | b;
  }
};

struct mixFtor {
  static constexpr unsigned long grain = 64;
  ZTHALF_INLINE unsigned short operator()(unsigned short a, unsigned short b) const {
    return static_cast<unsigned short>(a * 31u - b * 7u);
  }
};

template <class Ftor, class A, class B, class C>
void flatCall(A* a, B* b, C* c, unsigned long na, unsigned long nb, unsigned long nc) {
  half_utils::halfBinaryOp<Ftor>(a, b, c, na, 1, &na, nb, 1, &nb, nc, 1, &nc);
}

TEST(FlatLoop, IsTheAscendingPassInEveryMeeting) {
  checkPairLoop<leftElement, rightElement, outElement>(&flatCall<pairFtor, leftElement, rightElement, outElement>,
                                                       pairFtor{});
  checkPairLoop<rightElement, leftElement, outElement>(&flatCall<pairFtor, rightElement, leftElement, outElement>,
                                                       pairFtor{});
  checkPairLoop<unsigned short, unsigned short, unsigned short>(
      &flatCall<mixFtor, unsigned short, unsigned short, unsigned short>, mixFtor{});
}

// Arrays whose elements tell their own places.
struct operands {
  explicit operands(meetingShapes const& shapes) : a(countOf(shapes.a)), b(countOf(shapes.b)) {
    std::iota(a.begin(), a.end(), leftElement{1});
    std::iota(b.begin(), b.end(), rightElement{0x10000});
  }
  std::vector<leftElement> a;
  std::vector<rightElement> b;
};

constexpr outElement sentinel = 0x5EED'5EED'5EED'5EED;

std::vector<outElement> expectedOf(meetingShapes const& shapes, operands const& x) {
  std::vector<outElement> c(countOf(shapes.c) + 2, sentinel);
  for (unsigned long k = 0; k + 2 < c.size(); ++k) {
    c[k + 1] = pairFtor{}(x.a[shapes.offsetInA(k)], x.b[shapes.offsetInB(k)]);
  }
  return c;
}

std::vector<outElement> resultOf(meetingShapes const& shapes, operands& x) {
  std::vector<outElement> c(countOf(shapes.c) + 2, sentinel);
  half_utils::halfBinaryOp<pairFtor>(x.a.data(), x.b.data(), c.data() + 1, x.a.size(), shapes.a.size(), shapes.a.data(),
                                     x.b.size(), shapes.b.size(), shapes.b.data(), c.size() - 2, shapes.c.size(),
                                     shapes.c.data());
  return c;
}

TEST(BinaryOp, MeetsRandomShapesAsPlainIndexArithmeticDoes) {
  std::mt19937_64 bits(91);
  for (int repetition = 0; repetition < 8000; ++repetition) {
    const meetingShapes shapes = randomMeeting(bits);
    operands x(shapes);
    ASSERT_EQ(resultOf(shapes, x), expectedOf(shapes, x)) << shapes;
  }
}

TEST(BinaryOp, MeetsLongRunsAndManyRuns) {
  for (meetingShapes const& shapes :
       {met({1000, 1}, {1000, 20}), met({1000, 20}, {1000, 1}), met({1, 20}, {1000, 20}), met({1000, 20}, {1, 20}),
        met({3, 1}, {1, 4000}), met({1, 4000}, {3, 1}), met({2, 1, 300}, {1, 5, 300}), met({1, 300}, {1, 1, 2}),
        met({4000}, {1, 3}), met({1, 3}, {4000}), met({2, 1, 2, 1, 2, 1}, {1, 3, 1, 3, 1, 3})}) {
    operands x(shapes);
    EXPECT_EQ(resultOf(shapes, x), expectedOf(shapes, x)) << shapes;
  }
}

TEST(BinaryOp, ColumnWithRowHoldsTheRowsElementForEachRun) {
  leftElement a[] = {1, 2, 3};
  rightElement b[] = {10, 20, 30, 40};
  const unsigned long dimsA[] = {3, 1}, dimsB[] = {1, 4}, dimsC[] = {3, 4};
  outElement c[12];
  half_utils::halfBinaryOp<pairFtor>(a, b, c, 3, 2, dimsA, 4, 2, dimsB, 12, 2, dimsC);
  for (unsigned long j = 0; j < 4; ++j) {
    for (unsigned long i = 0; i < 3; ++i) EXPECT_EQ(c[3 * j + i], pairFtor{}(a[i], b[j])) << i << ", " << j;
  }
}

TEST(BinaryOp, RowWithColumnHoldsTheRowsElementForEachRun) {
  leftElement a[] = {1, 2, 3, 4};
  rightElement b[] = {10, 20, 30};
  const unsigned long dimsA[] = {1, 4}, dimsB[] = {3, 1}, dimsC[] = {3, 4};
  outElement c[12];
  half_utils::halfBinaryOp<pairFtor>(a, b, c, 4, 2, dimsA, 3, 2, dimsB, 12, 2, dimsC);
  for (unsigned long j = 0; j < 4; ++j) {
    for (unsigned long i = 0; i < 3; ++i) EXPECT_EQ(c[3 * j + i], pairFtor{}(a[j], b[i])) << i << ", " << j;
  }
}

// The decisions that element counts alone make: sizes are not even looked at.

leftElement* const noLeft = nullptr;
rightElement* const noRight = nullptr;

TEST(BinaryOp, TouchesNothingForAnEmptyOutput) {
  outElement* const noOut = nullptr;
  for (const unsigned long na : {0UL, 1UL, 7UL}) {
    for (const unsigned long nb : {0UL, 1UL, 7UL}) {
      half_utils::halfBinaryOp<pairFtor>(noLeft, noRight, noOut, na, 2, nullptr, nb, 2, nullptr, 0, 2, nullptr);
    }
  }
}

TEST(BinaryOp, MeetsOneElementWithOne) {
  leftElement a[] = {3};
  rightElement b[] = {4};
  outElement c[] = {sentinel, sentinel};
  half_utils::halfBinaryOp<pairFtor>(a, b, c, 1, 0, nullptr, 1, 0, nullptr, 1, 0, nullptr);
  EXPECT_EQ(c[0], pairFtor{}(3, 4u));
  EXPECT_EQ(c[1], sentinel);
}

TEST(BinaryOp, MeetsASingleLeftElementWithTheWholeRightArray) {
  leftElement a[] = {3};
  rightElement b[] = {4, 5, 6, 7, 8, 9, 10};
  outElement c[7];
  half_utils::halfBinaryOp<pairFtor>(a, b, c, 1, 0, nullptr, 7, 0, nullptr, 7, 0, nullptr);
  for (int i = 0; i < 7; ++i) EXPECT_EQ(c[i], pairFtor{}(a[0], b[i])) << i;
}

TEST(BinaryOp, MeetsTheWholeLeftArrayWithASingleRightElement) {
  leftElement a[] = {4, 5, 6, 7, 8, 9, 10};
  rightElement b[] = {3};
  outElement c[7];
  half_utils::halfBinaryOp<pairFtor>(a, b, c, 7, 0, nullptr, 1, 0, nullptr, 7, 0, nullptr);
  for (int i = 0; i < 7; ++i) EXPECT_EQ(c[i], pairFtor{}(a[i], b[0])) << i;
}

TEST(BinaryOp, MeetsEqualCountsOneByOneWhateverTheShapes) {
  leftElement a[] = {1, 2, 3, 4, 5, 6};
  rightElement b[] = {10, 20, 30, 40, 50, 60};
  const unsigned long tall[] = {3, 2}, wide[] = {2, 3};
  outElement c[6];
  half_utils::halfBinaryOp<pairFtor>(a, b, c, 6, 2, wide, 6, 2, tall, 6, 2, wide);
  for (int i = 0; i < 6; ++i) EXPECT_EQ(c[i], pairFtor{}(a[i], b[i])) << i;
}

TEST(BinaryOp, ExpandsEqualCountsThatAreNotTheOutputs) {
  const meetingShapes shapes = met({3, 1}, {1, 3});
  operands x(shapes);
  EXPECT_EQ(resultOf(shapes, x), expectedOf(shapes, x));
}

// One element beside an empty side: the loop runs over the empty side's count.
TEST(BinaryOp, WritesNothingWhereTheOtherSideIsEmpty) {
  leftElement a[] = {3};
  rightElement b[] = {4};
  outElement c[] = {sentinel};
  half_utils::halfBinaryOp<pairFtor>(a, noRight, c, 1, 0, nullptr, 0, 0, nullptr, 1, 0, nullptr);
  half_utils::halfBinaryOp<pairFtor>(noLeft, b, c, 0, 0, nullptr, 1, 0, nullptr, 1, 0, nullptr);
  EXPECT_EQ(c[0], sentinel);
}

}  // namespace
}  // namespace zthalf
