#include <gtest/gtest.h>

#include "scalar/functors/inverse_trigonometric_functors.h"
#include "tests/support/array_form.h"
#include "zthalf/half_scalar.h"
#include "zthalf/half_vector.h"

namespace zthalf::testing {
namespace {

TEST(InverseTrigonometricArrays, asin) { arrayForm("asin", half_vector::asin, half_scalar::asin).expectAll(); }
TEST(InverseTrigonometricArrays, acos) { arrayForm("acos", half_vector::acos, half_scalar::acos).expectAll(); }
TEST(InverseTrigonometricArrays, atan) { arrayForm("atan", half_vector::atan, half_scalar::atan).expectAll(); }

TEST(InverseTrigonometricArrays, AnEmptyArrayMayComeWithNullPointers) {
  half_t* const none = nullptr;
  half_vector::asin(none, none, 0);
  half_vector::acos(none, none, 0);
  half_vector::atan(none, none, 0);
}

bool isBeyondOne(half_t x) { return half_scalar::abs(x) > half_t{0x3C00}; }

TEST(InverseTrigonometricArrays, asinWithEarlyExit) {
  stoppingForm("asinWithEarlyExit", half_vector::asinWithEarlyExit, half_scalar::asin, isBeyondOne).expectAll();
}

TEST(InverseTrigonometricArrays, acosWithEarlyExit) {
  stoppingForm("acosWithEarlyExit", half_vector::acosWithEarlyExit, half_scalar::acos, isBeyondOne).expectAll();
}

TEST(AsinWithEarlyExit, AnEmptyArrayIsDone) {
  EXPECT_TRUE(half_vector::asinWithEarlyExit(nullptr, nullptr, 0));
  EXPECT_TRUE(half_vector::acosWithEarlyExit(nullptr, nullptr, 0));
}

TEST(AsinWithEarlyExit, GoesOnAtOneMinusOneAndNaN) {
  half_t source[] = {{0x3C00}, {0xBC00}, {0x7E00}};
  half_t result[] = {sentinel, sentinel, sentinel};
  EXPECT_TRUE(half_vector::asinWithEarlyExit(source, result, 3));
  EXPECT_EQ(hex(result[0]), "0x3E48");
  EXPECT_EQ(hex(result[1]), "0xBE48");
  EXPECT_EQ(hex(result[2]), "0xFE00");
}

TEST(AsinWithEarlyExit, StopsAtAnInfinityOfEitherSign) {
  for (const std::uint16_t infinity : {0x7C00, 0xFC00}) {
    half_t source{infinity}, result = sentinel;
    EXPECT_FALSE(half_vector::asinWithEarlyExit(&source, &result, 1));
    EXPECT_EQ(hex(result), hex(sentinel));
  }
}

TEST(AcosWithEarlyExit, StopsJustBeyondOneAndLeavesTheRestAlone) {
  half_t source[] = {{0x3800}, {0xBC01}, {0x3800}};  // 0.5, -1.001, 0.5
  half_t result[] = {sentinel, sentinel, sentinel};
  EXPECT_FALSE(half_vector::acosWithEarlyExit(source, result, 3));
  EXPECT_EQ(hex(result[0]), hex(half_scalar::acos({0x3800})));
  EXPECT_EQ(hex(result[1]), hex(sentinel));
  EXPECT_EQ(hex(result[2]), hex(sentinel));
}

namespace functor = half::scalar::emulated;
static_assert(functor::asinFtor::grain == 256 && functor::acosFtor::grain == 256 && functor::atanFtor::grain == 256);

}  // namespace
}  // namespace zthalf::testing
