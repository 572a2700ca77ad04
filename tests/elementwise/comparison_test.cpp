// Comparisons of arrays: special values by name, and the passes over halves on all pairs of patterns. The rows of the
// entry list are driven in comparison_entries_test.cpp.
#include <gtest/gtest.h>

#include <cstring>
#include <limits>
#include <memory>
#include <vector>

#include "tests/support/patterns.h"
#include "tests/support/reference.h"
#include "zthalf/half_vector.h"

namespace zthalf::testing {
namespace {

using answers = std::vector<unsigned char>;  // the bytes of the output

constexpr half_t zero{0x0000}, minusZero{0x8000}, one{0x3C00}, two{0x4000}, five{0x4500}, half{0x3800},
    infinity{0x7C00}, nan{0x7E00};
using complexHalf = std::complex<half_t>;

template <class Left, class Right>
using comparison = void (*)(Left*, Right*, bool*, unsigned long, unsigned long, unsigned long const*, unsigned long,
                            unsigned long, unsigned long const*, unsigned long, unsigned long, unsigned long const*);

// The answer for one pair, in every lane and remainder of arrays and single elements.
template <class Left, class Right>
void expectAnswer(comparison<Left, Right> compare, Left x, Right y, bool expected) {
  for (const unsigned long n : {1UL, 7UL, 67UL}) {
    const auto a = std::make_unique<Left[]>(n);
    const auto b = std::make_unique<Right[]>(n);
    std::fill_n(a.get(), n, x);
    std::fill_n(b.get(), n, y);
    for (auto const& [na, nb] : {std::pair{n, n}, std::pair{n, 1UL}, std::pair{1UL, n}}) {
      answers c(n + 1, 0xA5);
      compare(a.get(), b.get(), reinterpret_cast<bool*>(c.data()), na, 1, &na, nb, 1, &nb, n, 1, &n);
      answers wanted(n + 1, static_cast<unsigned char>(expected));
      wanted[n] = 0xA5;
      ASSERT_EQ(c, wanted) << na << " with " << nb << " elements";
    }
  }
}

#define EXPECT_ANSWER(op, Left, Right, x, y, expected) \
  expectAnswer<Left, Right>(static_cast<comparison<Left, Right>>(&half_vector::op), x, y, expected)

TEST(Comparison, TheTwoZerosAreEqual) {
  for (auto const& [x, y] : {std::pair{zero, minusZero}, std::pair{minusZero, zero}}) {
    EXPECT_ANSWER(eq, half_t, half_t, x, y, true);
    EXPECT_ANSWER(ne, half_t, half_t, x, y, false);
    EXPECT_ANSWER(ge, half_t, half_t, x, y, true);
    EXPECT_ANSWER(le, half_t, half_t, x, y, true);
    EXPECT_ANSWER(gt, half_t, half_t, x, y, false);
    EXPECT_ANSWER(lt, half_t, half_t, x, y, false);
  }
}

TEST(Comparison, ANaNIsUnequalToItselfAndNothingElse) {
  EXPECT_ANSWER(eq, half_t, half_t, nan, nan, false);
  EXPECT_ANSWER(ne, half_t, half_t, nan, nan, true);
  EXPECT_ANSWER(lt, half_t, half_t, nan, nan, false);
  EXPECT_ANSWER(le, half_t, half_t, nan, nan, false);
  EXPECT_ANSWER(gt, half_t, half_t, nan, nan, false);
  EXPECT_ANSWER(ge, half_t, half_t, nan, nan, false);
}

TEST(Comparison, ARealOperandsImaginaryPartIsAZeroOfEitherSign) {
  EXPECT_ANSWER(eq, complexHalf, half_t, complexHalf(one, minusZero), one, true);
  EXPECT_ANSWER(eq, complexHalf, half_t, complexHalf(one, nan), one, false);
  EXPECT_ANSWER(ne, complexHalf, half_t, complexHalf(one, nan), one, true);
  EXPECT_ANSWER(eq, half_t, complexHalf, one, complexHalf(one, minusZero), true);
  EXPECT_ANSWER(eq, half_t, std::complex<int>, one, std::complex<int>(1, 0), true);
  EXPECT_ANSWER(eq, half_t, std::complex<int>, one, std::complex<int>(1, 1 << 30), false);
}

TEST(Comparison, OrderingsLeaveImaginaryPartsAlone) {
  EXPECT_ANSWER(lt, complexHalf, half_t, complexHalf(one, five), two, true);
  EXPECT_ANSWER(gt, complexHalf, half_t, complexHalf(one, nan), zero, true);
  EXPECT_ANSWER(ge, complexHalf, complexHalf, complexHalf(one, nan), complexHalf(one, infinity), true);
}

TEST(Comparison, IntegersAreComparedExactly) {
  EXPECT_ANSWER(eq, half_t, long long, half_t{0x6800}, 2049LL, false);  // 2048
  EXPECT_ANSWER(lt, half_t, long long, half_t{0x6800}, 2049LL, true);
  EXPECT_ANSWER(lt, half_t, unsigned long long, infinity, std::numeric_limits<unsigned long long>::max(), false);
  EXPECT_ANSWER(gt, half_t, unsigned long long, infinity, std::numeric_limits<unsigned long long>::max(), true);
}

TEST(Comparison, TrueIsOne) {
  EXPECT_ANSWER(ge, half_t, bool, one, true, true);
  EXPECT_ANSWER(eq, half_t, bool, half, true, false);
  EXPECT_ANSWER(eq, bool, half_t, true, one, true);
  EXPECT_ANSWER(eq, bool, complexHalf, false, complexHalf(minusZero, zero), true);
}

TEST(Comparison, AnyByteOfALogicalArrayButZeroIsTrue) {
  std::vector<unsigned char> bytes(256);
  for (unsigned i = 0; i < 256; ++i) bytes[i] = static_cast<unsigned char>(i);
  half_t x = one;
  answers c(256);
  const unsigned long n = 256, single = 1;
  half_vector::eq(&x, reinterpret_cast<bool*>(bytes.data()), reinterpret_cast<bool*>(c.data()), 1, 1, &single, n, 1, &n,
                  n, 1, &n);
  for (unsigned i = 0; i < 256; ++i) EXPECT_EQ(c[i], i != 0) << i;
}

TEST(Comparison, WritesNothingForAnEmptyOutput) {
  half_t x = one;
  half_vector::eq(&x, &x, nullptr, 1, 0, nullptr, 1, 0, nullptr, 0, 0, nullptr);
  half_vector::lt(static_cast<half_t*>(nullptr), static_cast<int*>(nullptr), nullptr, 5, 0, nullptr, 1, 0, nullptr, 0,
                  0, nullptr);
}

// One pattern against an array of all others, on either side, by all six operations.
class everyPatternAgainst {
 public:
  everyPatternAgainst() : all_(count), numbers_(count), found_(count), wanted_(count) {
    forEveryPattern([&](std::uint16_t p) {
      all_[p] = {p};
      numbers_[p] = reference::widenedToSingle(p);
    });
  }

