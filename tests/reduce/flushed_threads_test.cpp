// The tasks of a reduction run in the float environment of the thread that calls, whatever was in force when the worker
// threads or their arena were made. Seen by products that come back from the subnormal numbers, or do not.
#include <gtest/gtest.h>

#include <algorithm>
#include <vector>

#include "tests/support/flushed.h"
#include "tests/support/threads.h"
#include "zthalf/half_ptr.h"

namespace zthalf {
namespace {

using namespace zthalf::testing;

constexpr unsigned long columnLength = 20, columns = 8192;

// Ten times 2^-14 and ten times 2^14: 1 in single, and 0 where subnormals are flushed.
std::vector<fp16binary_t> returningColumns() {
  std::vector<fp16binary_t> all(columnLength * columns);
  for (std::size_t i = 0; i < all.size(); ++i) all[i].bits = i % columnLength < columnLength / 2 ? 0x0400 : 0x7400;
  return all;
}

void expectProducts(std::uint16_t pattern, char const* where) {
  auto src = returningColumns();
  std::vector<fp16binary_t> dst(columns);
  unsigned long dims[] = {columnLength, columns};
  half_ptr::prodReduceSinglePtr(src.data(), dst.data(), 2, dims, true);
  const auto wrong = std::count_if(dst.begin(), dst.end(), [&](fp16binary_t x) { return x.bits != pattern; });
  EXPECT_EQ(wrong, 0) << "of " << columns << " products " << where;
}

constexpr std::uint16_t one = 0x3C00, zero = 0x0000;

TEST(FlushedThreads, ACallerThatBeginsToFlushIsFollowed) {
  if (!canFlush) GTEST_SKIP();
  onEachThreadCount([](int) {
    expectProducts(one, "in the ordinary environment");
    const flushedScope flushed;
    expectProducts(zero, "flushed");
  });
}

TEST(FlushedThreads, ACallerThatStopsFlushingIsFollowed) {
  if (!canFlush) GTEST_SKIP();
  const flushedScope flushed;
  onEachThreadCount([](int) {
    expectProducts(zero, "flushed");
    const flushedScope ordinary(false);
    expectProducts(one, "in the ordinary environment");
  });
}

}  // namespace
}  // namespace zthalf
