#include "scalar/sign_and_class.h"

#include <gtest/gtest.h>

#include <cmath>

#include "tests/support/expect_bits.h"
#include "tests/support/known.h"
#include "tests/support/patterns.h"
#include "tests/support/reference.h"
#include "zthalf/half_scalar.h"

namespace zthalf {
namespace {

using testing::bitComparison;
using row = testing::known<std::uint16_t, std::uint16_t>;

class Abs : public ::testing::TestWithParam<row> {};
TEST_P(Abs, GivesTheKnownPattern) {
  EXPECT_EQ(testing::hex(half_scalar::abs({GetParam().operand})), testing::hex(GetParam().expected)) << GetParam().why;
}
INSTANTIATE_TEST_SUITE_P(Known, Abs,
                         ::testing::Values(row{0xFE00, 0x7E00, "the sign of a NaN is cleared too"},
                                           row{0xFE01, 0x7E01, "and its payload kept"},
                                           row{0xFC01, 0x7C01, "a signalling one stays signalling"},
                                           row{0x8000, 0x0000, "minus zero"}, row{0xFC00, 0x7C00, "minus infinity"},
                                           row{0x3C00, 0x3C00, "a positive value"}));

TEST(Abs, ClearsTheSignOfEveryPattern) {
  bitComparison compare("abs");
  testing::forEveryPattern([&](std::uint16_t h) {
    compare.check(half_scalar::abs({h}), half_t{static_cast<std::uint16_t>(h < 0x8000 ? h : h - 0x8000)}, h);
  });
}

class Sign : public ::testing::TestWithParam<row> {};
TEST_P(Sign, GivesTheKnownPattern) {
  EXPECT_EQ(testing::hex(half_scalar::sign({GetParam().operand})), testing::hex(GetParam().expected)) << GetParam().why;
  EXPECT_EQ(testing::hex(signumOf(GetParam().operand)), testing::hex(GetParam().expected)) << GetParam().why;
}
INSTANTIATE_TEST_SUITE_P(Known, Sign,
                         ::testing::Values(row{0x8000, 0x0000, "minus zero gives plus zero"},
                                           row{0x0000, 0x0000, "plus zero"}, row{0xFC00, 0xBC00, "minus infinity"},
                                           row{0x7C00, 0x3C00, "infinity"},
                                           row{0xFC01, 0xFC01, "a signalling NaN is not made quiet"},
                                           row{0x7E01, 0x7E01, "a NaN keeps its payload"},
                                           row{0x0001, 0x3C00, "the smallest subnormal"},
                                           row{0x83FF, 0xBC00, "a negative subnormal"}));

TEST(Sign, IsTheSignOfEveryNumberAndEveryNaNItself) {
  bitComparison compare("sign");
  testing::forEveryPattern([&](std::uint16_t h) {
    const double value = reference::widenedToDouble(h);
    const std::uint16_t expected = value > 0 ? 0x3C00 : value < 0 ? 0xBC00 : value == 0 ? 0x0000 : h;
    compare.check(half_scalar::sign({h}), half_t{expected}, h);
    compare.check(signumOf(h), expected, h);
  });
}

TEST(Negation, FlipsTheSignOfEveryPattern) {
  bitComparison compare("negated");
  testing::forEveryPattern(
      [&](std::uint16_t h) { compare.check(negated(h), static_cast<std::uint16_t>(h + 0x8000), h); });
}

TEST(Negation, OfAnImaginaryPartNeverGivesMinusZero) {
  bitComparison compare("negated unless zero");
  testing::forEveryPattern([&](std::uint16_t h) {
    const bool isZero = reference::widenedToDouble(h) == 0;
    compare.check(negatedUnlessZero(h), static_cast<std::uint16_t>(isZero ? 0 : h + 0x8000), h);
  });
}

TEST(Class, FiniteEndsAtTheLargestFiniteHalf) {
  EXPECT_TRUE(half_scalar::isfinite({0x7BFF}));
  EXPECT_FALSE(half_scalar::isfinite({0x7C00})) << "infinity";
  EXPECT_FALSE(half_scalar::isfinite({0x7C01})) << "the lowest NaN";
  for (const std::uint16_t h : {0x0000, 0x8000, 0x0001, 0x8001, 0x03FF, 0x83FF}) {
    EXPECT_TRUE(half_scalar::isfinite({h})) << testing::hex(h) << " is a zero or a subnormal";
  }
}

TEST(Class, IsThatOfTheNumberOnEveryPattern) {
  bitComparison compare("isnan, isinf, isfinite");
  testing::forEveryPattern([&](std::uint16_t h) {
    const double value = reference::widenedToDouble(h);
    compare.check(half_scalar::isnan({h}), std::isnan(value), h);
    compare.check(half_scalar::isinf({h}), std::isinf(value), h);
    compare.check(half_scalar::isfinite({h}), std::isfinite(value), h);
  });
}

}  // namespace
}  // namespace zthalf
