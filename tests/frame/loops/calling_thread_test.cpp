// Which calls stay on the calling thread. A program of its own, since it counts the threads that come into being.
#include <gtest/gtest.h>

#include <chrono>
#include <filesystem>
#include <thread>
#include <vector>

#include "tests/support/stage.h"
#include "tests/support/threads.h"
#include "tests/support/unary_rows.h"
#include "zthalf/half_ops.h"
#include "zthalf/half_vector.h"

namespace zthalf {
namespace {

using namespace zthalf::testing;

constexpr unsigned long million = 1'000'000;

std::ptrdiff_t threadsOfThisProcess() {
  const std::filesystem::directory_iterator tasks("/proc/self/task");
  return std::distance(begin(tasks), end(tasks));
}

void callEveryUnaryRow() {
  std::vector<std::byte> source(16 * million), result(16 * million);
  bitSource bits(41);
  drawInto<unsigned char>(source.data(), 1000, bits);
  forEachUnaryRow([&](auto row) {
    using type = decltype(row);
    row.facade(arrayAt<typename type::input>(source.data()), arrayAt<typename type::output>(result.data()), million);
  });
}

// Both operands whole, one element on either side, and runs of the general expansion.
void callPlus() {
  std::vector<half_t> a(million), b(million), c(million);
  const unsigned long one[] = {1, 1}, all[] = {1000, 1000}, column[] = {1000, 1}, row[] = {1, 1000};
  const auto plus = [&](unsigned long na, unsigned long const* dimsA, unsigned long nb, unsigned long const* dimsB) {
    half_vector::plus(a.data(), b.data(), c.data(), na, 2, dimsA, nb, 2, dimsB, million, 2, all);
  };
  plus(million, all, million, all);
  plus(1, one, million, all);
  plus(million, all, 1, one);
  plus(1000, column, 1000, row);
  plus(1000, row, 1000, column);
  plus(million, all, 1000, column);
}

void callUlp() {
  std::vector<half_t> a(million), b(million);
  std::vector<double> distances(million);
  half_vector::ulp(a.data(), b.data(), distances.data(), million);
}

bool scanStartsThreads(unsigned long n) {
  const std::ptrdiff_t before = threadsOfThisProcess();
  std::vector<half_t> data(n, half_t{0x3C00});
  data[n / 2] = {0x7C00};
  EXPECT_FALSE(half::isWholeArrayFinite(stored(data.data()), n));
  for (int patience = 0; patience < 200 && threadsOfThisProcess() == before; ++patience) {
    std::this_thread::sleep_for(std::chrono::milliseconds(1));
  }
  return threadsOfThisProcess() > before;
}

TEST(CallingThread, DoesAllElementwiseWorkAndShortScans) {
  onThreads(4, [] {
    const std::ptrdiff_t before = threadsOfThisProcess();
    callEveryUnaryRow();
    EXPECT_EQ(threadsOfThisProcess(), before);
    callPlus();
    EXPECT_EQ(threadsOfThisProcess(), before);
    callUlp();
    EXPECT_EQ(threadsOfThisProcess(), before);
    EXPECT_FALSE(scanStartsThreads(2048));
    EXPECT_TRUE(scanStartsThreads(2049));  // also shows that a fork would have been seen above
  });
}

}  // namespace
}  // namespace zthalf
