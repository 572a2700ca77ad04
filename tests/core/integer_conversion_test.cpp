// Integers and logical values to half.
#include "core/integer_conversion.h"

#include <gtest/gtest.h>

#include <limits>

#include "tests/support/exact.h"
#include "tests/support/expect_bits.h"
#include "tests/support/known.h"
#include "tests/support/patterns.h"
#include "zthalf/half_scalar.h"

namespace zthalf {
namespace {

using namespace half_scalar::impl;
using testing::bitComparison;
using testing::known;

// The public function of a type, by the type.
std::uint16_t converted(unsigned char value) { return convertUint8ToHalf(value); }
std::uint16_t converted(signed char value) { return convertInt8ToHalf(value); }
std::uint16_t converted(unsigned short value) { return convertUint16ToHalf(value); }
std::uint16_t converted(short value) { return convertInt16ToHalf(value); }
std::uint16_t converted(unsigned int value) { return convertUint32ToHalf(value); }
std::uint16_t converted(int value) { return convertInt32ToHalf(value); }
std::uint16_t converted(unsigned long long value) { return convertUint64ToHalf(value); }
std::uint16_t converted(long long value) { return convertInt64ToHalf(value); }

template <class Integer>
std::uint16_t nearestHalfOf(Integer value) {
  const bool negative = value < 0;
  const auto magnitude = static_cast<std::uint64_t>(value);
  const std::uint16_t h = exact::nearestHalf(negative ? 0 - magnitude : magnitude, 0);
  return static_cast<std::uint16_t>(h | (negative ? 0x8000 : 0));
}

template <class Integer>
void checkToHalf(bitComparison& compare, Integer value) {
  const std::uint16_t expected = nearestHalfOf(value);
  compare.check(integerToHalf(value), expected, value);
  compare.check(converted(value), expected, value);
}

template <class Integer>
class NarrowIntegerToHalf : public ::testing::Test {};
template <class Integer>
class WideIntegerToHalf : public ::testing::Test {};

using narrowTypes = ::testing::Types<unsigned char, signed char, unsigned short, short>;
using wideTypes = ::testing::Types<unsigned int, int, unsigned long long, long long>;
TYPED_TEST_SUITE(NarrowIntegerToHalf, narrowTypes);
TYPED_TEST_SUITE(WideIntegerToHalf, wideTypes);

TYPED_TEST(NarrowIntegerToHalf, IsTheNearestHalfForEveryValue) {
  bitComparison compare("integer to half");
  const std::int32_t last = std::numeric_limits<TypeParam>::max();
  for (std::int32_t value = std::numeric_limits<TypeParam>::min(); value <= last; ++value) {
    checkToHalf(compare, static_cast<TypeParam>(value));
  }
}

TYPED_TEST(WideIntegerToHalf, IsTheNearestHalfForEveryValueNearTheRange) {
  bitComparison compare("integer to half");
  for (std::int32_t value = -70'000; value <= 70'000; ++value) checkToHalf(compare, static_cast<TypeParam>(value));
}

TYPED_TEST(WideIntegerToHalf, IsTheNearestHalfAroundEveryPowerOfTwo) {
  bitComparison compare("integer to half");
  for (unsigned bit = 0; bit < 8 * sizeof(TypeParam); ++bit) {
    const std::uint64_t power = std::uint64_t{1} << bit;
    for (std::uint64_t offset = 0; offset <= 64; ++offset) {
      for (const std::uint64_t value : {power + offset, power - offset}) {
        checkToHalf(compare, static_cast<TypeParam>(value));
        checkToHalf(compare, static_cast<TypeParam>(0 - value));
      }
    }
  }
}

TYPED_TEST(WideIntegerToHalf, IsTheNearestHalfForRandomValuesOfEveryWidth) {
  bitComparison compare("integer to half");
  testing::randomBits bits(4);
  for (int i = 0; i < 100'000; ++i) {
    const std::uint64_t value = bits.next() >> bits.below(64);
    checkToHalf(compare, static_cast<TypeParam>(value));
    checkToHalf(compare, static_cast<TypeParam>(0 - value));
  }
}

TYPED_TEST(WideIntegerToHalf, IsInfiniteAtTheEndsOfTheType) {
  using limits = std::numeric_limits<TypeParam>;
  EXPECT_EQ(converted(limits::max()), 0x7C00);
  EXPECT_EQ(converted(limits::min()), limits::is_signed ? 0xFC00 : 0x0000);
}

template <class Integer>
struct convertsTo : ::testing::TestWithParam<known<Integer, std::uint16_t>> {
  void expectKnown() {
    auto const& row = this->GetParam();
    EXPECT_EQ(testing::hex(converted(row.operand)), testing::hex(row.expected)) << row.why;
    EXPECT_EQ(testing::hex(integerToHalf(row.operand)), testing::hex(row.expected)) << row.why;
  }
};

using uint8ToHalf = known<unsigned char, std::uint16_t>;
class Uint8ToHalf : public convertsTo<unsigned char> {};
TEST_P(Uint8ToHalf, GivesTheKnownPattern) { expectKnown(); }
INSTANTIATE_TEST_SUITE_P(Known, Uint8ToHalf,
                         ::testing::Values(uint8ToHalf{0, 0x0000, "zero has no highest bit"},
                                           uint8ToHalf{1, 0x3C00, "the lowest bit alone"},
                                           uint8ToHalf{255, 0x5BF8, "every bit set"}));

using int8ToHalf = known<signed char, std::uint16_t>;
class Int8ToHalf : public convertsTo<signed char> {};
TEST_P(Int8ToHalf, GivesTheKnownPattern) { expectKnown(); }
INSTANTIATE_TEST_SUITE_P(Known, Int8ToHalf,
                         ::testing::Values(int8ToHalf{-128, 0xD800, "no positive counterpart"},
                                           int8ToHalf{-1, 0xBC00, "the sign bit is set, not borrowed"},
                                           int8ToHalf{127, 0x57F0, "the largest"}));

using uint16ToHalf = known<unsigned short, std::uint16_t>;
class Uint16ToHalf : public convertsTo<unsigned short> {};
TEST_P(Uint16ToHalf, GivesTheKnownPattern) { expectKnown(); }
INSTANTIATE_TEST_SUITE_P(Known, Uint16ToHalf,
                         ::testing::Values(uint16ToHalf{65504, 0x7BFF, "the largest finite half"},
                                           uint16ToHalf{65505, 0x7BFF, "rounds down to it"},
                                           uint16ToHalf{65519, 0x7BFF, "the last that rounds down"},
                                           uint16ToHalf{65520, 0x7C00, "the overflow limit"},
                                           uint16ToHalf{65535, 0x7C00, "the largest"}));

using int16ToHalf = known<short, std::uint16_t>;
class Int16ToHalf : public convertsTo<short> {};
TEST_P(Int16ToHalf, GivesTheKnownPattern) { expectKnown(); }
INSTANTIATE_TEST_SUITE_P(Known, Int16ToHalf,
                         ::testing::Values(int16ToHalf{-32768, 0xF800, "the most negative does not overflow"},
                                           int16ToHalf{2049, 0x6800, "a tie goes to even, downwards: 2048"},
                                           int16ToHalf{2051, 0x6802, "a tie goes to even, upwards: 2052"},
                                           int16ToHalf{-2051, 0xE802, "a tie below zero: -2052"}));

using uint32ToHalf = known<unsigned int, std::uint16_t>;
class Uint32ToHalf : public convertsTo<unsigned int> {};
TEST_P(Uint32ToHalf, GivesTheKnownPattern) { expectKnown(); }
INSTANTIATE_TEST_SUITE_P(Known, Uint32ToHalf,
                         ::testing::Values(uint32ToHalf{0, 0x0000, "zero"},
                                           uint32ToHalf{65519, 0x7BFF, "the last finite result"},
                                           uint32ToHalf{65535, 0x7C00, "infinite by rounding"},
                                           uint32ToHalf{65536, 0x7C00, "infinite by its width"},
                                           uint32ToHalf{0x80000000u, 0x7C00, "the top bit is no sign"}));

using int32ToHalf = known<int, std::uint16_t>;
class Int32ToHalf : public convertsTo<int> {};
TEST_P(Int32ToHalf, GivesTheKnownPattern) { expectKnown(); }
INSTANTIATE_TEST_SUITE_P(Known, Int32ToHalf,
                         ::testing::Values(int32ToHalf{65536, 0x7C00, "infinite by its width"},
                                           int32ToHalf{-65536, 0xFC00, "the same below zero"},
                                           int32ToHalf{std::numeric_limits<int>::min(), 0xFC00,
                                                       "its magnitude is no int"},
                                           int32ToHalf{-65535, 0xFC00, "infinite by rounding"},
                                           int32ToHalf{-65520, 0xFC00, "the overflow limit below zero"},
                                           int32ToHalf{-65519, 0xFBFF, "the last finite result below zero"}));

using uint64ToHalf = known<unsigned long long, std::uint16_t>;
class Uint64ToHalf : public convertsTo<unsigned long long> {};
TEST_P(Uint64ToHalf, GivesTheKnownPattern) { expectKnown(); }
INSTANTIATE_TEST_SUITE_P(Known, Uint64ToHalf,
                         ::testing::Values(uint64ToHalf{18446744073709551615ull, 0x7C00, "the largest"},
                                           uint64ToHalf{0x100000000ull, 0x7C00, "zero in its low word"},
                                           uint64ToHalf{0x100003C00ull, 0x7C00, "small in its low word"}));

using int64ToHalf = known<long long, std::uint16_t>;
class Int64ToHalf : public convertsTo<long long> {};
TEST_P(Int64ToHalf, GivesTheKnownPattern) { expectKnown(); }
INSTANTIATE_TEST_SUITE_P(Known, Int64ToHalf,
                         ::testing::Values(int64ToHalf{std::numeric_limits<long long>::min(), 0xFC00,
                                                       "its magnitude is no long long"},
                                           int64ToHalf{-0x100000000ll, 0xFC00, "zero in its low word"},
                                           int64ToHalf{-65519, 0xFBFF, "the last finite result below zero"}));

TEST(LogicalToHalf, IsOneForEveryByteButZero) {
  EXPECT_EQ(convertLogicalToHalf(false), 0x0000);
  EXPECT_EQ(convertLogicalToHalf(true), 0x3C00);
  for (unsigned byte = 0; byte <= 0xFF; ++byte) {
    EXPECT_EQ(logicalToHalf(static_cast<std::uint8_t>(byte)), byte == 0 ? 0x0000 : 0x3C00) << byte;
  }
}

// All 2^32 values of the 32-bit types; those beyond the width of 16 bits are infinite one and all.
TEST(LongIntegerToHalf, EveryValueOf32Bits) {
  std::uint64_t differences = 0;
  std::uint64_t visited = 0;
  for (std::uint64_t high = 1; high <= 0xFFFF; ++high) {
    std::uint32_t inBlock = 0;
    const bool negative = high >= 0x8000;
    for (std::uint32_t low = 0; low <= 0xFFFF; ++low) {
      const auto value = static_cast<std::uint32_t>(high << 16 | low);
      inBlock += integerToHalf(value) != 0x7C00;
      if (high < 0xFFFF) inBlock += integerToHalf(static_cast<std::int32_t>(value)) != (negative ? 0xFC00 : 0x7C00);
    }
    differences += inBlock;
    visited += 0x10000;
  }
  EXPECT_EQ(differences, 0u);
  EXPECT_EQ(visited, 0xFFFF0000u);
  bitComparison compare("integer to half");
  for (std::uint32_t low = 0; low <= 0xFFFF; ++low) {
    checkToHalf(compare, static_cast<unsigned int>(low));
    checkToHalf(compare, static_cast<int>(low));
    checkToHalf(compare, static_cast<int>(0xFFFF0000u | low));
  }
}

}  // namespace
}  // namespace zthalf
