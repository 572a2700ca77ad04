// Calls in a process that fork() made after threads were in use. A program of its own, since it begins without threads.
#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <chrono>
#include <complex>
#include <filesystem>
#include <thread>
#include <vector>

#include "tests/support/threads.h"
#include "zthalf/half_extrema.h"
#include "zthalf/half_vector.h"

namespace zthalf {
namespace {

using namespace zthalf::testing;

std::ptrdiff_t threadsOfThisProcess() {
  const std::filesystem::directory_iterator tasks("/proc/self/task");
  return std::distance(begin(tasks), end(tasks));
}

std::vector<half_t> ones(1 << 19, half_t{0x3C00});

// Calls of every kind of fork, and one that stays on its thread. Whether all results are right.
bool computes() {
  half_t total, largest, e;
  unsigned long many = 200'000, more = ones.size(), dims[] = {3, 2000};
  std::vector<half_t> totals(2000);
  half_vector::sum(ones.data(), &total, 1, &many, true, false, false, FloatTypeSingle, FloatTypeHalf);
  half_vector::maxUnaryOp(ones.data(), &largest, 1, &more, true, false, false);
  half_vector::sum(ones.data(), totals.data(), 2, dims, true, false, false, FloatTypeHalf, FloatTypeHalf);
  half_vector::exp(ones.data(), &e, 1);
  const bool isReal = half_vector::isImagZero(reinterpret_cast<std::complex<half_t>*>(ones.data()), 5000);
  return total.bits == 0x7C00 && largest.bits == 0x3C00 && totals[1999].bits == 0x4200 && e.bits == 0x4170 && !isReal;
}

// How a child ends that does this: 0 when all is well, 256 when it hangs.
template <class Task>
int endOfAChildThat(Task task) {
  const pid_t child = fork();
  if (child == 0) {
    alarm(60);
    _exit(task());
  }
  int status = 0;
  EXPECT_EQ(waitpid(child, &status, 0), child);
  return WIFEXITED(status) ? WEXITSTATUS(status) : 256;
}

// Threads that oneTBB starts need a moment until they can be seen.
int computingAlone() {
  if (!computes()) return 1;
  std::this_thread::sleep_for(std::chrono::milliseconds(50));
  return threadsOfThisProcess() == 1 ? 0 : 2;
}

TEST(ForkedProcess, ComputesOnItsOneThread) {
  ASSERT_EQ(threadsOfThisProcess(), 1);
  onThreads(1, [] { EXPECT_TRUE(computes()); });
  EXPECT_EQ(endOfAChildThat(&computingAlone), 0);
}

// Copied at moments at which threads were just at work.
TEST(ForkedProcess, NeverWaitsForThreadsThatItDoesNotHave) {
  onThreads(4, [] {
    for (int repeat = 0; repeat < 300; ++repeat) {
      EXPECT_TRUE(computes());
      ASSERT_EQ(endOfAChildThat([] { return computes() ? 0 : 1; }), 0) << "copy " << repeat;
    }
    EXPECT_GT(threadsOfThisProcess(), 1);
  });
}

}  // namespace
}  // namespace zthalf