  bool agrees(std::uint16_t p) {
    return check<std::equal_to<float>>(p, &half_vector::eq) && check<std::not_equal_to<float>>(p, &half_vector::ne) &&
           check<std::greater<float>>(p, &half_vector::gt) && check<std::greater_equal<float>>(p, &half_vector::ge) &&
           check<std::less<float>>(p, &half_vector::lt) && check<std::less_equal<float>>(p, &half_vector::le);
  }

 private:
  static constexpr unsigned long count = 0x10000, single = 1;

  template <class Test>
  bool check(std::uint16_t p, comparison<half_t, half_t> compare) {
    compare(&all_[p], all_.data(), reinterpret_cast<bool*>(found_.data()), 1, 1, &single, count, 1, &count, count, 1,
            &count);
    const float x = numbers_[p];
    for (unsigned long i = 0; i < count; ++i) wanted_[i] = static_cast<unsigned char>(Test{}(x, numbers_[i]));
    return found_ == wanted_;
  }

  std::vector<half_t> all_;
  std::vector<float> numbers_;
  answers found_, wanted_;
};

TEST(Comparison, OfEveryHalfWithSelectedOnesIsThatOfTheirNumbers) {
  everyPatternAgainst all;
  for (unsigned i = 0; i < curatedCount; i += 3) {
    ASSERT_TRUE(all.agrees(curatedPatterns()[i])) << std::hex << curatedPatterns()[i];
  }
}

TEST(LongComparison, OfAllPairsOfHalvesIsThatOfTheirNumbers) {
  everyPatternAgainst all;
  forEveryPattern([&](std::uint16_t p) { ASSERT_TRUE(all.agrees(p)) << std::hex << p; });
}

}  // namespace
}  // namespace zthalf::testing
