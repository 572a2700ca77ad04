// The class "half" may be missing at first. In a program of its own: the library looks for the class in the first call
// of the process, and no longer once it was there.
#include <gtest/gtest.h>

#include <exception>

#include "tests/host/support/provider.h"
#include "zthalf/host.h"
#include "zthalf/host_errors.h"

namespace zthalf {
namespace {

using namespace testing::provider;
using HalfNotThere = half::error::exceptionOf<half::error::HalfPrecisionNotAvailable>;

long looksForTheClass() {
  long count = 0;
  for (std::string const& call : takeCalls()) count += call == "getClass half";
  return count;
}

TEST(Availability, IsLookedForUntilTheClassWasThere) {
  setHalfAvailable(false);
  takeCalls();
  const long before = live();
  for (const bool complex : {false, true}) {
    try {
      half::createHalfMatrix(2, 2, complex);
      ADD_FAILURE() << "a half matrix without the class";
    } catch (HalfNotThere const& error) {
      EXPECT_EQ(error.error_id(), "half:error:HalfPrecisionNotAvailable");
    }
  }
  EXPECT_THROW(vq_or_half::vqCreateNumericMatrix(2, 2, vqHalfClass, vqReal), HalfNotThere);
  EXPECT_THROW(vq_or_half::vqCreateNumericScalar(vqHalfClass, vqComplex), HalfNotThere);
  if (notesCalls) {
    EXPECT_EQ(looksForTheClass(), 4);
  }

  // The others leave it to the host to find out, and the error is the host's.
  const sizeList dims{2, 2};
  takeCalls();
  const auto expectHostsError = [](auto make) {
    const callScope call;
    try {
      make();
      ADD_FAILURE() << "a half array without the class";
    } catch (HalfNotThere const&) {
      ADD_FAILURE() << "the library has looked for the class";
    } catch (std::exception const&) {
    }
  };
  expectHostsError([&] { half::createHalfArray(2, dims.data(), false); });
  expectHostsError([&] { half::createHalfArray(2, dims.data(), true); });
  expectHostsError([&] { half::createUninitHalfArray(4, 2, dims.data(), false); });
  expectHostsError([&] { half::createUninitHalfMatrix(2, 2, true); });
  expectHostsError([&] { vq_or_half::vqCreateNumericArray(2, dims.data(), vqHalfClass, vqReal); });
  EXPECT_EQ(looksForTheClass(), 0);
  EXPECT_EQ(live(), before);

  setHalfAvailable(true);
  EXPECT_TRUE(half::isVqArrayHalf(held(half::createHalfMatrix(2, 2, false))));
  if (notesCalls) {
    EXPECT_EQ(looksForTheClass(), 1);
  }
  EXPECT_TRUE(half::isVqArrayHalf(held(half::createHalfMatrix(2, 2, true))));
  EXPECT_EQ(looksForTheClass(), 0);

  // It is not noticed that the class has gone: the error is the host's now.
  setHalfAvailable(false);
  expectHostsError([] { half::createHalfMatrix(2, 2, false); });
  EXPECT_EQ(looksForTheClass(), 0);
  setHalfAvailable(true);
  EXPECT_EQ(live(), before);
}

}  // namespace
}  // namespace zthalf
