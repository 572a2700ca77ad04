// The value types as a user sees them: layout, and what the operators store and return.
#include "zthalf/half_t.h"

#include <gtest/gtest.h>

#include <array>
#include <complex>
#include <cstdio>
#include <cstring>
#include <type_traits>

#include "tests/support/expect_bits.h"
#include "tests/support/known.h"
#include "tests/support/patterns.h"
#include "tests/support/reference.h"

namespace zthalf {
namespace {

using testing::bitComparison;

template <class Value>
class ValueType : public ::testing::Test {};
using valueTypes = ::testing::Types<half_t, fp16binary_t>;
TYPED_TEST_SUITE(ValueType, valueTypes);

TYPED_TEST(ValueType, IsOnePatternAndNothingElse) {
  EXPECT_EQ(sizeof(TypeParam), 2u);
  EXPECT_EQ(alignof(TypeParam), 2u);
  EXPECT_TRUE(std::is_trivially_copyable_v<TypeParam>);
  EXPECT_TRUE(std::is_standard_layout_v<TypeParam>);
  EXPECT_TRUE(std::is_trivially_default_constructible_v<TypeParam>);
}

// What parentheses, casts, assignments and containers go by. What braces take is for the compiler to say, in
// tests/abi/misuse_test.py.
template <class Value, class... Numbers>
constexpr bool noneBecomes = ((!std::is_constructible_v<Value, Numbers> && !std::is_convertible_v<Numbers, Value> &&
                               !std::is_assignable_v<Value&, Numbers> && !std::is_convertible_v<Value, Numbers>)&&...);

TYPED_TEST(ValueType, NoNumberBecomesAPattern) {
  EXPECT_TRUE((noneBecomes<TypeParam, float, double, long double, bool, char, signed char, unsigned char, short,
                           unsigned short, int, unsigned, long, unsigned long, long long, unsigned long long>));
  EXPECT_FALSE((std::is_constructible_v<TypeParam, unsigned short, unsigned short>));
}

TYPED_TEST(ValueType, BracesHoldThePattern) {
  constexpr TypeParam one{0x3C00}, zero{};
  static_assert(one.bits == 0x3C00 && zero.bits == 0);
  EXPECT_TRUE((noexcept(TypeParam{})&& noexcept(TypeParam{0x3C00})));
  TypeParam x = {0x7C01};
  EXPECT_EQ(x.bits, 0x7C01);
  x = {0x8000};
  EXPECT_EQ(x.bits, 0x8000);
  x = {};
  EXPECT_EQ(x.bits, 0);
  EXPECT_EQ(TypeParam({}).bits, 0);
  EXPECT_EQ(TypeParam{one}.bits, 0x3C00);
  const TypeParam several[] = {{1}, {2}, one};
  EXPECT_EQ(several[1].bits, 2);
}

// A list that the compiler cannot see through.
[[gnu::noinline]] std::initializer_list<std::uint16_t> listOf(std::size_t length) {
  static constexpr std::initializer_list<std::uint16_t> one{0x3C00}, two{0x3C00, 0x4000};
  return length == 1 ? one : two;
}

TYPED_TEST(ValueType, OfTwoPatternsNoneIsChosen) {
  EXPECT_EQ(TypeParam(listOf(1)).bits, 0x3C00);
  GTEST_FLAG_SET(death_test_style, "threadsafe");
  EXPECT_DEATH(std::printf("%04X", TypeParam(listOf(2)).bits), "");
}

TYPED_TEST(ValueType, AnArrayIsAnArrayOfPatterns) {
  const std::array<TypeParam, 4> values{{{0x3C00}, {0x8000}, {0x7C01}, {0xFFFF}}};
  std::array<std::uint16_t, 4> patterns{};
  static_assert(sizeof values == sizeof patterns);
  std::memcpy(patterns.data(), values.data(), sizeof values);
  EXPECT_EQ(patterns, (std::array<std::uint16_t, 4>{0x3C00, 0x8000, 0x7C01, 0xFFFF}));
}

TYPED_TEST(ValueType, AComplexValueIsTwoPatternsRealPartFirst) {
  const std::array<std::complex<TypeParam>, 2> values{{{{0x3C00}, {0x8000}}, {{0x7C01}, {0x0001}}}};
  std::array<std::uint16_t, 4> patterns{};
  static_assert(sizeof values == sizeof patterns);
  std::memcpy(patterns.data(), values.data(), sizeof values);
  EXPECT_EQ(patterns, (std::array<std::uint16_t, 4>{0x3C00, 0x8000, 0x7C01, 0x0001}));
}

TEST(ValueTypes, AnArrayOfOneIsAnArrayOfTheOther) {
  std::array<half_t, 3> values{{{0x3C00}, {0x7C01}, {0x8000}}};
  auto* const elements = reinterpret_cast<fp16binary_t*>(values.data());
  EXPECT_EQ(elements[1].bits, 0x7C01);
  elements[2].bits = 0xBC00;
  EXPECT_EQ(values[2].bits, 0xBC00);
}

TEST(RealType, IsTheHalfForRealAndComplex) {
  EXPECT_TRUE((std::is_same_v<half::realType<fp16binary_t>::type, fp16binary_t>));
  EXPECT_TRUE((std::is_same_v<half::realType<std::complex<fp16binary_t>>::type, fp16binary_t>));
}

TEST(HalfOperators, GiveAndTakeHalves) {
  half_t x{0x3C00};
  const half_t c = x;
  EXPECT_TRUE((std::is_same_v<decltype(+c), half_t> && std::is_same_v<decltype(-c), half_t>));
  EXPECT_TRUE((std::is_same_v<decltype(c + c), half_t> && std::is_same_v<decltype(c - c), half_t>));
  EXPECT_TRUE((std::is_same_v<decltype(c * c), half_t> && std::is_same_v<decltype(c / c), half_t>));
  EXPECT_TRUE((std::is_same_v<decltype(x += c), half_t&> && std::is_same_v<decltype(x -= c), half_t&>));
  EXPECT_TRUE((std::is_same_v<decltype(x *= c), half_t&> && std::is_same_v<decltype(x /= c), half_t&>));
  EXPECT_TRUE((std::is_same_v<decltype(++x), half_t&> && std::is_same_v<decltype(--x), half_t&>));
  EXPECT_TRUE((std::is_same_v<decltype(x++), half_t> && std::is_same_v<decltype(x--), half_t>));
  EXPECT_TRUE((std::is_same_v<decltype(c == c), bool> && std::is_same_v<decltype(c <= c), bool>));
}

TEST(HalfOperators, ThatStoreReturnTheObject) {
  half_t x{0x4000};
  EXPECT_EQ(&(x += half_t{0x3C00}), &x);
  EXPECT_EQ(&(x -= half_t{0x3C00}), &x);
  EXPECT_EQ(&(x *= half_t{0x3C00}), &x);
  EXPECT_EQ(&(x /= half_t{0x3C00}), &x);
  EXPECT_EQ(&++x, &x);
  EXPECT_EQ(&--x, &x);
  EXPECT_EQ(x.bits, 0x4000) << "every step undone by the next";
  EXPECT_EQ(((x += half_t{0x3C00}) *= half_t{0x4000}).bits, 0x4600) << "(2 + 1) * 2";
}

TEST(HalfOperators, MayTakeTheObjectItselfAsOperand) {
  bitComparison compare("x op= x");
  testing::forEveryPattern([&](std::uint16_t h) {
    half_t x{h};
    half_t const& self = x;
    compare.check(x += self, half_t{reference::sum(h, h)}, h);
    x = {h};
    compare.check(x -= self, half_t{reference::difference(h, h)}, h);
    x = {h};
    compare.check(x *= self, half_t{reference::product(h, h)}, h);
    x = {h};
    compare.check(x /= self, half_t{reference::quotient(h, h)}, h);
  });
}

TEST(HalfOperators, UnaryPlusAndMinusAreBitWork) {
  EXPECT_EQ((-half_t{0x7E00}).bits, 0xFE00);
  EXPECT_EQ((-half_t{0x0000}).bits, 0x8000);
  bitComparison plus("+");
  bitComparison minus("-");
  testing::forEveryPattern([&](std::uint16_t h) {
    plus.check(+half_t{h}, half_t{h}, h);
    minus.check(-half_t{h}, half_t{static_cast<std::uint16_t>(h + 0x8000)}, h);
  });
}

TEST(HalfOperators, IncrementAndDecrementAddOneAndMinusOne) {
  bitComparison increment("++");
  bitComparison decrement("--");
  testing::forEveryPattern([&](std::uint16_t h) {
    const half_t more{reference::sum(h, 0x3C00)};
    const half_t less{reference::sum(h, 0xBC00)};
    half_t x{h};
    increment.check(++x, more, h);
    increment.check(x, more, h);
    x = {h};
    decrement.check(--x, less, h);
    decrement.check(x, less, h);
  });
}

TEST(HalfOperators, PostfixReturnsTheOldPatternUntouched) {
  bitComparison increment("x++");
  bitComparison decrement("x--");
  testing::forEveryPattern([&](std::uint16_t h) {
    half_t x{h};
    increment.check(x++, half_t{h}, h);
    increment.check(x, half_t{reference::sum(h, 0x3C00)}, h);
    x = {h};
    decrement.check(x--, half_t{h}, h);
    decrement.check(x, half_t{reference::sum(h, 0xBC00)}, h);
  });
}

using step = testing::known<std::uint16_t, std::uint16_t>;
class Increment : public ::testing::TestWithParam<step> {};
TEST_P(Increment, GivesTheKnownPattern) {
  half_t x{GetParam().operand};
  const half_t old = x++;
  EXPECT_EQ(testing::hex(x), testing::hex(GetParam().expected)) << GetParam().why;
  EXPECT_EQ(testing::hex(old), testing::hex(GetParam().operand)) << GetParam().why;
  half_t y{GetParam().operand};
  EXPECT_EQ(testing::hex(++y), testing::hex(GetParam().expected)) << GetParam().why;
}
INSTANTIATE_TEST_SUITE_P(Known, Increment,
                         ::testing::Values(step{0x7C01, 0x7E00, "a signalling NaN is stored quiet, returned as it was"},
                                           step{0xFDFF, 0xFE00, "a NaN keeps its sign"},
                                           step{0x7BFF, 0x7BFF, "65505 rounds back to 65504"},
                                           step{0x6800, 0x6800, "2049 is a tie that goes to 2048"},
                                           step{0x6801, 0x6802, "2051 is a tie that goes to 2052"},
                                           step{0x67FF, 0x6800, "2047 is the last that steps exactly"},
                                           step{0xBC00, 0x0000, "-1 + 1 is plus zero"},
                                           step{0x8000, 0x3C00, "from minus zero"}, step{0xFC00, 0xFC00, "infinity"}));

class Decrement : public ::testing::TestWithParam<step> {};
TEST_P(Decrement, GivesTheKnownPattern) {
  half_t x{GetParam().operand};
  const half_t old = x--;
  EXPECT_EQ(testing::hex(x), testing::hex(GetParam().expected)) << GetParam().why;
  EXPECT_EQ(testing::hex(old), testing::hex(GetParam().operand)) << GetParam().why;
  half_t y{GetParam().operand};
  EXPECT_EQ(testing::hex(--y), testing::hex(GetParam().expected)) << GetParam().why;
}
INSTANTIATE_TEST_SUITE_P(Known, Decrement,
                         ::testing::Values(step{0xFC01, 0xFE00, "a signalling NaN is stored quiet, returned as it was"},
                                           step{0x7E01, 0x7E00, "the NaN added to is not negative like the step"},
                                           step{0xFBFF, 0xFBFF, "-65505 rounds back to -65504"},
                                           step{0xE800, 0xE800, "-2049 is a tie that goes to -2048"},
                                           step{0x3C00, 0x0000, "1 - 1 is plus zero"},
                                           step{0x8000, 0xBC00, "from minus zero"}, step{0x7C00, 0x7C00, "infinity"}));

}  // namespace
}  // namespace zthalf
