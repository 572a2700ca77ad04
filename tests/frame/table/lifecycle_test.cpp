// The marks for loading and unloading. A program of its own: the first test sees what the others change.
#include "zthalf/lifecycle.h"

#include <gtest/gtest.h>

#include <limits>
#include <vector>

#include "zthalf/half_ptr.h"
#include "zthalf/half_vector.h"

// The declarations of a caller that knows nothing of C linkage.
namespace cxx {
void initialize() __asm__("_Z17VLInitialize_halfv");
void terminate() __asm__("_Z16VLTerminate_halfv");
}  // namespace cxx

namespace zthalf {
namespace {

std::vector<std::uint16_t> negatedPatterns() {
  std::vector<half_t> source(0x10000), result(0x10000);
  for (std::uint32_t p = 0; p <= 0xFFFF; ++p) source[p] = {static_cast<std::uint16_t>(p)};
  half_vector::uminus(source.data(), result.data(), result.size());
  std::vector<std::uint16_t> patterns;
  for (const half_t x : result) patterns.push_back(x.bits);
  return patterns;
}

// Taken while the program is loaded, before main.
const bool initializedAtLoad = half_ptr::isInitialized();
const std::vector<std::uint16_t> negatedAtLoad = negatedPatterns();

// Must stay the first test: afterwards the process has been initialised.
TEST(Lifecycle, BeginsUninitializedAndStaysSoUntilAsked) {
  EXPECT_FALSE(initializedAtLoad);
  EXPECT_FALSE(half_ptr::isInitialized());
  EXPECT_EQ(half_ptr::initialized, 0);
  VLTerminate_half();
  EXPECT_FALSE(half_ptr::isInitialized());
}

// Every way to initialise, each from the state at load.
class LifecycleWays : public ::testing::TestWithParam<void (*)()> {
 protected:
  void SetUp() override { half_ptr::initialized = 0; }
};

TEST_P(LifecycleWays, InitializeForGoodAndMayBeRepeated) {
  ASSERT_FALSE(half_ptr::isInitialized());
  GetParam()();
  EXPECT_TRUE(half_ptr::isInitialized());
  EXPECT_EQ(half_ptr::initialized, 1);
  GetParam()();
  EXPECT_EQ(half_ptr::initialized, 1);
  VLTerminate_half();
  EXPECT_TRUE(half_ptr::isInitialized());
  VLTerminate_half();
  EXPECT_TRUE(half_ptr::isInitialized());
  GetParam()();
  EXPECT_EQ(half_ptr::initialized, 1);
}

INSTANTIATE_TEST_SUITE_P(All, LifecycleWays,
                         ::testing::Values(
                             &VLInitialize_half, &cxx::initialize, [] { half_ptr::CPU_Dispatch(0); },
                             [] { half_ptr::CPU_Dispatch(1); }, [] { half_ptr::CPU_Dispatch(-7); },
                             [] { half_ptr::CPU_Dispatch(std::numeric_limits<int>::max()); }));

TEST(Lifecycle, LeavesAMarkThatIsAlreadySetAsItIs) {
  half_ptr::initialized = 5;
  VLInitialize_half();
  EXPECT_EQ(half_ptr::initialized, 5);
  EXPECT_TRUE(half_ptr::isInitialized());
  half_ptr::CPU_Dispatch(0);
  EXPECT_EQ(half_ptr::initialized, 1);
}

TEST(Lifecycle, HasNoEffectOnResults) {
  half_ptr::initialized = 0;
  const auto before = negatedPatterns();
  EXPECT_EQ(before, negatedAtLoad);
  VLInitialize_half();
  EXPECT_EQ(negatedPatterns(), before);
  cxx::terminate();
  EXPECT_EQ(negatedPatterns(), before);
  for (std::uint32_t p = 0; p <= 0xFFFF; ++p) ASSERT_EQ(before[p], p ^ 0x8000);
}

}  // namespace
}  // namespace zthalf
