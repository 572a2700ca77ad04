// Every row of plus, minus, times, rdivide, ldivide and hypot against its rule, for pairs of special elements of all
// kinds and drawn ones. Counts, overlaps and shapes are in binary_entries_test.cpp.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "scalar/kernels/hypot_double.h"
#include "tests/elementwise/arithmetic_rules.h"
#include "tests/support/binary_rows.h"
#include "tests/support/complex_operands.h"
#include "tests/support/expect_bits.h"

namespace zthalf {
namespace {

using namespace zthalf::testing;

bool startsWith(std::string const& name, char const* prefix) { return name.rfind(prefix, 0) == 0; }

template <class Left, class Right>
void collectPairs(std::vector<Left>& a, std::vector<Right>& b) {
  forPairsOf<Left, Right>(50'000, [&](Left x, Right y) {
    a.push_back(x);
    b.push_back(y);
  });
}

template <class Row>
auto resultsOf(Row row, std::vector<typename Row::left>& a, std::vector<typename Row::right>& b) {
  std::vector<typename Row::output> c(a.size());
  Row::call(row.facade, a.data(), b.data(), c.data(), met({a.size()}, {b.size()}));
  return c;
}

// visit(row) for the rows of one operation. Rows of other output types than the rules know are not of these families.
template <class Visit>
void forEachRowOf(std::string const& op, Visit visit) {
  unsigned rows = 0;
  forEachBinaryRow([&](auto row) {
    using type = decltype(row);
    using rule = arithmeticRule<typename type::left, typename type::right>;
    if constexpr (std::is_same_v<typename type::output, typename rule::output>) {
      if (!startsWith(row.name, op.c_str())) return;
      ++rows;
      visit(row);
    }
  });
  EXPECT_EQ(rows, 20u) << op;
}

class ArithmeticRows : public ::testing::TestWithParam<char const*> {};

TEST_P(ArithmeticRows, FollowTheirRules) {
  forEachRowOf(GetParam(), [](auto row) {
    using Left = typename decltype(row)::left;
    using Right = typename decltype(row)::right;
    std::vector<Left> a;
    std::vector<Right> b;
    collectPairs(a, b);
    const auto c = resultsOf(row, a, b);
    bitComparison compare(row.name);
    for (std::size_t i = 0; i < c.size(); ++i) {
      compare.check(c[i], arithmeticRule<Left, Right>::expectedOf(row.name, a[i], b[i]), i);
    }
  });
}

INSTANTIATE_TEST_SUITE_P(Each, ArithmeticRows, ::testing::Values("plus", "minus", "times", "rdivide", "hypot"),
                         [](auto const& info) { return std::string(info.param); });

// One element on either side meets each of the other as it would in an array.
TEST_P(ArithmeticRows, TakeOneElementAsAnArrayOfIt) {
  forEachRowOf(GetParam(), [](auto row) {
    using type = decltype(row);
    using Left = typename type::left;
    using Right = typename type::right;
    std::vector<Left> a = specialElements<Left>::all();
    std::vector<Right> b = specialElements<Right>::all();
    for (unsigned i = 0; i < 12; ++i) {
      Left& x = a[i * 7 % a.size()];
      Right& y = b[i * 7 % b.size()];
      std::vector<Left> sameLeft(b.size(), x);
      std::vector<Right> sameRight(a.size(), y);
      const auto left = resultsOf(row, sameLeft, b), right = resultsOf(row, a, sameRight);
      std::vector<typename type::output> c(b.size());
      type::call(row.facade, &x, b.data(), c.data(), met({1}, {b.size()}));
      ASSERT_EQ(std::memcmp(c.data(), left.data(), c.size() * sizeof c[0]), 0) << row.name;
      c.resize(a.size());
      type::call(row.facade, a.data(), &y, c.data(), met({a.size()}, {1}));
      ASSERT_EQ(std::memcmp(c.data(), right.data(), c.size() * sizeof c[0]), 0) << row.name;
    }
  });
}

// ldivide(a, b) is rdivide(b, a), in the scalar and expanded forms too.
TEST(Ldivide, IsRdivideTheOtherWayRound) {
  unsigned compared = 0;
  forEachBinaryRow([&](auto left) {
    if (!startsWith(left.name, "ldivide")) return;
    forEachBinaryRow([&](auto right) {
      using L = std::remove_reference_t<decltype(left)>;
      using R = std::remove_reference_t<decltype(right)>;
      if constexpr (std::is_same_v<typename L::left, typename R::right> &&
                    std::is_same_v<typename L::right, typename R::left> &&
                    std::is_same_v<typename L::output, typename R::output>) {
        if (!startsWith(right.name, "rdivide")) return;
        ++compared;
        auto a = specialElements<typename L::left>::all();
        auto b = specialElements<typename L::right>::all();
        for (const bool table : {false, true}) {
          const sizeList dimsA{1, a.size()}, dimsB = table ? sizeList{b.size(), 1} : sizeList{1, 1};
          std::vector<typename L::output> c(countOf(met(dimsA, dimsB).c)), d(c.size());
          L::call(left.facade, a.data(), b.data(), c.data(), met(dimsA, dimsB));
          R::call(right.facade, b.data(), a.data(), d.data(), met(dimsB, dimsA));
          ASSERT_EQ(std::memcmp(c.data(), d.data(), c.size() * sizeof c[0]), 0) << left.name;
        }
      }
    });
  });
  EXPECT_EQ(compared, 20u);
}

// Named pairs that tell the ways of a cell apart.

template <class Left, class Right>
auto once(void (*op)(Left*, Right*, typename arithmeticRule<Left, Right>::output*, unsigned long, unsigned long,
                     unsigned long const*, unsigned long, unsigned long, unsigned long const*, unsigned long,
                     unsigned long, unsigned long const*),
          Left x, Right y) {
  typename arithmeticRule<Left, Right>::output result{};
  const unsigned long one = 1;
  op(&x, &y, &result, 1, 1, &one, 1, 1, &one, 1, 1, &one);
  return result;
}

using complexHalf = std::complex<half_t>;
half_t h(std::uint16_t p) { return {p}; }
complexHalf ch(std::uint16_t re, std::uint16_t im) { return {h(re), h(im)}; }
constexpr double infinite = std::numeric_limits<double>::infinity();

TEST(Arithmetic, ADoubleIsNotRoundedBeforeTheOperation) {
  EXPECT_EQ((once<half_t, double>(half_vector::plus, h(0x3C00), 2049.0).bits), 0x6801);  // 2050
}

TEST(Arithmetic, ComplexProductsOfHalvesAndFloatsAreNudgedInDouble) {
  using cf = std::complex<float>;
  const complexHalf near(
      once<complexHalf, cf>(half_vector::times, ch(0x36D9, 0x3461), cf(0x1.d7a286p+5f, -0x1.2e0818p+5f)));
  EXPECT_EQ(near.imag().bits, 0xA5ED);  // float gives A5EE
  const complexHalf tie(once<complexHalf, cf>(half_vector::times, ch(0x3C00, 0x3C00), cf(1 + 0x1p-11f, -0x1p-60f)));
  EXPECT_EQ(tie.real().bits, 0x3C01);  // a fused sum loses the 2^-60 and gives 3C00
}

TEST(Arithmetic, ComplexProductsOfHalvesAndDoublesAreFused) {
  using cd = std::complex<double>;
  const complexHalf a(
      once<complexHalf, cd>(half_vector::times, ch(0xC14F, 0xCF1C), cd(0x1.f200000001bafp-1, 0x1.71000000008f2p-4)));
  EXPECT_EQ(a.real().bits, 0xA515);  // float gives A514
  const complexHalf b(
      once<complexHalf, cd>(half_vector::times, ch(0xC86D, 0x4A3F), cd(-0x1.7680000000001p+1, 0x1.904p+2)));
  EXPECT_EQ(b.imag().bits, 0xD5BE);  // nudged in double it is D5BF
}

TEST(Arithmetic, SumAndDifferenceTreatAnAbsentImaginaryPartDifferently) {
  EXPECT_EQ(hex((once<complexHalf, half_t>(half_vector::plus, ch(0x3C00, 0x8000), h(0x3C00)))),
            hex(ch(0x4000, 0x0000)));
  EXPECT_EQ(hex((once<complexHalf, half_t>(half_vector::minus, ch(0x3C00, 0x8000), h(0x3C00)))),
            hex(ch(0x0000, 0x8000)));
  EXPECT_EQ(hex((once<complexHalf, double>(half_vector::minus, ch(0x3C00, 0xFC01), 1.0))), hex(ch(0x0000, 0xFC01)));
  EXPECT_EQ(hex((once<half_t, complexHalf>(half_vector::minus, h(0x3C00), ch(0x3C00, 0x0000)))),
            hex(ch(0x0000, 0x0000)));
}

TEST(Arithmetic, AZeroPartTakesNoPartBesideAnInfinity) {
  EXPECT_EQ(hex((once<complexHalf, double>(half_vector::times, ch(0x3C00, 0), infinite))), hex(ch(0x7C00, 0)));
  EXPECT_EQ(hex((once<complexHalf, double>(half_vector::times, ch(0, 0x3C00), infinite))), hex(ch(0, 0x7C00)));
  EXPECT_EQ(hex((once<complexHalf, complexHalf>(half_vector::times, ch(0x7C00, 0), ch(0, 0x3C00)))),
            hex(ch(0, 0x7C00)));
  EXPECT_EQ(hex((once<complexHalf, float>(half_vector::rdivide, ch(0, 0x3C00), 0.0f))), hex(ch(0, 0x7C00)));
  EXPECT_EQ(hex((once<complexHalf, float>(half_vector::rdivide, ch(0x3C00, 0), 0.0f))), hex(ch(0x7C00, 0)));
  EXPECT_EQ(hex((once<complexHalf, float>(half_vector::rdivide, ch(0, 0), 0.0f))), hex(ch(0x7E00, 0)));
}

TEST(Arithmetic, HypotOfAComplexOperandStoresAnImaginaryPartOfZero) {
  EXPECT_EQ(hex(once<complexHalf, half_t>(half_vector::hypot, ch(0x4200, 0x4400), h(0x4A00))),
            hex(ch(0x4A80, 0)));  // 13
}

}  // namespace
}  // namespace zthalf
