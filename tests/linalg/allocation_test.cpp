// What linear algebra allocates, and what happens when it gets nothing.
#include <gtest/gtest.h>
#include <pthread.h>

#include <vector>

#include "tests/linalg/product_rows.h"
#include "tests/support/counted_allocation.h"

namespace zthalf {
namespace {

using namespace zthalf::testing;

// Lets each allocation of a call fail in turn. The call's output stays as it was until the call succeeds.
template <class Call, class Output>
long failuresOf(Call call, Output const& output) {
  const Output before = output;
  const long live = allocations::live();
  long failures = 0;
  for (bool failed = true; failed; ++failures) {
    allocations::failAfter(failures);
    try {
      call();
      failed = false;
    } catch (std::bad_alloc const&) {
    }
    allocations::failAfter(-1);
    if (failed) {
      EXPECT_EQ(std::memcmp(output.data(), before.data(), output.size() * sizeof output[0]), 0) << failures;
    }
    EXPECT_EQ(allocations::live(), live + 0) << failures;
  }
  EXPECT_NE(std::memcmp(output.data(), before.data(), output.size() * sizeof output[0]), 0);
  return failures - 1;
}

constexpr unsigned long m = 100, k = 300, n = 70;

TEST(MatrixProduct, PassesAFailedAllocationOutAndLeavesTheOutputAlone) {
  bitSource bits(1);
  forEachProductRow([&](auto row) {
    using Row = decltype(row);
    auto a = drawnMatrix<typename Row::left>(m * k, values::spoilt, bits);
    auto b = drawnMatrix<typename Row::right>(k * n, values::spoilt, bits);
    const auto mark = moderateNumber<typename Row::output>::draw(bits);
    std::vector<typename Row::output> c(m * n, mark);
    EXPECT_GT(failuresOf([&] { row.facade(a.data(), b.data(), c.data(), m, k, n); }, c), 0) << row.name;
  });
}

TEST(MatrixProduct, AllocatesNothingForSmallSizes) {
  bitSource bits(2);
  auto a = drawnMatrix<half_t>(16 * 16, values::spoilt, bits);
  std::vector<half_t> c(16 * 16);
  const long before = allocations::made();
  half_vector::mtimes(a.data(), a.data(), c.data(), 16, 16, 16);
  half_vector::mtimes(a.data(), a.data(), c.data(), 4, 4, 4);
  char n[] = "N";
  half_vector::hgemm(n, n, 16, 16, 16, {0x3C00}, a.data(), 16, a.data(), 16, {0x3C00}, c.data(), 16);
  half_vector::htrsm(n, n, n, n, 16, 16, {0x3C00}, a.data(), 16, c.data(), 16);
  EXPECT_EQ(allocations::made(), before);
}

TEST(Hgemm, PassesAFailedAllocationOutAndLeavesTheOutputAlone) {
  bitSource bits(3);
  for (char transa : {'N', 'T'}) {
    auto a = drawnMatrix<half_t>(m * k, values::spoilt, bits);
    auto b = drawnMatrix<half_t>(k * n, values::spoilt, bits);
    std::vector<half_t> c(m * n, {0x3C00});
    const auto call = [&] {
      half_vector::hgemm(&transa, &transa, m, n, k, {0x3C00}, a.data(), m, b.data(), k, {0x3C00}, c.data(), m);
    };
    EXPECT_GT(failuresOf(call, c), 0) << transa;
  }
}

TEST(Htrsm, PassesAFailedAllocationOutAndLeavesTheOutputAlone) {
  bitSource bits(4);
  for (char side : {'L', 'R'}) {
    auto a = drawnMatrix<half_t>(m * m, values::moderate, bits);
    std::vector<half_t> b(m * m, {0x3C00});
    const auto call = [&] { half_vector::htrsm(&side, &side, &side, &side, m, m, {0x4000}, a.data(), m, b.data(), m); };
    EXPECT_GT(failuresOf(call, b), 0) << side;
  }
}

// Everything on a thread with as little stack as a thread may have here, and a page for the test itself.
TEST(LinearAlgebra, RunsOnASmallStack) {
  pthread_attr_t attributes;
  ASSERT_EQ(pthread_attr_init(&attributes), 0);
  ASSERT_EQ(pthread_attr_setstacksize(&attributes, 64 << 10), 0);
  pthread_t thread;
  const auto work = [](void*) -> void* {
    bitSource bits(5);
    forEachProductRow([&](auto row) {
      using Row = decltype(row);
      for (const unsigned long size : {10, 90}) {
        auto a = drawnMatrix<typename Row::left>(size * size, values::anything, bits);
        auto b = drawnMatrix<typename Row::right>(size * size, values::anything, bits);
        std::vector<typename Row::output> c(size * size);
        row.facade(a.data(), b.data(), c.data(), size, size, size);
      }
    });
    auto a = drawnMatrix<half_t>(130 * 130, values::moderate, bits);
    std::vector<unsigned long> ipiv(130);
    int info;
    half_vector::hgetrf(130, 130, a.data(), 130, ipiv.data(), info);
    return nullptr;
  };
  ASSERT_EQ(pthread_create(&thread, &attributes, work, nullptr), 0);
  EXPECT_EQ(pthread_join(thread, nullptr), 0);
  pthread_attr_destroy(&attributes);
}

}  // namespace
}  // namespace zthalf
