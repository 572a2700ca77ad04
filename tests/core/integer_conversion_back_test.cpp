// Half to integers and logical values.
#include <gtest/gtest.h>

#include <limits>

#include "core/integer_conversion.h"
#include "tests/support/exact.h"
#include "tests/support/expect_bits.h"
#include "tests/support/known.h"
#include "tests/support/patterns.h"
#include "tests/support/reference.h"
#include "zthalf/half_scalar.h"

namespace zthalf {
namespace {

using namespace half_scalar::impl;
using testing::bitComparison;
using testing::known;

// The public function of a type, by the type.
void convertBack(std::uint16_t h, unsigned char& value) { value = convertHalfToUint8(h); }
void convertBack(std::uint16_t h, signed char& value) { value = convertHalfToInt8(h); }
void convertBack(std::uint16_t h, unsigned short& value) { value = convertHalfToUint16(h); }
void convertBack(std::uint16_t h, short& value) { value = convertHalfToInt16(h); }
void convertBack(std::uint16_t h, unsigned int& value) { value = convertHalfToUint32(h); }
void convertBack(std::uint16_t h, int& value) { value = convertHalfToInt32(h); }
void convertBack(std::uint16_t h, unsigned long long& value) { value = convertHalfToUint64(h); }
void convertBack(std::uint16_t h, long long& value) { value = convertHalfToInt64(h); }

template <class Integer>
Integer convertedTo(std::uint16_t h) {
  Integer value;
  convertBack(h, value);
  return value;
}

template <class Integer>
class HalfToInteger : public ::testing::Test {};
using integerTypes = ::testing::Types<unsigned char, signed char, unsigned short, short, unsigned int, int,
                                      unsigned long long, long long>;
TYPED_TEST_SUITE(HalfToInteger, integerTypes);

TYPED_TEST(HalfToInteger, FollowsTheStepsOnEveryPattern) {
  bitComparison compare("half to integer");
  testing::forEveryPattern([&](std::uint16_t h) {
    const auto expected = reference::toInteger<TypeParam>(h);
    compare.check(halfToInteger<TypeParam>(h), expected, h);
    compare.check(convertedTo<TypeParam>(h), expected, h);
  });
}

TYPED_TEST(HalfToInteger, IsTheNearestIntegerOfTheTypeForEveryNumber) {
  using limits = std::numeric_limits<TypeParam>;
  bitComparison compare("half to integer");
  testing::forEveryPattern([&](std::uint16_t h) {
    if (!exact::isFinite(h)) return;
    const std::int64_t units = exact::unitsOf(h);
    const std::int64_t nearest = units < 0 ? -((-units + exact::unitsInOne / 2) / exact::unitsInOne)
                                           : (units + exact::unitsInOne / 2) / exact::unitsInOne;
    const bool tooLow = limits::is_signed ? nearest < static_cast<std::int64_t>(limits::min()) : nearest < 0;
    const bool tooHigh = sizeof(TypeParam) < 4 && nearest > static_cast<std::int64_t>(limits::max());
    compare.check(convertedTo<TypeParam>(h),
                  tooLow    ? limits::min()
                  : tooHigh ? limits::max()
                            : static_cast<TypeParam>(nearest),
                  h);
  });
}

TYPED_TEST(HalfToInteger, UndoesTheConversionToHalf) {
  bitComparison compare("there and back");
  const bool isSigned = std::numeric_limits<TypeParam>::is_signed;
  const int last = sizeof(TypeParam) == 1 ? (isSigned ? 127 : 255) : 2048;
  for (int value = isSigned ? -last - (last < 2048) : 0; value <= last; ++value) {
    const auto integer = static_cast<TypeParam>(value);
    compare.check(halfToInteger<TypeParam>(integerToHalf(integer)), integer, integer);
  }
}

TYPED_TEST(HalfToInteger, SpecialValuesGoToTheEndsOfTheRangeOrToZero) {
  using limits = std::numeric_limits<TypeParam>;
  EXPECT_EQ(convertedTo<TypeParam>(0x7C00), limits::max());
  EXPECT_EQ(convertedTo<TypeParam>(0xFC00), limits::min()) << "which is 0 where the type has no sign";
  for (const std::uint16_t nan : {0x7C01, 0x7E00, 0x7FFF, 0xFC01, 0xFE00, 0xFFFF}) {
    EXPECT_EQ(convertedTo<TypeParam>(nan), 0) << testing::hex(nan);
  }
}

TEST(RoundedMagnitude, IsTheNearestIntegerAwayFromZeroAtTies) {
  bitComparison compare("rounded magnitude");
  testing::forEveryPattern([&](std::uint16_t h) {
    const exact::wideInteger units = exact::isFinite(h) ? exact::magnitudeOf(h) : 0;
    compare.check(roundedMagnitude(h), static_cast<std::uint32_t>((units + exact::unitsInOne / 2) / exact::unitsInOne),
                  h);
  });
}

template <class Integer>
struct convertsFrom : ::testing::TestWithParam<known<std::uint16_t, Integer>> {
  void expectKnown() {
    auto const& row = this->GetParam();
    EXPECT_EQ(convertedTo<Integer>(row.operand), row.expected) << row.why;
    EXPECT_EQ(halfToInteger<Integer>(row.operand), row.expected) << row.why;
  }
};

using halfToUint8 = known<std::uint16_t, unsigned char>;
class HalfToUint8 : public convertsFrom<unsigned char> {};
TEST_P(HalfToUint8, GivesTheKnownInteger) { expectKnown(); }
INSTANTIATE_TEST_SUITE_P(
    Known, HalfToUint8,
    ::testing::Values(
        halfToUint8{0x37D7, 0, "0.49 is below the tie"}, halfToUint8{0x3800, 1, "0.5 is a tie, away from zero"},
        halfToUint8{0x37FF, 0, "the last half below 0.5"}, halfToUint8{0x3E00, 2, "1.5 is a tie, away from zero"},
        halfToUint8{0x4100, 3, "2.5 is a tie: not to even"}, halfToUint8{0x5BF4, 255, "254.5 rounds up to the maximum"},
        halfToUint8{0x5BFC, 255, "255.5 is held"}, halfToUint8{0x7BFF, 255, "65504 is held"},
        halfToUint8{0x7C00, 255, "infinity is held"}, halfToUint8{0x7E00, 0, "a NaN gives zero"},
        halfToUint8{0xBC00, 0, "-1 is below the range"}, halfToUint8{0xB8CD, 0, "-0.6 is not rounded to -1 first"},
        halfToUint8{0xFC00, 0, "the sign is looked at before the class"}, halfToUint8{0xFE00, 0, "a negative NaN"},
        halfToUint8{0x0001, 0, "a subnormal is far below the tie"}));

using halfToInt8 = known<std::uint16_t, signed char>;
class HalfToInt8 : public convertsFrom<signed char> {};
TEST_P(HalfToInt8, GivesTheKnownInteger) { expectKnown(); }
INSTANTIATE_TEST_SUITE_P(
    Known, HalfToInt8,
    ::testing::Values(halfToInt8{0xB800, -1, "-0.5 is a tie, away from zero"},
                      halfToInt8{0xB7FF, 0, "nearer to zero than to -1"},
                      halfToInt8{0xD7F8, -128, "-127.5 is a tie to the minimum"},
                      halfToInt8{0xD804, -128, "-128.5 is held"}, halfToInt8{0x57F0, 127, "127 is the maximum"},
                      halfToInt8{0x57F8, 127, "127.5 is held"}, halfToInt8{0xFC00, -128, "minus infinity is held"},
                      halfToInt8{0x7C00, 127, "infinity is held"}, halfToInt8{0x7E00, 0, "a NaN gives zero"},
                      halfToInt8{0xFE00, 0, "a negative NaN too"}));

using halfToInt16 = known<std::uint16_t, short>;
class HalfToInt16 : public convertsFrom<short> {};
TEST_P(HalfToInt16, GivesTheKnownInteger) { expectKnown(); }
INSTANTIATE_TEST_SUITE_P(Known, HalfToInt16,
                         ::testing::Values(halfToInt16{0x7800, 32767, "32768 is one beyond the maximum"},
                                           halfToInt16{0x77FF, 32752, "the last half below 32768"},
                                           halfToInt16{0xF800, -32768, "-32768 is the minimum"},
                                           halfToInt16{0xFBFF, -32768, "-65504 is held"}));

using halfToInt32 = known<std::uint16_t, int>;
class HalfToInt32 : public convertsFrom<int> {};
TEST_P(HalfToInt32, GivesTheKnownInteger) { expectKnown(); }
INSTANTIATE_TEST_SUITE_P(Known, HalfToInt32,
                         ::testing::Values(halfToInt32{0x7C00, 2147483647, "infinity is held"},
                                           halfToInt32{0xFC00, std::numeric_limits<int>::min(), "minus infinity"},
                                           halfToInt32{0x7BFF, 65504, "the largest finite half is exact"},
                                           halfToInt32{0x7E00, 0, "a NaN gives zero"},
                                           halfToInt32{0xBE00, -2, "-1.5 is a tie, away from zero"}));

using halfToInt64 = known<std::uint16_t, long long>;
class HalfToInt64 : public convertsFrom<long long> {};
TEST_P(HalfToInt64, GivesTheKnownInteger) { expectKnown(); }
INSTANTIATE_TEST_SUITE_P(Known, HalfToInt64,
                         ::testing::Values(halfToInt64{0xFC00, std::numeric_limits<long long>::min(), "the minimum"},
                                           halfToInt64{0x7C00, std::numeric_limits<long long>::max(), "the maximum"},
                                           halfToInt64{0xFBFF, -65504, "the sign reaches the high word"}));

using halfToUint64 = known<std::uint16_t, unsigned long long>;
class HalfToUint64 : public convertsFrom<unsigned long long> {};
TEST_P(HalfToUint64, GivesTheKnownInteger) { expectKnown(); }
INSTANTIATE_TEST_SUITE_P(Known, HalfToUint64,
                         ::testing::Values(halfToUint64{0x7C00, 18446744073709551615ull, "infinity is held"},
                                           halfToUint64{0x7BFF, 65504, "the largest finite half is exact"}));

TEST(HalfToLogical, IsFalseForTheTwoZerosAlone) {
  EXPECT_FALSE(convertHalfToLogical(0x8000)) << "minus zero";
  EXPECT_TRUE(convertHalfToLogical(0x0001)) << "the smallest subnormal";
  EXPECT_TRUE(convertHalfToLogical(0x7E00)) << "a NaN is not refused here";
  bitComparison compare("half to logical");
  testing::forEveryPattern([&](std::uint16_t h) {
    const bool expected = h != 0x0000 && h != 0x8000;
    compare.check(convertHalfToLogical(h), expected, h);
    compare.check(halfToLogical(h), expected, h);
  });
}

}  // namespace
}  // namespace zthalf
