#include "scalar/half_arithmetic.h"

#include <gtest/gtest.h>

#include <ostream>

#include "tests/support/exact.h"
#include "tests/support/expect_bits.h"
#include "tests/support/patterns.h"
#include "tests/support/reference.h"
#include "zthalf/half_t.h"

namespace zthalf {
namespace {

using testing::bitComparison;

// Every pair of the curated patterns: the primitive, the operator and the compound operator.

template <class Primitive, class Reference, class Operator, class Compound>
void followsTheRule(char const* name, Primitive primitive, Reference reference, Operator apply, Compound assign) {
  bitComparison compare(name);
  testing::forEveryCuratedPair([&](std::uint16_t a, std::uint16_t b) {
    const std::uint16_t expected = reference(a, b);
    half_t x{a};
    assign(x, half_t{b});
    compare.check(primitive(a, b), expected, a, b);
    compare.check(apply(half_t{a}, half_t{b}), half_t{expected}, a, b);
    compare.check(x, half_t{expected}, a, b);
  });
}

#define ZTHALF_TEST_OPERATION(name, primitive, op)                                                \
  TEST(HalfArithmetic, name##FollowsTheRuleOnEveryCuratedPair) {                                  \
    followsTheRule(                                                                               \
        #name, [](std::uint16_t a, std::uint16_t b) { return primitive(a, b); }, reference::name, \
        [](half_t a, half_t b) { return a op b; }, [](half_t& x, half_t b) { x op## = b; });      \
  }
ZTHALF_TEST_OPERATION(sum, sumOf, +)
ZTHALF_TEST_OPERATION(difference, differenceOf, -)
ZTHALF_TEST_OPERATION(product, productOf, *)
ZTHALF_TEST_OPERATION(quotient, quotientOf, /)

// Against exact integer arithmetic, for random pairs of finite halves.
TEST(HalfArithmetic, RoundsTheExactResult) {
  bitComparison compare("exact operation");
  testing::randomBits bits(5);
  for (int i = 0; i < 300'000; ++i) {
    const auto a = static_cast<std::uint16_t>(bits.below(0x10000));
    const auto b = static_cast<std::uint16_t>(bits.below(0x10000));
    // Close in exponent, where sums cancel and quotients are near one.
    const auto near = static_cast<std::uint16_t>((b & 0x83FF) | (a & 0x7C00));
    for (const std::uint16_t second : {b, near}) {
      if (!exact::isFinite(a) || !exact::isFinite(second)) continue;
      compare.check(sumOf(a, second), exact::sum(a, second), a, second);
      compare.check(differenceOf(a, second), exact::difference(a, second), a, second);
      compare.check(productOf(a, second), exact::product(a, second), a, second);
      if ((second & 0x7FFF) != 0) compare.check(quotientOf(a, second), exact::quotient(a, second), a, second);
    }
  }
}

// Known results. The operation is written as its sign.
struct knownOperation {
  std::uint16_t left;
  char operation;
  std::uint16_t right;
  std::uint16_t expected;
  char const* why;
};

void PrintTo(knownOperation const& row, std::ostream* out) { *out << row.why; }

half_t resultOf(knownOperation const& row) {
  const half_t left{row.left};
  const half_t right{row.right};
  switch (row.operation) {
    case '+':
      return left + right;
    case '-':
      return left - right;
    case '*':
      return left * right;
    default:
      return left / right;
  }
}

class HalfArithmetic : public ::testing::TestWithParam<knownOperation> {};
TEST_P(HalfArithmetic, GivesTheKnownPattern) {
  knownOperation const& row = GetParam();
  EXPECT_EQ(testing::hex(resultOf(row)), testing::hex(row.expected)) << row.why;
}

INSTANTIATE_TEST_SUITE_P(
    Numbers, HalfArithmetic,
    ::testing::Values(knownOperation{0x7BFF, '+', 0x7BFF, 0x7C00, "65504 + 65504 overflows"},
                      knownOperation{0x7BFF, '+', 0x4C00, 0x7C00, "65504 + 16 is the rounding limit"},
                      knownOperation{0x7BFF, '+', 0x4B80, 0x7BFF, "65504 + 15 is below the rounding limit"},
                      knownOperation{0xFBFF, '-', 0x4C00, 0xFC00, "-65504 - 16, the same below zero"},
                      knownOperation{0x0001, '*', 0x3800, 0x0000, "2^-25 is a tie and goes to zero"},
                      knownOperation{0x0003, '*', 0x3800, 0x0002, "3 * 2^-25 is a tie and goes to even"},
                      knownOperation{0x8001, '*', 0x3800, 0x8000, "an underflow keeps its sign"},
                      knownOperation{0x7BFF, '*', 0x4000, 0x7C00, "65504 * 2 overflows"},
                      knownOperation{0x3C00, '/', 0x4200, 0x3555, "1 / 3"},
                      knownOperation{0x0001, '/', 0x4000, 0x0000, "2^-25 is a tie and goes to zero"},
                      knownOperation{0x03FF, '+', 0x0001, 0x0400, "subnormals add up to the smallest normal"},
                      knownOperation{0x0400, '-', 0x0001, 0x03FF, "a normal minus a subnormal is subnormal"}));

INSTANTIATE_TEST_SUITE_P(ZerosAndInfinities, HalfArithmetic,
                         ::testing::Values(knownOperation{0x3C00, '/', 0x8000, 0xFC00, "1 / -0"},
                                           knownOperation{0xBC00, '/', 0x8000, 0x7C00, "-1 / -0"},
                                           knownOperation{0x3C00, '/', 0xFC00, 0x8000, "1 / -infinity"},
                                           knownOperation{0x8000, '+', 0x8000, 0x8000, "-0 + -0 keeps the sign"},
                                           knownOperation{0x8000, '+', 0x0000, 0x0000, "-0 + 0 is plus zero"},
                                           knownOperation{0x8000, '-', 0x0000, 0x8000, "-0 - 0 keeps the sign"},
                                           knownOperation{0x3C00, '-', 0x3C00, 0x0000, "x - x is plus zero"},
                                           knownOperation{0x7C00, '+', 0xFBFF, 0x7C00, "infinity swallows"},
                                           knownOperation{0x7C00, '*', 0xBC00, 0xFC00, "infinity times -1"}));

INSTANTIATE_TEST_SUITE_P(
    InvalidOperations, HalfArithmetic,
    ::testing::Values(knownOperation{0x7C00, '-', 0x7C00, 0x7E00, "infinity - infinity is the positive NaN"},
                      knownOperation{0xFC00, '-', 0xFC00, 0x7E00, "also of negative infinities"},
                      knownOperation{0x7C00, '+', 0xFC00, 0x7E00, "infinity + -infinity"},
                      knownOperation{0xFC00, '+', 0x7C00, 0x7E00, "-infinity + infinity"},
                      knownOperation{0x0000, '*', 0x7C00, 0x7E00, "0 * infinity"},
                      knownOperation{0xFC00, '*', 0x0000, 0x7E00, "-infinity * 0"},
                      knownOperation{0x0000, '/', 0x0000, 0x7E00, "0 / 0"},
                      knownOperation{0x8000, '/', 0x0000, 0x7E00, "-0 / 0: no sign from the operands"},
                      knownOperation{0x7C00, '/', 0xFC00, 0x7E00, "infinity / -infinity"}));

INSTANTIATE_TEST_SUITE_P(
    OneNaN, HalfArithmetic,
    ::testing::Values(knownOperation{0xFE00, '+', 0x3C00, 0xFE00, "the sign of the left NaN"},
                      knownOperation{0x3C00, '+', 0xFE00, 0xFE00, "the sign of the right NaN"},
                      knownOperation{0x7C01, '*', 0xBC00, 0x7E00, "a factor does not turn the sign, payload dropped"},
                      knownOperation{0x3C00, '-', 0x7E00, 0x7E00, "a difference does not turn the sign"},
                      knownOperation{0x3C00, '-', 0xFD55, 0xFE00, "nor of a negative NaN"},
                      knownOperation{0xFC00, '/', 0x7FFF, 0x7E00, "infinity over a NaN"},
                      knownOperation{0x7C00, '+', 0xFE00, 0xFE00, "a NaN is stronger than an infinity"}));

INSTANTIATE_TEST_SUITE_P(
    TwoNaNs, HalfArithmetic,
    ::testing::Values(knownOperation{0x7E00, '+', 0xFE00, 0xFE00, "the right operand of +"},
                      knownOperation{0xFE00, '+', 0x7E00, 0x7E00, "the right operand of +"},
                      knownOperation{0x7E00, '*', 0xFE00, 0xFE00, "the right operand of *"},
                      knownOperation{0xFE00, '*', 0x7E00, 0x7E00, "the right operand of *"},
                      knownOperation{0x7E00, '-', 0xFE00, 0x7E00, "the left operand of -"},
                      knownOperation{0xFE00, '-', 0x7E00, 0xFE00, "the left operand of -"},
                      knownOperation{0x7E00, '/', 0xFE00, 0x7E00, "the left operand of /"},
                      knownOperation{0xFE00, '/', 0x7E00, 0xFE00, "the left operand of /"},
                      knownOperation{0xFC01, '+', 0x7E00, 0xFE00, "signalling wins over the right operand of +"},
                      knownOperation{0xFDFF, '*', 0x7E00, 0xFE00, "signalling wins over the right operand of *"},
                      knownOperation{0x7E00, '-', 0xFC01, 0xFE00, "signalling wins over the left operand of -"},
                      knownOperation{0x7FFF, '/', 0xFD00, 0xFE00, "signalling wins over the left operand of /"},
                      knownOperation{0x7C01, '+', 0xFC01, 0xFE00, "two signalling: the right operand of +"},
                      knownOperation{0x7C01, '/', 0xFC01, 0x7E00, "two signalling: the left operand of /"}));

}  // namespace
}  // namespace zthalf
