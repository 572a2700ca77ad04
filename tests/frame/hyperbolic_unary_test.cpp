#include <gtest/gtest.h>

#include "scalar/functors/hyperbolic_functors.h"
#include "tests/support/array_form.h"
#include "zthalf/detail/entries.h"
#include "zthalf/half_scalar.h"
#include "zthalf/half_vector.h"

namespace zthalf::testing {
namespace {

#define ZTHALF_TEST_ARRAY_FORM(entry, facade, In, Out, ...) \
  TEST(HyperbolicArrays, entry) { arrayForm(#entry, half_vector::facade, half_scalar::facade).expectAll(); }

ZTHALF_HYPERBOLIC_ENTRIES(ZTHALF_TEST_ARRAY_FORM)
TEST(HyperbolicArrays, atanh) { arrayForm("atanh", half_vector::atanh, half_scalar::atanh).expectAll(); }

TEST(HyperbolicArrays, AnEmptyArrayMayComeWithNullPointers) {
#define ZTHALF_TEST_EMPTY(entry, facade, In, Out, ...) \
  half_vector::facade(static_cast<half_t*>(nullptr), static_cast<half_t*>(nullptr), 0);
  ZTHALF_HYPERBOLIC_ENTRIES(ZTHALF_TEST_EMPTY)
#undef ZTHALF_TEST_EMPTY
  half_vector::atanh(static_cast<half_t*>(nullptr), static_cast<half_t*>(nullptr), 0);
}

bool isBeyondOne(half_t x) { return half_scalar::abs(x) > half_t{0x3C00}; }

TEST(HyperbolicArrays, atanhWithEarlyExit) {
  stoppingForm("atanhWithEarlyExit", half_vector::atanhWithEarlyExit, half_scalar::atanh, isBeyondOne).expectAll();
}

TEST(AtanhWithEarlyExit, AnEmptyArrayIsDone) { EXPECT_TRUE(half_vector::atanhWithEarlyExit(nullptr, nullptr, 0)); }

TEST(AtanhWithEarlyExit, GoesOnAtOneAndGivesInfinity) {
  half_t source{0x3C00}, result = sentinel;
  EXPECT_TRUE(half_vector::atanhWithEarlyExit(&source, &result, 1));
  EXPECT_EQ(hex(result), "0x7C00");
}

TEST(AtanhWithEarlyExit, StopsJustBeyondOne) {
  half_t source{0x3C01}, result = sentinel;
  EXPECT_FALSE(half_vector::atanhWithEarlyExit(&source, &result, 1));
  EXPECT_EQ(hex(result), hex(sentinel));
}

namespace functor = half::scalar::emulated;
static_assert(functor::sinhFtor::grain == 256 && functor::coshFtor::grain == 256 && functor::tanhFtor::grain == 256 &&
              functor::asinhFtor::grain == 256 && functor::acoshFtor::grain == 256 && functor::atanhFtor::grain == 256);

}  // namespace
}  // namespace zthalf::testing
