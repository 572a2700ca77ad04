// What reductions allocate, and what happens when they get nothing.
#include <gtest/gtest.h>

#include <stdexcept>
#include <vector>

#include "tests/support/counted_allocation.h"
#include "tests/support/threads.h"
#include "zthalf/half_vector.h"

namespace zthalf {
namespace {

using namespace zthalf::testing;

struct example {
  explicit example(std::vector<unsigned long> sizes) : dims(std::move(sizes)) {
    unsigned long n = 1;
    for (const unsigned long size : dims) n *= size;
    x.assign(n, half_t{0x3C00});
    results.assign(n, half_t{});
  }
  void reduce(bool firstReduced) {
    half_vector::sum(x.data(), results.data(), dims.size(), dims.data(), firstReduced, false, false, FloatTypeSingle,
                     FloatTypeHalf);
  }
  std::vector<unsigned long> dims;
  std::vector<half_t> x, results;
};

// Lets the k-th allocation fail for every k, until one call succeeds.
void expectEveryFailureToPass(example& e, bool firstReduced) {
  const long before = allocations::live();
  long failures = 0;
  for (bool failed = true; failed; ++failures) {
    allocations::failAfter(failures);
    try {
      e.reduce(firstReduced);
      failed = false;
    } catch (std::bad_alloc const&) {
      EXPECT_FALSE(allocations::stillToFail());
    }
    allocations::failAfter(-1);
    EXPECT_EQ(allocations::live(), before) << "after failure " << failures;
    ASSERT_LT(failures, 100);
  }
  EXPECT_GT(failures, 1);
}

TEST(Reductions, OfWholeArraysAllocateNothing) {
  std::vector<half_t> x(30000, half_t{0x3C00});
  half_t result;
  unsigned long n = x.size();
  const long before = allocations::made();
  half_vector::sum(x.data(), &result, 1, &n, true, false, false, FloatTypeHalf, FloatTypeHalf);
  half_vector::meanSimpleReduceSingle(x.data(), &result, n);
  EXPECT_EQ(allocations::made(), before);
}

TEST(Reductions, AlongDimensionsGiveBackWhatTheyAllocate) {
  for (const bool firstReduced : {true, false}) {
    example e({4, 5, 6});
    const long before = allocations::live(), madeBefore = allocations::made();
    e.reduce(firstReduced);
    EXPECT_EQ(allocations::live(), before);
    EXPECT_GT(allocations::made(), madeBefore);
  }
}

TEST(Reductions, PassAFailedAllocationOutAndKeepNothing) {
  for (const bool firstReduced : {true, false}) {
    example e({4, 5, 6});
    expectEveryFailureToPass(e, firstReduced);
    EXPECT_EQ(e.results[0].bits, firstReduced ? 0x4E00 : 0x4500) << "the last call succeeded";
  }
}

// On one thread, since the scheduler may allocate for its workers when it pleases.
TEST(Reductions, PassAFailedAllocationOutOfTheirFork) {
  for (const bool firstReduced : {true, false}) {
    example e(firstReduced ? std::vector<unsigned long>{2, 3000} : std::vector<unsigned long>{3000, 2});
    onThreads(1, [&] {
      e.reduce(firstReduced);
      expectEveryFailureToPass(e, firstReduced);
    });
  }
}

TEST(Reductions, RefuseAnAbsurdNumberOfDimensions) {
  half_t x{}, result{};
  unsigned long dims[] = {1, 1};
  const long before = allocations::live();
  EXPECT_THROW(half_vector::sum(&x, &result, 1UL << 61, dims, true, false, false, FloatTypeHalf, FloatTypeHalf),
               std::length_error);
  allocations::failAfter(0);
  EXPECT_THROW(half_vector::sum(&x, &result, 1UL << 40, dims, true, false, false, FloatTypeHalf, FloatTypeHalf),
               std::bad_alloc);
  allocations::failAfter(-1);
  EXPECT_EQ(allocations::live(), before);
}

}  // namespace
}  // namespace zthalf
