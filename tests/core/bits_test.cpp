#include "core/bits.h"

#include <gtest/gtest.h>

#include "tests/support/expect_bits.h"

namespace zthalf {
namespace {

TEST(Bits, ViewAndValueAreInverse) {
  testing::bitComparison single("float of bits");
  testing::bitComparison wide("double of bits");
  for (std::uint64_t high = 0; high <= 0xFFFF; ++high) {
    // Every sign, exponent and NaN kind; the low bits tell a NaN of their own.
    for (const std::uint32_t low : {0u, 1u, 0xFFFFu}) {
      const auto word = static_cast<std::uint32_t>(high << 16 | low);
      single.check(bitsOf(floatOf(word)), word);
      single.check(bitsOf(valueOf(word)), word);
      const std::uint64_t wideWord = high << 48 | low;
      wide.check(bitsOf(doubleOf(wideWord)), wideWord);
      wide.check(bitsOf(valueOf(wideWord)), wideWord);
    }
  }
}

TEST(Bits, ViewIsTheEncoding) {
  static_assert(bitsOf(1.0f) == 0x3F800000u && bitsOf(-0.0f) == 0x80000000u);
  static_assert(bitsOf(1.0) == 0x3FF0000000000000u && bitsOf(-2.0) == 0xC000000000000000u);
  static_assert(floatOf(0x477FF000u) == 65520.0f && doubleOf(0x40EFFE0000000000u) == 65520.0);
  volatile float single = 0.1f;
  volatile double wide = 0.1;
  EXPECT_EQ(bitsOf(float{single}), 0x3DCCCCCDu);
  EXPECT_EQ(bitsOf(double{wide}), 0x3FB999999999999Au);
}

template <class Word>
class Selection : public ::testing::Test {};
using words = ::testing::Types<std::uint16_t, std::uint32_t, std::uint64_t>;
TYPED_TEST_SUITE(Selection, words);

TYPED_TEST(Selection, MaskIsAllOnesOrZero) {
  for (const bool condition : {false, true}) {
    const TypeParam expected = condition ? static_cast<TypeParam>(~TypeParam{0}) : TypeParam{0};
    EXPECT_EQ(maskOf<TypeParam>(condition), expected);
  }
}

TYPED_TEST(Selection, SelectTakesEachBitByTheMask) {
  const auto first = static_cast<TypeParam>(0x5555555555555555u);
  const auto second = static_cast<TypeParam>(0x3333333333333333u);
  EXPECT_EQ(select(maskOf<TypeParam>(true), first, second), first);
  EXPECT_EQ(select(maskOf<TypeParam>(false), first, second), second);
  EXPECT_EQ(select(static_cast<TypeParam>(0xF0), TypeParam{0xAA}, TypeParam{0xCC}), TypeParam{0xAC});
}

}  // namespace
}  // namespace zthalf
