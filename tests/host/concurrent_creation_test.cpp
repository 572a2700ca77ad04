// The first calls of the process, on several threads at once. Run with the thread sanitizer too.
#include <gtest/gtest.h>

#include <barrier>
#include <thread>
#include <vector>

#include "tests/host/support/provider.h"
#include "zthalf/host.h"

namespace zthalf {
namespace {

using namespace testing::provider;

TEST(ConcurrentCreation, OfTheFirstArrays) {
  constexpr int threads = 4;
  const long before = live();
  std::barrier start(threads);
  std::vector<std::thread> running;
  for (int t = 0; t < threads; ++t)
    running.emplace_back([&, t] {
      start.arrive_and_wait();
      for (unsigned long i = 1; i <= 50; ++i) {
        const held array(half::createHalfMatrix(i, 2, (i + t) % 2 == 0));
        EXPECT_EQ(vq_or_half::vqGetNumberOfElements(array), 2 * i);
        half::freeImagIfZero(array);
        EXPECT_FALSE(half::isVqArrayComplex(array));
      }
    });
  for (std::thread& one : running) one.join();
  EXPECT_EQ(live(), before);
}

}  // namespace
}  // namespace zthalf
