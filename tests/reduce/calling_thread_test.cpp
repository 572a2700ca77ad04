// Which extrema of columns stay on the calling thread. A program of its own, since it counts the threads that come into
// being.
#include <gtest/gtest.h>

#include <chrono>
#include <filesystem>
#include <thread>
#include <vector>

#include "tests/support/threads.h"
#include "zthalf/half_extrema.h"

namespace zthalf {
namespace {

using namespace zthalf::testing;

std::ptrdiff_t threadsOfThisProcess() {
  const std::filesystem::directory_iterator tasks("/proc/self/task");
  return std::distance(begin(tasks), end(tasks));
}

// The largest of two columns of so many elements.
bool startsThreads(unsigned long length, bool withIndex) {
  const std::ptrdiff_t before = threadsOfThisProcess();
  std::vector<half_t> x(2 * length, half_t{0x3C00}), results(2);
  std::vector<double> index(2);
  x[length / 2] = x[2 * length - 1] = {0x4000};
  unsigned long dims[] = {length, 2};
  if (withIndex) {
    half_vector::maxUnaryOpWithIndex(x.data(), results.data(), index.data(), 2, dims, true, false, false, false);
    EXPECT_EQ(index[0], static_cast<double>(length / 2 + 1));
    EXPECT_EQ(index[1], static_cast<double>(length));
  } else {
    half_vector::maxUnaryOp(x.data(), results.data(), 2, dims, true, false, false);
  }
  EXPECT_EQ(results[0].bits, 0x4000);
  EXPECT_EQ(results[1].bits, 0x4000);
  for (int patience = 0; patience < 200 && threadsOfThisProcess() == before; ++patience) {
    std::this_thread::sleep_for(std::chrono::milliseconds(1));
  }
  return threadsOfThisProcess() > before;
}

TEST(CallingThread, LooksThroughShortColumnsAlone) {
  onThreads(4, [] {
    EXPECT_FALSE(startsThreads(1 << 18, false));
    EXPECT_FALSE(startsThreads(1 << 18, true));
    EXPECT_TRUE(startsThreads((1 << 18) + 1, false));  // also shows that a fork would have been seen above
  });
}

}  // namespace
}  // namespace zthalf
