// Memory that runs out at any point, in the host or in the library: the exception comes out, and once the host has
// cleared up nothing is left.
#include <gtest/gtest.h>

#include <array>
#include <cstdint>
#include <functional>

#include "host/errors.h"
#include "tests/host/support/provider.h"
#include "tests/support/counted_allocation.h"
#include "zthalf/codetext.h"
#include "zthalf/host.h"
#include "zthalf/host_functions.h"

// Aligned memory is counted with the rest: a larger block, whose own address stands before what is handed out.
void* operator new(std::size_t size, std::align_val_t alignment) {
  const auto mask = static_cast<std::uintptr_t>(alignment) - 1;
  void* const block = zthalf::testing::allocations::allocate(size + mask + sizeof(void*));
  const auto place = (reinterpret_cast<std::uintptr_t>(block) + sizeof(void*) + mask) & ~mask;
  reinterpret_cast<void**>(place)[-1] = block;
  return reinterpret_cast<void*>(place);
}
void operator delete(void* place, std::align_val_t) noexcept {
  if (place != nullptr) zthalf::testing::allocations::release(static_cast<void**>(place)[-1]);
}

namespace zthalf {
namespace {

using namespace testing::provider;
using zthalf::testing::allocations;

// Runs the action with the first, the second, ... allocation failing, until there is none to fail. A host may do
// without one that fails.
void failAtEvery(char const* what, std::function<void()> const& action, bool throwsAnyway = false) {
  {
    const callScope warmUp;  // names and classes that are remembered for good
    try {
      action();
    } catch (...) {
    }
  }
  takeCalls();
  const long arraysBefore = live();
  long failures = 0;
  for (bool failed = true; failed; ++failures) {
    const long before = allocations::live();
    {
      const callScope call;
      allocations::failAfter(failures);
      try {
        action();
        EXPECT_FALSE(throwsAnyway);
      } catch (std::bad_alloc const&) {
        EXPECT_FALSE(allocations::stillToFail()) << what;
      } catch (...) {
        EXPECT_TRUE(throwsAnyway) << what;
      }
      failed = !allocations::stillToFail();
      allocations::failAfter(-1);
    }
    takeCalls();
    EXPECT_EQ(live(), arraysBefore) << what << ", after failure " << failures;
    EXPECT_EQ(allocations::live(), before) << what << ", after failure " << failures;
  }
  EXPECT_GT(failures, 1) << what << " allocates nothing";
}

TEST(FailedAllocation, LeavesNothingOfANewArray) {
  const unsigned long dims[] = {2, 3, 4};
  for (const bool complex : {false, true}) {
    failAtEvery("createHalfMatrix", [&] { half::createHalfMatrix(3, 4, complex); });
    failAtEvery("createHalfArray", [&] { half::createHalfArray(3, dims, complex); });
    failAtEvery("createUninitHalfArray", [&] { half::createUninitHalfArray(24, 3, dims, complex); });
    failAtEvery("createUninitHalfMatrix", [&] { half::createUninitHalfMatrix(3, 4, complex); });
  }
}

TEST(FailedAllocation, LeavesAComplexArrayThatCannotBeUnshared) {
  const held array(half::createHalfMatrix(3, 1, true));
  long refused = 0;
  failAtEvery("freeImagIfZero", [&] {
    const held sharing(newSharing(array));
    try {
      half::freeImagIfZero(sharing);
      EXPECT_FALSE(half::isVqArrayComplex(sharing));
    } catch (std::bad_alloc const&) {
      EXPECT_TRUE(half::isVqArrayComplex(sharing));
      EXPECT_EQ(half::getHalfPointer(sharing), half::getHalfPointer(array));
      ++refused;
      throw;
    }
  });
  EXPECT_GT(refused, 0);
  EXPECT_TRUE(half::isVqArrayComplex(array));
}

TEST(FailedAllocation, LeavesNothingOfTheHostFunctions) {
  const held a(half::createHalfMatrix(2, 2, false)), b(half::createHalfMatrix(4, 1, false)), text(newText("x"));
  const auto run = [](auto function, std::vector<vqArray_tag const*> const& inputs) {
    vqArray_tag* output = nullptr;
    std::array<vqArray_tag const*, 2> prhs{};
    std::copy(inputs.begin(), inputs.end(), prhs.begin());
    try {
      function(1, &output, static_cast<int>(inputs.size()), prhs.data());
    } catch (...) {
      EXPECT_EQ(output, nullptr);
      throw;
    }
  };
  const std::vector<vqArray_tag const*> same{a, a}, others{a, b}, bad{text}, none;
  failAtEvery("ulpFcn", [&] { run(ulpFcn, same); });
  failAtEvery("useF16CforHalfFcn", [&] { run(useF16CforHalfFcn, none); });
  failAtEvery(
      "ulpFcn with an error", [&] { run(ulpFcn, others); }, true);
  failAtEvery(
      "useF16CforHalfFcn with an error", [&] { run(useF16CforHalfFcn, bad); }, true);
}

TEST(FailedAllocation, LeavesNothingOfACodeText) {
  const auto target = std::make_shared<half::NativeTargetHalfType>(
      "a name that no small string holds", "a suffix that no small string holds", "", true, true);
  for (unsigned bits = 0; bits < 32; ++bits) {
    const auto bit = [&](unsigned i) { return (bits >> i & 1) != 0; };
    const half::CompilerInfo info(bit(0), bit(1), bit(2), bit(3), false,
                                  bit(4) ? target : std::make_shared<half::NativeTargetHalfType>(), false);
    // The host's own text may need memory as well. The shortest texts need none, so that a long one goes before them.
    failAtEvery("to_string", [&] {
      const std::string before(100, ' ');
      for (const std::uint16_t pattern : {0x0001, 0x7C00}) half::to_string(half_t{pattern}, info, true);
    });
  }
}

}  // namespace
}  // namespace zthalf
