// The parallel branches of the two-operand engine, called directly, and the serial ones on their one thread.
#include <gtest/gtest.h>

#include <numeric>
#include <stdexcept>
#include <vector>

#include "elementwise/binary_op.h"
#include "scalar/functors/arithmetic_functors.h"
#include "scalar/functors/spacing_functors.h"
#include "tests/support/shapes.h"
#include "tests/support/threads.h"

namespace zthalf {
namespace {

using namespace zthalf::testing;

struct pairFtor {
  static constexpr unsigned long grain = 64;
  ZTHALF_INLINE unsigned long long operator()(unsigned short a, unsigned int b) const {
    return static_cast<unsigned long long>(a) << 32 | b;
  }
};

using outputs = std::vector<unsigned long long>;

struct operands {
  operands(unsigned long na, unsigned long nb) : a(na), b(nb) {
    std::iota(a.begin(), a.end(), static_cast<unsigned short>(1));
    std::iota(b.begin(), b.end(), 0x10000u);
  }
  std::vector<unsigned short> a;
  std::vector<unsigned int> b;
};

TEST(FlatLoopInParallel, GivesTheBitsOfTheSerialLoopInEveryMeeting) {
  for (const unsigned long n : {0UL, 1UL, 63UL, 64UL, 65UL, 100'003UL}) {
    operands x(n, n);
    outputs arrays(n + 1, 9), left(n + 1, 9), right(n + 1, 9);
    half_utils::halfBinaryOpParallelLoop(x.a.data(), x.b.data(), arrays.data(), n, pairFtor{});
    half_utils::halfBinaryOpParallelLoop(static_cast<unsigned short>(7), x.b.data(), left.data(), n, pairFtor{});
    half_utils::halfBinaryOpParallelLoop(x.a.data(), 7u, right.data(), n, pairFtor{});
    onEachThreadCount([&](int threads) {
      outputs c(n + 1, 9);
      half_utils::binaryOpParallel(x.a.data(), x.b.data(), c.data(), n, pairFtor{});
      EXPECT_EQ(c, arrays) << n << " elements on " << threads << " threads";
      std::fill(c.begin(), c.end(), 9);
      half_utils::binaryOpParallel(static_cast<unsigned short>(7), x.b.data(), c.data(), n, pairFtor{});
      EXPECT_EQ(c, left) << n << " elements on " << threads << " threads";
      std::fill(c.begin(), c.end(), 9);
      half_utils::binaryOpParallel(x.a.data(), 7u, c.data(), n, pairFtor{});
      EXPECT_EQ(c, right) << n << " elements on " << threads << " threads";
    });
    for (unsigned long i = 0; i < n; ++i) {
      ASSERT_EQ(arrays[i], pairFtor{}(x.a[i], x.b[i]));
      ASSERT_EQ(left[i], pairFtor{}(7, x.b[i]));
      ASSERT_EQ(right[i], pairFtor{}(x.a[i], 7));
    }
  }
}

half_utils::shape shapeOf(sizeList const& dims) { return {countOf(dims), dims.size(), dims.data()}; }

outputs expanded(operands& x, half_utils::expansionPlan const& plan, bool parallel) {
  outputs c(plan.out.n + 2, 9);
  half_utils::expandOp<pairFtor>(x.a.data(), x.b.data(), c.data() + 1, plan, parallel);
  return c;
}

TEST(ExpansionInParallel, GivesTheBitsOfTheSerialExpansion) {
  std::mt19937_64 bits(95);
  std::vector<meetingShapes> meetings{met({1000, 1}, {1000, 20}), met({1, 20}, {1000, 20}), met({3, 1}, {1, 5000}),
                                      met({1, 5000}, {3, 1}), met({2, 1, 300}, {1, 5, 300})};
  while (meetings.size() < 300) {
    meetingShapes shapes = randomMeeting(bits);
    const unsigned long na = countOf(shapes.a), nb = countOf(shapes.b), nc = countOf(shapes.c);
    if (nc != 0 && na != 1 && nb != 1 && (na != nb || na != nc)) meetings.push_back(std::move(shapes));
  }
  for (meetingShapes const& shapes : meetings) {
    operands x(countOf(shapes.a), countOf(shapes.b));
    const half_utils::expansionPlan plan(shapeOf(shapes.a), shapeOf(shapes.b), shapeOf(shapes.c));
    const outputs serial = expanded(x, plan, false);
    for (unsigned long k = 0; k < plan.out.n; ++k) {
      ASSERT_EQ(serial[k + 1], pairFtor{}(x.a[shapes.offsetInA(k)], x.b[shapes.offsetInB(k)])) << shapes;
    }
    onEachThreadCount(
        [&](int threads) { EXPECT_EQ(expanded(x, plan, true), serial) << shapes << " on " << threads << " threads"; });
  }
}

struct refusingFtor {
  static constexpr unsigned long grain = 64;
  int operator()(int a, int b) const { return a + b == 4321 ? throw std::domain_error("4321") : a + b; }
};

TEST(BinaryOp, LetsAnExceptionOfTheFunctorOut) {
  std::vector<int> a(10'000), c(10'000);
  std::iota(a.begin(), a.end(), 0);
  EXPECT_THROW(half_utils::halfBinaryOpParallelLoop(a.data(), 0, c.data(), a.size(), refusingFtor{}),
               std::domain_error);
  const sizeList column{100, 1}, row{1, 100}, matrix{100, 100};
  const half_utils::expansionPlan plan(shapeOf(column), shapeOf(row), shapeOf(matrix));
  std::vector<int> left(100), right(100);
  std::iota(left.begin(), left.end(), 0);
  std::iota(right.begin(), right.end(), 4321 - 150);
  EXPECT_THROW(half_utils::expandOp<refusingFtor>(left.data(), right.data(), c.data(), plan, false), std::domain_error);
  onEachThreadCount([&](int) {
    EXPECT_THROW(half_utils::binaryOpParallel(a.data(), 0, c.data(), a.size(), refusingFtor{}), std::domain_error);
    EXPECT_THROW(half_utils::expandOp<refusingFtor>(left.data(), right.data(), c.data(), plan, true),
                 std::domain_error);
  });
}

threadWitness witness;

struct witnessFtor {
  static constexpr unsigned long grain = 256;
  unsigned short operator()(unsigned short a, unsigned short) const {
    witness.called();
    return a;
  }
};

TEST(BinaryOp, RunsAMillionElementsOnTheCallingThread) {
  constexpr unsigned long million = 1'000'000;
  std::vector<unsigned short> a(million, 1), b(million, 2), c(million);
  const auto call = [&](sizeList const& dimsA, sizeList const& dimsB) {
    const meetingShapes shapes = met(dimsA, dimsB);
    ASSERT_EQ(countOf(shapes.c), million);
    half_utils::halfBinaryOp<witnessFtor>(a.data(), b.data(), c.data(), shapeOf(shapes.a), shapeOf(shapes.b),
                                          shapeOf(shapes.c));
  };
  onThreads(4, [&] {
    witness.expectOnlyThisThread();
    call({million}, {million});
    call({1}, {million});
    call({million}, {1});
    call({1000, 1}, {1, 1000});
    call({1, 1000}, {1000, 1});
    call({1000, 1}, {1000, 1000});
    call({1, 1, 1000}, {10, 100, 1});
    EXPECT_EQ(witness.calls(), 7 * million);
    EXPECT_EQ(witness.strangers(), 0u);
  });
}

}  // namespace
}  // namespace zthalf
