// The engine under three-operand operations, with functors that show which elements met and in which order.
#include "elementwise/ternary_op.h"

#include <gtest/gtest.h>

#include <numeric>
#include <stdexcept>
#include <vector>

#include "scalar/functors/multiply_add_functor.h"
#include "tests/support/shapes.h"
#include "tests/support/threads.h"

namespace zthalf {
namespace {

using namespace zthalf::testing;

using firstElement = unsigned short;
using secondElement = unsigned int;
using thirdElement = unsigned char;
using outElement = unsigned long long;
using outputs = std::vector<outElement>;

static_assert(half::scalar::emulated::fmaFtor::grain == 256);

struct tripleFtor {
  static constexpr unsigned long grain = 64;
  ZTHALF_INLINE outElement operator()(firstElement a, secondElement b, thirdElement c) const {
    return static_cast<outElement>(a) << 48 | static_cast<outElement>(b) << 8 | c;
  }
};

// The same through passes of arrays alone.
struct repeatingFtor : tripleFtor {
  template <class...>
  static constexpr bool repeatsSinglesFor = true;
};

constexpr outElement sentinel = 0x5EED'5EED'5EED'5EED;

// Arrays whose elements tell their own places.
struct operands {
  explicit operands(tripleShapes const& shapes) : operands(countOf(shapes.a), countOf(shapes.b), countOf(shapes.c)) {}
  operands(unsigned long na, unsigned long nb, unsigned long nc) : a(na), b(nb), c(nc) {
    std::iota(a.begin(), a.end(), firstElement{1});
    std::iota(b.begin(), b.end(), secondElement{0x10000});
    std::iota(c.begin(), c.end(), thirdElement{7});
  }
  std::vector<firstElement> a;
  std::vector<secondElement> b;
  std::vector<thirdElement> c;
};

outputs expectedOf(tripleShapes const& shapes, operands const& x) {
  outputs d(countOf(shapes.out) + 2, sentinel);
  for (unsigned long k = 0; k + 2 < d.size(); ++k) {
    d[k + 1] = tripleFtor{}(x.a[offsetIn(shapes.a, shapes.out, k)], x.b[offsetIn(shapes.b, shapes.out, k)],
                            x.c[offsetIn(shapes.c, shapes.out, k)]);
  }
  return d;
}

template <class Ftor>
outputs resultOf(tripleShapes const& shapes, operands& x) {
  outputs d(countOf(shapes.out) + 2, sentinel);
  half_utils::halfTernaryOp<Ftor>(x.a.data(), x.b.data(), x.c.data(), d.data() + 1, x.a.size(), shapes.a.size(),
                                  shapes.a.data(), x.b.size(), shapes.b.size(), shapes.b.data(), x.c.size(),
                                  shapes.c.size(), shapes.c.data(), d.size() - 2, shapes.out.size(), shapes.out.data());
  return d;
}

void expectIndexArithmetic(tripleShapes const& shapes) {
  operands x(shapes);
  const outputs expected = expectedOf(shapes, x);
  ASSERT_EQ(resultOf<tripleFtor>(shapes, x), expected) << shapes;
  ASSERT_EQ(resultOf<repeatingFtor>(shapes, x), expected) << shapes;
}

TEST(TernaryOp, MeetsRandomShapesAsPlainIndexArithmeticDoes) {
  std::mt19937_64 bits(191);
  for (int repetition = 0; repetition < 8000 && !HasFailure(); ++repetition) expectIndexArithmetic(randomTriple(bits));
}

TEST(TernaryOp, MeetsLongRunsManyRunsAndAllKindsOfRuns) {
  const sizeList one{1}, column{300, 1}, row{1, 20}, matrix{300, 20}, low{3, 1}, wide{1, 3000}, lowMatrix{3, 3000};
  for (tripleShapes const& shapes :
       {met(column, row, matrix), met(row, column, matrix), met(matrix, row, column), met(column, column, row),
        met(row, row, column), met(column, row, row), met(one, column, row), met(column, one, row),
        met(row, column, one), met(matrix, matrix, row), met(matrix, column, matrix), met(low, wide, lowMatrix),
        met(wide, low, lowMatrix), met(lowMatrix, wide, low), met(low, wide, one), met(low, low, wide),
        met(sizeList{2, 1, 300}, sizeList{1, 5, 300}, sizeList{2, 5, 1}),
        met(sizeList{1, 300}, sizeList{1, 1, 2}, sizeList{1, 300, 2})}) {
    expectIndexArithmetic(shapes);
  }
}

// Every mix of arrays and single elements, at counts around the block in which single elements are repeated.
TEST(TernaryOp, TakesEachOfTheSevenFlatForms) {
  for (const unsigned long n : {2UL, 3UL, 67UL, 255UL, 256UL, 257UL, 1000UL}) {
    for (unsigned mix = 1; mix < 8; ++mix) {
      const auto shapeOf = [&](unsigned bit) { return (mix & bit) != 0 ? sizeList{n} : sizeList{1}; };
      expectIndexArithmetic(met(shapeOf(4), shapeOf(2), shapeOf(1)));
    }
  }
}

TEST(TernaryOp, MeetsASecondFixedAlongTheRun) {
  const tripleShapes shapes = met({3, 1}, {1, 4}, {3, 4});
  const half_utils::expansionPlan plan({3, 2, shapes.a.data()}, {4, 2, shapes.b.data()}, {12, 2, shapes.c.data()},
                                       {12, 2, shapes.out.data()});
  EXPECT_EQ(plan.runMeeting, 5u);
  EXPECT_EQ(plan.run, 3u);
  EXPECT_EQ(plan.runs, 4u);
  expectIndexArithmetic(shapes);
}

TEST(TernaryOp, ExpandsEqualCountsOfDifferentShapes) {
  // No output holds 2 by 3 and 3 by 2 at once; what shows is that sizes are looked at: 6 by 1 and 1 by 6 make 36.
  expectIndexArithmetic(met({6, 1}, {1, 6}, {1}));
  expectIndexArithmetic(met({6, 1}, {1}, {1, 6}));
  expectIndexArithmetic(met({1}, {6, 1}, {1, 6}));
}

// Dimensions beyond the shorter list count as 1 and are looked at too.
TEST(TernaryOp, WritesEveryOutputWhereOneOperandHasMoreDimensions) {
  expectIndexArithmetic(met({6}, {6, 2}, {6}));
  expectIndexArithmetic(met({6}, {6}, {6, 2}));
  expectIndexArithmetic(met({6, 2}, {6}, {6}));
  expectIndexArithmetic(met({1}, {6}, {6, 2}));
  expectIndexArithmetic(met({1}, {6, 2}, {6}));
  expectIndexArithmetic(met({1}, {}, {6, 2}));
  expectIndexArithmetic(met({}, {6, 1, 1}, {6}));
}

TEST(TernaryOp, TouchesNothingForAnEmptyOutput) {
  firstElement* const a = nullptr;
  secondElement* const b = nullptr;
  thirdElement* const c = nullptr;
  outElement* const d = nullptr;
  for (const unsigned long n : {0UL, 1UL, 7UL}) {
    half_utils::halfTernaryOp<tripleFtor>(a, b, c, d, n, 2, nullptr, 5, 2, nullptr, n, 2, nullptr, 0, 2, nullptr);
  }
}

TEST(TernaryOpInParallel, GivesTheBitsOfTheSerialLoops) {
  for (const unsigned long n : {0UL, 1UL, 63UL, 65UL, 30'003UL}) {
    operands x(n + 1, n + 1, n + 1);
    const auto check = [&](auto a, auto b, auto c) {
      outputs serial(n + 1, 9);
      half_utils::halfTernaryOpParallelLoop(a, b, c, serial.data(), n, tripleFtor{});
      for (unsigned long i = 0; i < n; ++i) {
        ASSERT_EQ(serial[i],
                  tripleFtor{}(half_utils::elementOf(a, i), half_utils::elementOf(b, i), half_utils::elementOf(c, i)));
      }
      ASSERT_EQ(serial[n], 9u);
      onEachThreadCount([&](int threads) {
        for (const bool repeats : {false, true}) {
          outputs d(n + 1, 9);
          repeats ? half_utils::ternaryOpParallel(a, b, c, d.data(), n, repeatingFtor{})
                  : half_utils::ternaryOpParallel(a, b, c, d.data(), n, tripleFtor{});
          EXPECT_EQ(d, serial) << n << " elements on " << threads << " threads";
        }
      });
    };
    const firstElement a = 5;
    const secondElement b = 6;
    const thirdElement c = 7;
    check(x.a.data(), x.b.data(), x.c.data());
    check(x.a.data(), x.b.data(), c);
    check(x.a.data(), b, x.c.data());
    check(x.a.data(), b, c);
    check(a, x.b.data(), x.c.data());
    check(a, x.b.data(), c);
    check(a, b, x.c.data());
  }
}

TEST(TernaryOpInParallel, GivesTheBitsOfTheSerialExpansion) {
  const auto shapeOf = [](sizeList const& dims) { return half_utils::shape{countOf(dims), dims.size(), dims.data()}; };
  std::mt19937_64 bits(192);
  std::vector<tripleShapes> meetings{met({100, 1}, {1, 200}, {100, 200}), met({3, 1}, {1, 5000}, {3, 1}),
                                     met({2, 1, 300}, {1, 5, 300}, {2, 5, 1})};
  while (meetings.size() < 100) {
    tripleShapes shapes = randomTriple(bits);
    if (countOf(shapes.out) != 0) meetings.push_back(std::move(shapes));
  }
  for (tripleShapes const& shapes : meetings) {
    operands x(shapes);
    const outputs expected = expectedOf(shapes, x);
    const half_utils::expansionPlan plan(shapeOf(shapes.a), shapeOf(shapes.b), shapeOf(shapes.c), shapeOf(shapes.out));
    onEachThreadCount([&](int threads) {
      outputs d(expected.size(), sentinel);
      half_utils::expandTernaryOp<tripleFtor>(x.a.data(), x.b.data(), x.c.data(), d.data() + 1, plan, true);
      EXPECT_EQ(d, expected) << shapes << " on " << threads << " threads";
    });
  }
}

threadWitness witness;

struct witnessFtor {
  static constexpr unsigned long grain = 256;
  unsigned short operator()(unsigned short a, unsigned short, unsigned short) const {
    witness.called();
    return a;
  }
};

TEST(TernaryOp, RunsAMillionElementsOnTheCallingThread) {
  constexpr unsigned long million = 1'000'000;
  std::vector<unsigned short> a(million, 1), d(million);
  const sizeList all{1000, 1000}, column{1000, 1}, row{1, 1000};
  const auto call = [&](sizeList const& dimsA, sizeList const& dimsB, sizeList const& dimsC) {
    half_utils::halfTernaryOp<witnessFtor>(a.data(), a.data(), a.data(), d.data(), countOf(dimsA), 2, dimsA.data(),
                                           countOf(dimsB), 2, dimsB.data(), countOf(dimsC), 2, dimsC.data(), million, 2,
                                           all.data());
  };
  onThreads(4, [&] {
    witness.expectOnlyThisThread();
    call(all, all, all);
    call(column, row, all);
    call(all, {1, 1}, {1, 1});
    EXPECT_EQ(witness.calls(), 3 * million);
    EXPECT_EQ(witness.strangers(), 0u);
  });
}

}  // namespace
}  // namespace zthalf
