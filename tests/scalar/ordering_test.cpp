#include <gtest/gtest.h>

#include "scalar/half_arithmetic.h"
#include "tests/support/expect_bits.h"
#include "tests/support/patterns.h"
#include "tests/support/reference.h"
#include "zthalf/half_t.h"

namespace zthalf {
namespace {

using testing::bitComparison;

// The six answers as one word, so that a wrong one shows which it is: == != < > <= >= from bit 0 up.

unsigned answersOfOperators(half_t a, half_t b) {
  return static_cast<unsigned>(a == b) | static_cast<unsigned>(a != b) << 1 | static_cast<unsigned>(a < b) << 2 |
         static_cast<unsigned>(a > b) << 3 | static_cast<unsigned>(a <= b) << 4 | static_cast<unsigned>(a >= b) << 5;
}

unsigned answersOfPrimitives(std::uint16_t a, std::uint16_t b) {
  return static_cast<unsigned>(isEqual(a, b)) | static_cast<unsigned>(isUnequal(a, b)) << 1 |
         static_cast<unsigned>(isLess(a, b)) << 2 | static_cast<unsigned>(isGreater(a, b)) << 3 |
         static_cast<unsigned>(isLessOrEqual(a, b)) << 4 | static_cast<unsigned>(isGreaterOrEqual(a, b)) << 5;
}

unsigned answersOfNumbers(double a, double b) {
  return static_cast<unsigned>(a == b) | static_cast<unsigned>(a != b) << 1 | static_cast<unsigned>(a < b) << 2 |
         static_cast<unsigned>(a > b) << 3 | static_cast<unsigned>(a <= b) << 4 | static_cast<unsigned>(a >= b) << 5;
}

constexpr unsigned equal = 0b110001;
constexpr unsigned less = 0b010110;
constexpr unsigned greater = 0b101010;
constexpr unsigned unordered = 0b000010;

TEST(Ordering, IsThatOfTheNumbersOnEveryCuratedPair) {
  bitComparison compare("== != < > <= >=");
  for (const std::uint16_t a : testing::curatedPatterns()) {
    const double first = reference::widenedToDouble(a);
    for (const std::uint16_t b : testing::curatedPatterns()) {
      const unsigned expected = answersOfNumbers(first, reference::widenedToDouble(b));
      compare.check(answersOfOperators({a}, {b}), expected, a, b);
      compare.check(answersOfPrimitives(a, b), expected, a, b);
    }
  }
}

TEST(Ordering, EveryPatternAgainstItselfItsNegativeAndItsNeighbour) {
  bitComparison compare("== != < > <= >=");
  testing::forEveryPattern([&](std::uint16_t a) {
    for (const unsigned other : {a + 0u, a ^ 0x8000u, a + 1u}) {
      const auto b = static_cast<std::uint16_t>(other);
      const unsigned expected = answersOfNumbers(reference::widenedToDouble(a), reference::widenedToDouble(b));
      compare.check(answersOfOperators({a}, {b}), expected, a, b);
    }
  });
}

TEST(Ordering, TheTwoZerosAreEqual) {
  EXPECT_EQ(answersOfOperators({0x0000}, {0x8000}), equal);
  EXPECT_EQ(answersOfOperators({0x8000}, {0x0000}), equal);
}

TEST(Ordering, ANaNIsUnequalToEverythingAndNothingElse) {
  for (const std::uint16_t nan : {0x7C01, 0x7DFF, 0x7E00, 0x7FFF, 0xFC01, 0xFE00, 0xFFFF}) {
    testing::forEveryPattern([&](std::uint16_t other) {
      ASSERT_EQ(answersOfOperators({nan}, {other}), unordered) << testing::hex(nan) << ' ' << testing::hex(other);
      ASSERT_EQ(answersOfOperators({other}, {nan}), unordered) << testing::hex(other) << ' ' << testing::hex(nan);
    });
  }
}

TEST(Ordering, RunsFromMinusInfinityToInfinity) {
  const std::uint16_t ascending[] = {0xFC00, 0xFBFF, 0x8001, 0x0000, 0x0001, 0x7BFF, 0x7C00};
  for (int i = 0; i < 7; ++i) {
    for (int j = 0; j < 7; ++j) {
      const unsigned expected = i < j ? less : i > j ? greater : equal;
      EXPECT_EQ(answersOfOperators({ascending[i]}, {ascending[j]}), expected)
          << testing::hex(ascending[i]) << ' ' << testing::hex(ascending[j]);
    }
  }
}

}  // namespace
}  // namespace zthalf
