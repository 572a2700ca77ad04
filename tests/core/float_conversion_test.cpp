#include "core/float_conversion.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <vector>

#include "tests/support/exact.h"
#include "tests/support/expect_bits.h"
#include "tests/support/flushed.h"
#include "tests/support/known.h"
#include "tests/support/patterns.h"
#include "tests/support/reference.h"
#include "zthalf/half_scalar.h"

namespace zthalf {
namespace {

using half_scalar::impl::convertDoubleToHalf;
using half_scalar::impl::convertHalfToDouble;
using half_scalar::impl::convertHalfToSingle;
using half_scalar::impl::convertSingleToHalf;
using testing::bitComparison;
using testing::known;

using singleToHalf = known<float, std::uint16_t>;
class NarrowSingle : public ::testing::TestWithParam<singleToHalf> {};

TEST_P(NarrowSingle, GivesTheKnownPattern) {
  const singleToHalf& row = GetParam();
  EXPECT_EQ(testing::hex(narrow(row.operand)), testing::hex(row.expected)) << row.why;
  EXPECT_EQ(testing::hex(convertSingleToHalf(row.operand)), testing::hex(row.expected)) << row.why;
  const float opposite = floatOf(bitsOf(row.operand) ^ 0x80000000u);
  const auto expected = static_cast<std::uint16_t>(row.expected ^ 0x8000);
  EXPECT_EQ(testing::hex(narrow(opposite)), testing::hex(expected)) << row.why << ", sign changed";
}

INSTANTIATE_TEST_SUITE_P(
    Boundaries, NarrowSingle,
    ::testing::Values(singleToHalf{65504.0f, 0x7BFF, "the largest finite half"},
                      singleToHalf{65519.0f, 0x7BFF, "nearer to the largest finite half than to 65536"},
                      singleToHalf{65519.996f, 0x7BFF, "the last float below the overflow limit"},
                      singleToHalf{65520.0f, 0x7C00, "the overflow limit, a tie that goes to infinity"},
                      singleToHalf{65536.0f, 0x7C00, "the first power of two beyond the range"},
                      singleToHalf{-65520.0f, 0xFC00, "the overflow limit below zero"},
                      singleToHalf{std::numeric_limits<float>::max(), 0x7C00, "the largest float"},
                      singleToHalf{std::numeric_limits<float>::infinity(), 0x7C00, "infinity"}));

INSTANTIATE_TEST_SUITE_P(
    Ordinary, NarrowSingle,
    ::testing::Values(singleToHalf{1.0f, 0x3C00, "one"}, singleToHalf{0.1f, 0x2E66, "rounded down"},
                      singleToHalf{0x1.FFFp0f, 0x4000, "just under two: the rounding carries into the next binade"},
                      singleToHalf{0x1.002p0f, 0x3C00, "a tie above an even fraction"},
                      singleToHalf{0x1.006p0f, 0x3C02, "a tie above an odd fraction"}));

INSTANTIATE_TEST_SUITE_P(
    Tiny, NarrowSingle,
    ::testing::Values(
        singleToHalf{-0.0f, 0x8000, "minus zero keeps its sign"},
        singleToHalf{0x1p-24f, 0x0001, "the smallest subnormal"},
        singleToHalf{0x1p-25f, 0x0000, "a tie between zero and the smallest subnormal goes to zero"},
        singleToHalf{0x1.000002p-25f, 0x0001, "the float after that tie"},
        singleToHalf{0x3p-25f, 0x0002, "a tie between subnormals goes to the even one"},
        singleToHalf{0x1p-14f - 0x1p-25f, 0x0400, "a subnormal that rounds up becomes the smallest normal"},
        singleToHalf{0x1p-14f - 0x1p-24f, 0x03FF, "the largest subnormal"},
        singleToHalf{0x1p-14f, 0x0400, "the smallest normal"},
        singleToHalf{std::numeric_limits<float>::denorm_min(), 0x0000, "a float subnormal gives a zero"},
        singleToHalf{-0x1.FFFFFCp-127f, 0x8000, "the largest float subnormal gives a zero with its sign"}));

INSTANTIATE_TEST_SUITE_P(NaNs, NarrowSingle,
                         ::testing::Values(singleToHalf{floatOf(0x7FC00000), 0x7E00, "the default NaN"},
                                           singleToHalf{floatOf(0xFFC00000), 0xFE00, "the sign of a NaN stays"},
                                           singleToHalf{floatOf(0x7F800001), 0x7E00, "the lowest signalling NaN"},
                                           singleToHalf{floatOf(0x7FBFFFFF), 0x7E00, "the highest signalling NaN"},
                                           singleToHalf{floatOf(0xFFFFFFFF), 0xFE00, "every payload bit set"},
                                           singleToHalf{floatOf(0x7FA00000), 0x7E00,
                                                        "a payload that half could hold is dropped"}));

using doubleToHalf = known<double, std::uint16_t>;
class NarrowDouble : public ::testing::TestWithParam<doubleToHalf> {};

TEST_P(NarrowDouble, GivesTheKnownPattern) {
  const doubleToHalf& row = GetParam();
  EXPECT_EQ(testing::hex(narrow(row.operand)), testing::hex(row.expected)) << row.why;
  EXPECT_EQ(testing::hex(convertDoubleToHalf(row.operand)), testing::hex(row.expected)) << row.why;
  const double opposite = doubleOf(bitsOf(row.operand) ^ 0x8000000000000000u);
  const auto expected = static_cast<std::uint16_t>(row.expected ^ 0x8000);
  EXPECT_EQ(testing::hex(narrow(opposite)), testing::hex(expected)) << row.why << ", sign changed";
}

INSTANTIATE_TEST_SUITE_P(
    Boundaries, NarrowDouble,
    ::testing::Values(doubleToHalf{65504.0, 0x7BFF, "the largest finite half"},
                      doubleToHalf{65519.0, 0x7BFF, "nearer to the largest finite half than to 65536"},
                      doubleToHalf{0x1.FFDFFFFFFFFFFp15, 0x7BFF, "the last double below the overflow limit"},
                      doubleToHalf{65520.0, 0x7C00, "the overflow limit, a tie that goes to infinity"},
                      doubleToHalf{65536.0, 0x7C00, "the first power of two beyond the range"},
                      doubleToHalf{-65520.0, 0xFC00, "the overflow limit below zero"},
                      doubleToHalf{1e300, 0x7C00, "beyond the range of float too"},
                      doubleToHalf{std::numeric_limits<double>::infinity(), 0x7C00, "infinity"}));

INSTANTIATE_TEST_SUITE_P(Ordinary, NarrowDouble,
                         ::testing::Values(doubleToHalf{1.0, 0x3C00, "one"}, doubleToHalf{0.1, 0x2E66, "rounded down"},
                                           doubleToHalf{0x1.FFFp0, 0x4000,
                                                        "just under two: the rounding carries into the next binade"},
                                           doubleToHalf{0x1.0020000000001p0, 0x3C01, "the double after a tie"},
                                           doubleToHalf{0x1.005FFFFFFFFFFp0, 0x3C01, "the double before a tie"}));

INSTANTIATE_TEST_SUITE_P(
    Tiny, NarrowDouble,
    ::testing::Values(doubleToHalf{-0.0, 0x8000, "minus zero keeps its sign"},
                      doubleToHalf{0x1p-24, 0x0001, "smallest subnormal"},
                      doubleToHalf{0x1p-25, 0x0000, "a tie between zero and the smallest subnormal goes to zero"},
                      doubleToHalf{0x1.0000000000001p-25, 0x0001, "the double after that tie"},
                      doubleToHalf{0x3p-25, 0x0002, "a tie between subnormals goes to the even one"},
                      doubleToHalf{0x1p-14 - 0x1p-25, 0x0400, "a subnormal that rounds up becomes the smallest normal"},
                      doubleToHalf{1e-300, 0x0000, "below the range of float too"},
                      doubleToHalf{std::numeric_limits<double>::denorm_min(), 0x0000,
                                   "a double subnormal gives a zero"}));

INSTANTIATE_TEST_SUITE_P(
    NaNs, NarrowDouble,
    ::testing::Values(doubleToHalf{doubleOf(0x7FF8000000000000), 0x7E00, "the default NaN"},
                      doubleToHalf{doubleOf(0xFFF8000000000000), 0xFE00, "the sign of a NaN stays"},
                      doubleToHalf{doubleOf(0x7FF0000000000001), 0x7E00, "a NaN told by the lowest bit alone"},
                      doubleToHalf{doubleOf(0xFFF0000080000000), 0xFE00, "a NaN told by its low word alone"},
                      doubleToHalf{doubleOf(0x7FF4000000000000), 0x7E00, "a payload that half could hold is dropped"}));

TEST(NarrowDouble, RoundsOnceWhereTheNearestFloatIsATie) {
  const double value = 1.0 + 0x1p-11 + 0x1p-40;
  ASSERT_EQ(static_cast<float>(value), 1.0f + 0x1p-11f);
  EXPECT_EQ(convertDoubleToHalf(value), 0x3C01);
  EXPECT_EQ(convertSingleToHalf(static_cast<float>(value)), 0x3C00);
}

TEST(NarrowSingle, DropsThePayloadInARoundTrip) {
  EXPECT_EQ(convertSingleToHalf(convertHalfToSingle(0x7D00)), 0x7E00);
  EXPECT_EQ(convertDoubleToHalf(convertHalfToDouble(0x7D00)), 0x7E00);
}

TEST(Widen, GivesTheKnownValues) {
  EXPECT_EQ(convertHalfToSingle(0xFC00), -std::numeric_limits<float>::infinity());
  EXPECT_EQ(bitsOf(convertHalfToSingle(0x7C01)), 0x7F802000u) << "a signalling NaN stays as it is";
  EXPECT_EQ(bitsOf(convertHalfToDouble(0x7C01)), 0x7FF0040000000000u) << "a signalling NaN stays as it is";
  EXPECT_EQ(convertHalfToSingle(0x0001), 0x1p-24f) << "the smallest subnormal";
  EXPECT_EQ(convertHalfToDouble(0x0001), 0x1p-24) << "the smallest subnormal";
  EXPECT_EQ(convertHalfToSingle(0x03FF), 1023 * 0x1p-24f) << "the largest subnormal";
  EXPECT_EQ(convertHalfToDouble(0x03FF), 1023 * 0x1p-24) << "the largest subnormal";
}

TEST(Widen, FollowsTheStepsOnEveryPattern) {
  bitComparison single("half to single");
  bitComparison wide("half to double");
  testing::forEveryPattern([&](std::uint16_t h) {
    single.check(widen<float>(h), reference::widenedToSingle(h), h);
    single.check(convertHalfToSingle(h), reference::widenedToSingle(h), h);
    wide.check(widen<double>(h), reference::widenedToDouble(h), h);
    wide.check(convertHalfToDouble(h), reference::widenedToDouble(h), h);
  });
}

TEST(Widen, HasTheExactValueOnEveryFinitePattern) {
  bitComparison compare("half to double");
  testing::forEveryPattern([&](std::uint16_t h) {
    if (!exact::isFinite(h)) return;
    const double magnitude = std::ldexp(static_cast<double>(exact::magnitudeOf(h)), -24);
    compare.check(widen<double>(h), exact::isNegative(h) ? -magnitude : magnitude, h);
    compare.check(static_cast<double>(widen<float>(h)), exact::isNegative(h) ? -magnitude : magnitude, h);
  });
}

TEST(Widen, RoundTripIsTheIdentityOnEveryNumber) {
  bitComparison compare("narrow of widen");
  testing::forEveryPattern([&](std::uint16_t h) {
    const auto expected = static_cast<std::uint16_t>(exact::isNaN(h) ? (h & 0x8000) | 0x7E00 : h);
    compare.check(narrow(widen<float>(h)), expected, h);
    compare.check(narrow(widen<double>(h)), expected, h);
  });
}

// A program may have told its processor to treat subnormal floats as zeros. The conversions do not notice.
TEST(FloatConversion, DoesNotDependOnTheFlushingOfSubnormals) {
  if (!testing::canFlush) GTEST_SKIP();
  std::vector<float> singles;
  std::vector<double> doubles;
  {
    const testing::flushedScope flushed;
    testing::forEveryPattern([&](std::uint16_t h) {
      singles.push_back(convertHalfToSingle(h));
      doubles.push_back(convertHalfToDouble(h));
    });
  }
  std::vector<std::uint16_t> back;
  {
    const testing::flushedScope flushed;
    for (const float x : singles) back.push_back(convertSingleToHalf(x));
    for (std::uint32_t word = 0; word < 0x00800000; word += 4099) back.push_back(convertSingleToHalf(floatOf(word)));
  }
  bitComparison compare("conversions with subnormals flushed");
  testing::forEveryPattern([&](std::uint16_t h) {
    compare.check(singles[h], reference::widenedToSingle(h), h);
    compare.check(doubles[h], reference::widenedToDouble(h), h);
    compare.check(back[h], reference::narrowed(singles[h]), h);
  });
  for (std::size_t i = 0x10000; i < back.size(); ++i) compare.check(back[i], std::uint16_t{0});
}

}  // namespace
}  // namespace zthalf
