// The operators of complex halves, against their rules case after case, and against exact integers.
#include <gtest/gtest.h>

#include "tests/scalar/complex/complex_rules.h"
#include "tests/support/complex_operands.h"
#include "tests/support/exact.h"
#include "tests/support/expect_bits.h"

namespace zthalf {
namespace {

using namespace zthalf::testing;
using complexHalf = std::complex<half_t>;

complexHalf of(std::uint16_t re, std::uint16_t im) { return {half_t{re}, half_t{im}}; }

template <class Wide>
complexHalf roundedPair(rules::pairOf<Wide> z) {
  return of(rules::rounded(z.re), rules::rounded(z.im));
}

template <class Visit>
void forComplexPairs(Visit visit) {
  forPairsOf<complexHalf, complexHalf>(400'000, visit);
}

TEST(ComplexOperators, SumsAndDifferencesGoPartByPart) {
  bitComparison plus("+"), minus("-");
  forComplexPairs([&](complexHalf x, complexHalf y) {
    plus.check(x + y, complexHalf(x.real() + y.real(), x.imag() + y.imag()), x, y);
    minus.check(x - y, complexHalf(x.real() - y.real(), x.imag() - y.imag()), x, y);
  });
}

TEST(ComplexOperators, TheProductFollowsItsCases) {
  bitComparison compare("*");
  forComplexPairs([&](complexHalf x, complexHalf y) {
    using rules::way;
    compare.check(x * y, roundedPair(rules::timesComplex<way::nudgedSingle>(rules::in<float>(x), rules::in<float>(y))),
                  x, y);
  });
}

TEST(ComplexOperators, TheQuotientFollowsItsCases) {
  bitComparison compare("/");
  forComplexPairs([&](complexHalf x, complexHalf y) {
    compare.check(x / y, roundedPair(rules::byComplex<true>(rules::in<float>(x), rules::in<float>(y))), x, y);
  });
}

// Both parts of a product of numbers in exact integers, rounded once. Below the normal range a second rounding is part
// of the result, so those are left to the rules.
TEST(ComplexOperators, TheProductIsTheExactOneRoundedOnce) {
  bitSource bits(302);
  bitComparison compare("* against integers");
  unsigned long normal = 0;
  for (int i = 0; i < 3'000'000; ++i) {
    const auto part = [&] {
      const auto p = static_cast<std::uint16_t>(bits() >> 48);
      return exact::isFinite(p) ? p : static_cast<std::uint16_t>(p ^ 0x4000);
    };
    const std::uint16_t a = part(), b = part(), c = part(), d = part();
    const complexHalf product = of(a, b) * of(c, d);
    const auto check = [&](half_t result, __int128 units) {
      const bool negative = units < 0;
      const std::uint16_t magnitude =
          exact::nearestHalf(static_cast<exact::wideInteger>(negative ? -units : units), 2 * exact::unitExponent);
      if (magnitude < 0x0400) return;
      ++normal;
      compare.check(result, half_t{static_cast<std::uint16_t>(magnitude | (negative ? 0x8000 : 0))}, of(a, b),
                    of(c, d));
    };
    const auto times = [](std::uint16_t x, std::uint16_t y) {
      return static_cast<__int128>(exact::unitsOf(x)) * exact::unitsOf(y);
    };
    check(product.real(), times(a, c) - times(b, d));
    check(product.imag(), times(a, d) + times(b, c));
  }
  EXPECT_GT(normal, 1'000'000u);
}

// A double would give another result in the first line, and a fused operation too.
TEST(ComplexOperators, TheProductIsWorkedInFloat) {
  EXPECT_EQ((of(0x314C, 0x88AE) * of(0x89BE, 0x1867)).real().bits, 0x81E2);
  EXPECT_EQ((of(0x2193, 0xA65B) * of(0x07DD, 0x9A5D)).imag().bits, 0x826A);
}

struct example {
  std::uint16_t a, b, c, d, re, im;
  char const* why;
};

TEST(ComplexOperators, ProductsWithZeroParts) {
  for (const auto [a, b, c, d, re, im, why] : {
           example{0x3C00, 0x0000, 0x4000, 0x0000, 0x4000, 0x0000, "two real numbers"},
           example{0x7C00, 0x0000, 0x4000, 0x0000, 0x7C00, 0x0000, "infinity times a real number"},
           example{0x0000, 0x3C00, 0x0000, 0x3C00, 0xBC00, 0x0000, "i times i"},
           example{0x7C00, 0x0000, 0x0000, 0x3C00, 0x0000, 0x7C00, "infinity times i"},
           example{0x3C00, 0x8000, 0x4000, 0x8000, 0x4000, 0x0000, "zeros of the other sign"},
           example{0x7C00, 0x3C00, 0x3C00, 0x3C00, 0x7C00, 0x7C00, "infinity in one part of four"},
           example{0x7C00, 0x7C00, 0x3C00, 0x3C00, 0x7E00, 0x7C00, "infinity less infinity"},
       }) {
    EXPECT_EQ(hex(of(a, b) * of(c, d)), hex(of(re, im))) << why;
  }
}

TEST(ComplexOperators, QuotientsAtTheEdges) {
  for (const auto [a, b, c, d, re, im, why] : {
           example{0x3C00, 0x0000, 0x0000, 0x0000, 0x7C00, 0x0000, "one by zero"},
           example{0x3C00, 0x3C00, 0x0000, 0x0000, 0x7C00, 0x7C00, "1 + i by zero"},
           example{0x0000, 0x0000, 0x0000, 0x0000, 0x7E00, 0x0000, "zero by zero"},
           example{0x0000, 0x3C00, 0x0000, 0x3C00, 0x3C00, 0x0000, "i by i"},
           example{0x3C00, 0x3C00, 0x3C00, 0x3C00, 0x3C00, 0x0000, "on one diagonal"},
           example{0x3C00, 0x3C00, 0x3C00, 0xBC00, 0x0000, 0x3C00, "on both diagonals"},
           example{0x8000, 0x3C00, 0x4000, 0x0000, 0x0000, 0x3800, "an imaginary number by a real one"},
           example{0x3C00, 0x3C00, 0x7C00, 0x3C00, 0x0000, 0x0000, "a number by an infinity, Smith's form"},
       }) {
    EXPECT_EQ(hex(of(a, b) / of(c, d)), hex(of(re, im))) << why;
  }
}

TEST(ComplexOperators, NegationLeavesNoMinusZeroInTheImaginaryPart) {
  EXPECT_EQ(hex(-of(0x3C00, 0x0000)), hex(of(0xBC00, 0x0000)));
  EXPECT_EQ(hex(-of(0x3C00, 0x8000)), hex(of(0xBC00, 0x0000)));
  EXPECT_EQ(hex(-of(0x0000, 0x3C00)), hex(of(0x8000, 0xBC00)));
  EXPECT_EQ(hex(-of(0x7E01, 0xFC01)), hex(of(0xFE01, 0x7C01)));
}

TEST(ComplexOperators, EqualityTakesBothPartsAndOrderTheRealOnes) {
  forComplexPairs([](complexHalf x, complexHalf y) {
    ASSERT_EQ(x == y, x.real() == y.real() && x.imag() == y.imag()) << hex(x) << hex(y);
    ASSERT_EQ(x != y, x.real() != y.real() || x.imag() != y.imag()) << hex(x) << hex(y);
    ASSERT_EQ(x > y, x.real() > y.real()) << hex(x) << hex(y);
    ASSERT_EQ(x >= y, x.real() >= y.real()) << hex(x) << hex(y);
    ASSERT_EQ(x < y, x.real() < y.real()) << hex(x) << hex(y);
    ASSERT_EQ(x <= y, x.real() <= y.real()) << hex(x) << hex(y);
  });
  const complexHalf five = of(0x3C00, 0x4500), four = of(0x3C00, 0x4400);
  EXPECT_FALSE(five > four);
  EXPECT_TRUE(five >= four);
  EXPECT_FALSE(five == four);
}

}  // namespace
}  // namespace zthalf
