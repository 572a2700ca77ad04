#include <gtest/gtest.h>

#include "scalar/functors/root_functors.h"
#include "tests/support/array_form.h"
#include "zthalf/detail/entries.h"
#include "zthalf/half_scalar.h"
#include "zthalf/half_vector.h"

namespace zthalf::testing {
namespace {

#define ZTHALF_TEST_ARRAY_FORM(entry, facade, In, Out, ...) \
  TEST(RootArrays, entry) { arrayForm(#entry, half_vector::facade, half_scalar::facade).expectAll(); }

ZTHALF_ROOT_ENTRIES(ZTHALF_TEST_ARRAY_FORM)

bool isNegativeNumber(half_t x) { return x < half_t{0x0000}; }

TEST(RootArrays, sqrtWithEarlyExit) {
  stoppingForm("sqrtWithEarlyExit", half_vector::sqrtWithEarlyExit, half_scalar::sqrt, isNegativeNumber).expectAll();
}

TEST(SqrtWithEarlyExit, AnEmptyArrayIsDone) { EXPECT_TRUE(half_vector::sqrtWithEarlyExit(nullptr, nullptr, 0)); }

TEST(SqrtWithEarlyExit, StopsAtANegativeNumberAndLeavesTheRestAlone) {
  half_t source[] = {{0x4400}, {0xBC00}, {0x4880}};  // 4, -1, 9
  half_t result[] = {sentinel, sentinel, sentinel};
  EXPECT_FALSE(half_vector::sqrtWithEarlyExit(source, result, 3));
  EXPECT_EQ(hex(result[0]), "0x4000");
  EXPECT_EQ(hex(result[1]), hex(sentinel));
  EXPECT_EQ(hex(result[2]), hex(sentinel));
}

TEST(SqrtWithEarlyExit, GoesOnAtMinusZeroAndNaN) {
  half_t source[] = {{0x4400}, {0x8000}, {0xFE00}};  // 4, -0, NaN
  half_t result[] = {sentinel, sentinel, sentinel};
  EXPECT_TRUE(half_vector::sqrtWithEarlyExit(source, result, 3));
  EXPECT_EQ(hex(result[0]), "0x4000");
  EXPECT_EQ(hex(result[1]), "0x0000");
  EXPECT_EQ(hex(result[2]), "0xFE00");
}

static_assert(half::scalar::emulated::sqrtFtor::grain == 256 && half::scalar::emulated::rsqrtFtor::grain == 256);

}  // namespace
}  // namespace zthalf::testing
