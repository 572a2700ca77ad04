// What the two-operand engine allocates, and what happens when it gets nothing.
#include <gtest/gtest.h>

#include <stdexcept>
#include <vector>

#include "elementwise/binary_op.h"
#include "tests/support/counted_allocation.h"
#include "tests/support/shapes.h"
#include "tests/support/threads.h"
#include "zthalf/half_vector.h"

namespace zthalf {
namespace {

using namespace zthalf::testing;

struct addFtor {
  static constexpr unsigned long grain = 64;
  ZTHALF_INLINE int operator()(int a, int b) const { return a + b; }
};

struct table {
  std::vector<int> a = std::vector<int>(30, 1), b = std::vector<int>(40, 2), c = std::vector<int>(1200);
  sizeList dimsA{30, 1}, dimsB{1, 40}, dimsC{30, 40};

  void fill() {
    half_utils::halfBinaryOp<addFtor>(a.data(), b.data(), c.data(), 30, 2, dimsA.data(), 40, 2, dimsB.data(), 1200, 2,
                                      dimsC.data());
  }
  half_utils::expansionPlan plan() const {
    return {{30, 2, dimsA.data()}, {40, 2, dimsB.data()}, {1200, 2, dimsC.data()}};
  }
};

TEST(FlatLoop, AllocatesNothing) {
  table x;
  std::vector<half_t> halves(1200), sums(1200);
  const long before = allocations::made();
  const unsigned long n = 30, one = 1;
  half_utils::halfBinaryOp<addFtor>(x.a.data(), x.b.data(), x.c.data(), 30, 1, &n, 30, 1, &n, 30, 1, &n);
  half_utils::halfBinaryOp<addFtor>(x.a.data(), x.b.data(), x.c.data(), 1, 1, &one, 30, 1, &n, 30, 1, &n);
  half_utils::halfBinaryOp<addFtor>(x.a.data(), x.b.data(), x.c.data(), 30, 1, &n, 1, 1, &one, 30, 1, &n);
  half_utils::halfBinaryOp<addFtor>(x.a.data(), x.b.data(), x.c.data(), 30, 1, &n, 30, 1, &n, 0, 1, &n);
  half_vector::plus(halves.data(), halves.data(), sums.data(), 30, 1, &n, 30, 1, &n, 30, 1, &n);
  half_vector::uminus(halves.data(), sums.data(), halves.size());
  EXPECT_EQ(allocations::made(), before);
}

TEST(Expansion, GivesBackAllItAllocates) {
  table x;
  const long before = allocations::live(), madeBefore = allocations::made();
  x.fill();
  EXPECT_EQ(allocations::live(), before);
  EXPECT_GT(allocations::made(), madeBefore);
  for (const int sum : x.c) EXPECT_EQ(sum, 3);
}

TEST(Expansion, PassesAFailedAllocationOutAndKeepsNothing) {
  table x;
  const long before = allocations::live();
  long failures = 0;
  for (bool failed = true; failed; ++failures) {
    allocations::failAfter(failures);
    try {
      x.fill();
      failed = false;
    } catch (std::bad_alloc const&) {
      EXPECT_FALSE(allocations::stillToFail());
    }
    EXPECT_EQ(failed, !allocations::stillToFail());
    allocations::failAfter(-1);
    EXPECT_EQ(allocations::live(), before) << "after failure " << failures;
  }
  EXPECT_GT(failures, 1);
  for (const int sum : x.c) EXPECT_EQ(sum, 3);
}

// On one thread, since the scheduler may allocate for its workers when it pleases.
TEST(Expansion, PassesAFailedAllocationOutOfItsParallelBranch) {
  table x;
  const half_utils::expansionPlan plan = x.plan();
  onThreads(1, [&] {
    half_utils::expandOp<addFtor>(x.a.data(), x.b.data(), x.c.data(), plan, true);
    const long before = allocations::live();
    for (long successes = 0; successes < 3; ++successes) {
      allocations::failAfter(successes);
      EXPECT_THROW(half_utils::expandOp<addFtor>(x.a.data(), x.b.data(), x.c.data(), plan, true), std::bad_alloc);
      EXPECT_EQ(allocations::live(), before);
    }
    allocations::failAfter(-1);
  });
}

TEST(TernaryExpansion, PassesAFailedAllocationOutAndKeepsNothing) {
  std::vector<half_t> a(30, {0x3C00}), b(40, {0x4000}), c(1200, {0x0000}), d(1200);
  const sizeList column{30, 1}, row{1, 40}, matrix{30, 40};
  const long before = allocations::live();
  long failures = 0;
  for (bool failed = true; failed; ++failures) {
    allocations::failAfter(failures);
    try {
      half_vector::fma(a.data(), b.data(), c.data(), d.data(), 30, 2, column.data(), 40, 2, row.data(), 1200, 2,
                       matrix.data(), 1200, 2, matrix.data());
      failed = false;
    } catch (std::bad_alloc const&) {
      EXPECT_FALSE(allocations::stillToFail());
    }
    allocations::failAfter(-1);
    EXPECT_EQ(allocations::live(), before) << "after failure " << failures;
  }
  EXPECT_GT(failures, 1);
  for (const half_t product : d) EXPECT_EQ(product.bits, 0x4000);
}

TEST(TernaryFlatLoop, AllocatesNothing) {
  std::vector<half_t> a(5), d(5);
  std::vector<float> single(5);
  const unsigned long n = 5, one = 1;
  const long before = allocations::made();
  half_vector::fma(a.data(), a.data(), a.data(), d.data(), n, 1, &n, one, 1, &one, one, 1, &one, n, 1, &n);
  half_vector::fma(a.data(), single.data(), a.data(), d.data(), n, 1, &n, one, 1, &one, one, 1, &one, n, 1, &n);
  EXPECT_EQ(allocations::made(), before);
}

// Sizes count, not only counts: six elements as 2 by 3 and six as 3 by 2 are no flat loop, which shows by what is
// allocated.
TEST(TernaryExpansion, IsWhatEqualCountsOfDifferentShapesGet) {
  std::vector<half_t> a(6), d(6);
  const sizeList low{2, 3}, tall{3, 2}, one{1, 1};
  const auto allocatesFor = [&](sizeList const& dimsB, sizeList const& dimsC) {
    const long before = allocations::made();
    half_vector::fma(a.data(), a.data(), a.data(), d.data(), 6, 2, low.data(), countOf(dimsB), 2, dimsB.data(),
                     countOf(dimsC), 2, dimsC.data(), 6, 2, low.data());
    return allocations::made() != before;
  };
  EXPECT_FALSE(allocatesFor(low, low));
  EXPECT_FALSE(allocatesFor(low, one));
  EXPECT_FALSE(allocatesFor(one, low));
  EXPECT_TRUE(allocatesFor(tall, one));
  EXPECT_TRUE(allocatesFor(one, tall));
  EXPECT_TRUE(allocatesFor(low, tall));
}

// Asks for working arrays that no memory could hold, or that are refused.
template <class Failure>
void expectRefused(unsigned long ndims, long successes) {
  half_t a[2] = {}, b[2] = {}, c[4] = {};
  const sizeList sizes{2, 1};
  const long before = allocations::live();
  allocations::failAfter(successes);
  EXPECT_THROW(half_vector::plus(a, b, c, 2, 2, sizes.data(), 2, 2, sizes.data(), 4, ndims, sizes.data()), Failure)
      << ndims << " dimensions";
  allocations::failAfter(-1);
  EXPECT_EQ(allocations::live(), before);
}

TEST(Expansion, RefusesAnAbsurdNumberOfDimensionsAsALengthError) {
  expectRefused<std::length_error>(1UL << 61, -1);
  expectRefused<std::length_error>((1UL << 61) + 1, -1);
  expectRefused<std::length_error>(1UL << 63, -1);
  expectRefused<std::length_error>(-1UL, -1);
}

TEST(Expansion, RefusesWhatItCannotAllocateAsABadAlloc) { expectRefused<std::bad_alloc>(1UL << 40, 0); }

}  // namespace
}  // namespace zthalf
