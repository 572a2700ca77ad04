#include <gtest/gtest.h>

#include <complex>
#include <cstring>
#include <limits>
#include <vector>

#include "tests/linalg/product_rows.h"
#include "tests/support/exact.h"

namespace zthalf {
namespace {

using namespace zthalf::testing;

constexpr std::uint16_t plusInfinity = 0x7C00, minusInfinity = 0xFC00, quietNaN = 0x7E00, negativeNaN = 0xFE00;
constexpr std::uint16_t one = 0x3C00, minusOne = 0xBC00, two = 0x4000, zero = 0x0000, minusZero = 0x8000;

std::vector<half_t> halves(std::initializer_list<std::uint16_t> patterns) {
  std::vector<half_t> some;
  for (const std::uint16_t p : patterns) some.push_back({p});
  return some;
}

std::vector<std::uint16_t> product(std::vector<half_t> a, std::vector<half_t> b, unsigned long m, unsigned long k,
                                   unsigned long n) {
  std::vector<half_t> c(m * n);
  half_vector::mtimes(a.data(), b.data(), c.data(), m, k, n);
  std::vector<std::uint16_t> patterns;
  for (const half_t x : c) patterns.push_back(x.bits);
  return patterns;
}

using patterns = std::vector<std::uint16_t>;

TEST(MatrixProduct, IsTheStatedSumsForAllPairsOfTypesAndSmallSizes) {
  bitSource bits(1);
  forEachProductRow([&](auto row) {
    for (const unsigned long m : {1, 2, 3, 5, 8, 17}) {
      for (const unsigned long k : {2, 3, 7, 8, 9, 16, 20}) {
        for (const unsigned long n : {1, 2, 5, 7, 13}) {
          expectProduct(row, m, k, n, values::moderate, bits);
          expectProduct(row, m, k, n, values::spoilt, bits);
        }
      }
    }
  });
}

TEST(MatrixProduct, IsTheStatedSumsForAllPairsOfTypesAndAnyValues) {
  bitSource bits(2);
  forEachProductRow([&](auto row) {
    for (const unsigned long k : {2, 3, 8, 11}) {
      for (int round = 0; round < 8; ++round) expectProduct(row, 9, k, 10, values::anything, bits);
    }
  });
}

TEST(MatrixProduct, IsTheStatedSumsAroundTheStretchesOfTheInnerDimension) {
  bitSource bits(3);
  forEachProductRow([&](auto row) {
    for (const unsigned long k : {63, 64, 65, 255, 256, 257, 263, 264, 265, 511, 512, 513, 1030}) {
      expectProduct(row, 5, k, 3, values::moderate, bits);
      expectProduct(row, 3, k, 4, values::spoilt, bits);
    }
  });
}

TEST(MatrixProduct, IsTheStatedSumsAroundTheSeamsOfRowsAndColumns) {
  bitSource bits(4);
  forEachProductRow([&](auto row) {
    for (const unsigned long size : {15, 16, 31, 33, 63, 64, 65, 127, 129, 255, 256, 257, 513, 1025}) {
      expectProduct(row, size, 2, 3, values::spoilt, bits);
      expectProduct(row, 3, 9, size, values::spoilt, bits);
    }
    expectProduct(row, 257, 10, 257, values::spoilt, bits);
  });
}

TEST(MatrixProduct, OfHalvesIsTheStatedSumsForEverySizeUpToTwenty) {
  bitSource bits(5);
  using row = productRow<half_t, half_t, half_t>;
  for (unsigned long m = 1; m <= 20; ++m) {
    for (unsigned long k = 2; k <= 20; ++k) {
      for (unsigned long n = 1; n <= 20; ++n) {
        expectProduct(row{"halves", &half_vector::mtimes}, m, k, n, values::spoilt, bits);
      }
    }
  }
}

TEST(MatrixProduct, OfHalvesIsTheStatedSumsWhereEveryDimensionHasASeam) {
  bitSource bits(6);
  using row = productRow<half_t, half_t, half_t>;
  for (const unsigned long m : {255, 257}) {
    for (const unsigned long k : {256, 513}) {
      for (const unsigned long n : {65, 258}) {
        expectProduct(row{"halves", &half_vector::mtimes}, m, k, n, values::moderate, bits);
      }
    }
  }
}

TEST(MatrixProduct, WithAVectorIsTheStatedSumsAroundEverySeam) {
  bitSource bits(12);
  forEachProductRow([&](auto row) {
    for (const unsigned long k : {2, 7, 9, 64, 255, 257, 300}) {
      for (const unsigned long size : {1, 3, 4, 5, 31, 32, 40, 257}) {
        expectProduct(row, 1, k, size, values::spoilt, bits);
        expectProduct(row, size, k, 1, values::spoilt, bits);
        expectProduct(row, 2, k, size, values::moderate, bits);
      }
    }
    expectProduct(row, 1030, 9, 1, values::spoilt, bits);
    expectProduct(row, 1, 9, 1030, values::spoilt, bits);
  });
}

TEST(MatrixProduct, MakesItsAdditionsInTheStatedOrderOnEveryRoute) {
  bitSource bits(13);
  forEachProductRow([&](auto row) {
    for (const unsigned long k : {3, 7, 8, 9, 12, 16, 17, 24, 40}) {
      expectOrder(row, 1, k, 70, bits);
      expectOrder(row, 70, k, 1, bits);
      expectOrder(row, 5, k, 8, bits);
      expectOrder(row, 34, k, 19, bits);
    }
    expectOrder(row, 70, 261, 3, bits);
  });
}

TEST(MatrixProduct, HasANaNsSignFromTheLastLaneThatHasOneOfTheLastStretch) {
  bitSource bits(7);
  using row = productRow<half_t, half_t, half_t>;
  using complexRow = productRow<std::complex<half_t>, std::complex<half_t>, std::complex<half_t>>;
  for (const unsigned long k : {2, 9, 24, 40, 256, 300, 600}) {
    for (int round = 0; round < 10; ++round) {
      expectProduct(row{"halves", &half_vector::mtimes}, 12, k, 11, values::spoilt, bits);
      expectProduct(complexRow{"complex halves", &half_vector::mtimes}, 6, k, 5, values::spoilt, bits);
    }
  }
}

// Each notable value at each place of a small product.
TEST(MatrixProduct, TakesEveryNotableValueAtEveryPlace) {
  const std::uint16_t notable[] = {zero,         minusZero,     0x0001,   0x8001,      0x03FF, 0x7BFF, 0xFBFF,
                                   plusInfinity, minusInfinity, quietNaN, negativeNaN, 0x7C01, 0xFC01};
  using row = productRow<half_t, half_t, half_t>;
  constexpr unsigned long m = 3, k = 10, n = 2;
  bitSource bits(8);
  const auto a = drawnMatrix<half_t>(m * k, values::moderate, bits);
  const auto b = drawnMatrix<half_t>(k * n, values::moderate, bits);
  bitComparison compare("mtimes");
  const auto check = [&](std::vector<half_t> left, std::vector<half_t> right) {
    std::vector<half_t> c(m * n);
    half_vector::mtimes(left.data(), right.data(), c.data(), m, k, n);
    const auto expected = referenceProduct<row>(left, right, m, k, n);
    for (unsigned long i = 0; i < c.size(); ++i) compare.check(c[i], expected[i]);
  };
  for (const std::uint16_t x : notable) {
    for (const std::uint16_t y : notable) {
      for (unsigned long at = 0; at < m * k; ++at) {
        auto left = a;
        auto right = b;
        left[at] = {x};
        right[at % (k * n)] = {y};
        check(left, right);
      }
    }
  }
}

TEST(MatrixProduct, WithoutAnInnerDimensionIsZeroAndReadsNothing) {
  forEachProductRow([](auto row) {
    using element = typename decltype(row)::output;
    std::vector<element> c(6);
    std::memset(static_cast<void*>(c.data()), 0xAB, c.size() * sizeof(element));
    row.facade(nullptr, nullptr, c.data(), 2, 0, 3);
    bitComparison compare(row.name);
    for (const element x : c) compare.check(x, element{});
  });
}

TEST(MatrixProduct, WithoutRowsOrColumnsWritesNothing) {
  forEachProductRow([](auto row) {
    for (const unsigned long k : {0, 1, 2, 300}) {
      row.facade(nullptr, nullptr, nullptr, 0, k, 7);
      row.facade(nullptr, nullptr, nullptr, 7, k, 0);
      row.facade(nullptr, nullptr, nullptr, 0, k, 0);
    }
  });
}

TEST(MatrixProduct, WithAnInnerDimensionOfOneIsTheElementwiseProduct) {
  bitSource bits(9);
  forEachProductRow([&](auto row) {
    using Row = decltype(row);
    for (const auto& [m, n] : {std::pair{1ul, 1ul}, {5ul, 1ul}, {1ul, 6ul}, {7ul, 9ul}, {40ul, 30ul}}) {
      auto a = drawnMatrix<typename Row::left>(m, values::anything, bits);
      auto b = drawnMatrix<typename Row::right>(n, values::anything, bits);
      std::vector<typename Row::output> c(m * n), expected(m * n);
      row.facade(a.data(), b.data(), c.data(), m, 1, n);
      const unsigned long column[] = {m, 1}, across[] = {1, n}, both[] = {m, n};
      half_vector::times(a.data(), b.data(), expected.data(), m, 2, column, n, 2, across, m * n, 2, both);
      bitComparison compare(row.name);
      for (unsigned long i = 0; i < m * n; ++i) compare.check(c[i], expected[i]);
    }
  });
}

TEST(MatrixProduct, KeepsANegativeZeroOnlyInAnOuterProduct) {
  EXPECT_EQ(product(halves({minusZero}), halves({one}), 1, 1, 1), patterns({minusZero}));
  EXPECT_EQ(product(halves({minusZero, minusZero}), halves({one, one}), 1, 2, 1), patterns({zero}));
  EXPECT_EQ(product(halves({zero, zero}), halves({minusOne, minusOne}), 1, 2, 1), patterns({zero}));
}

TEST(MatrixProduct, OfAnInfinityAndZeroIsThePositiveNaN) {
  EXPECT_EQ(product(halves({plusInfinity, one}), halves({zero, one}), 1, 2, 1), patterns({quietNaN}));
  EXPECT_EQ(product(halves({minusInfinity, one}), halves({zero, one}), 1, 2, 1), patterns({quietNaN}));
  EXPECT_EQ(product(halves({plusInfinity, one}), halves({one, minusInfinity}), 1, 2, 1), patterns({quietNaN}));
}

TEST(MatrixProduct, JoinsLanesInAscendingOrder) {
  // A later lane's NaN is the first operand of its addition.
  EXPECT_EQ(product(halves({quietNaN, negativeNaN}), halves({one, one}), 1, 2, 1), patterns({negativeNaN}));
  EXPECT_EQ(product(halves({negativeNaN, quietNaN}), halves({one, one}), 1, 2, 1), patterns({quietNaN}));
  // 2^24 + 1 is 2^24 in float: where 1 comes first, before or after -2^24, decides.
  const auto large = halves({0x6C00, one, 0xEC00});  // 4096, 1, -4096
  EXPECT_EQ(product(large, halves({0x6C00, one, 0x6C00}), 1, 3, 1), patterns({zero}));
  const auto cancelled = halves({0x6C00, 0xEC00, one});
  EXPECT_EQ(product(cancelled, halves({0x6C00, 0x6C00, one}), 1, 3, 1), patterns({one}));
}

TEST(MatrixProduct, AddsEighthNeighboursBeforeOthers) {
  // 2^24, seven ones, -2^24: the ninth is in the lane of the first and cancels it before a one is added.
  std::vector<half_t> a(9, {one}), b(9, {one});
  a[0] = b[0] = a[8] = {0x6C00};
  b[8] = {0xEC00};
  EXPECT_EQ(product(a, b, 1, 9, 1), patterns({0x4700}));  // 7
}

TEST(MatrixProduct, KeepsTheOutputInFloatBetweenTwoStretches) {
  std::vector<half_t> a(257, {zero}), b(257, {one});
  a[0] = {0x6801};                                          // 2050
  a[256] = {0x3C00};                                        // 1: 2051 is not a half
  a[1] = {0x3800};                                          // 0.5
  EXPECT_EQ(product(a, b, 1, 257, 1), patterns({0x6802}));  // 2051.5 is nearer to 2052; from 2050 it would be a tie
}

TEST(MatrixProduct, OverflowsOnlyAtTheEnd) {
  EXPECT_EQ(product(halves({0x7BFF, 0xFBFF, one}), halves({0x7BFF, 0x7BFF, two}), 1, 3, 1), patterns({two}));
  EXPECT_EQ(product(halves({0x7BFF, 0x7BFF}), halves({one, one}), 1, 2, 1), patterns({plusInfinity}));
  EXPECT_EQ(product(halves({0xFBFF, 0xFBFF}), halves({one, one}), 1, 2, 1), patterns({minusInfinity}));
}

TEST(MatrixProduct, OfDoublesIsRoundedToHalfDirectly) {
  // 1 + 2^-11 + 2^-40 is above the middle of two halves; in float it is the middle.
  double a[] = {1.0, 0x1p-40};
  half_t b[] = {{one}, {one}}, c[1];
  a[0] = 1.0 + 0x1p-11;
  half_vector::mtimes(a, b, c, 1, 2, 1);
  EXPECT_EQ(c[0].bits, 0x3C01);
}

// Multiples of 2^-24 whose sums stay below 2^24 of them: no addition rounds, and the result is the exact one's half.
TEST(MatrixProduct, IsCorrectlyRoundedWhereNoSumRounds) {
  bitSource bits(10);
  constexpr unsigned long m = 6, k = 300, n = 5;
  std::vector<half_t> a(m * k), b(k * n), c(m * n);
  std::vector<int> ia(m * k), ib(k * n);
  const auto draw = [&](std::vector<half_t>& x, std::vector<int>& number) {
    for (unsigned long i = 0; i < x.size(); ++i) {
      number[i] = static_cast<int>(bits() % 255) - 127;
      x[i] = {exact::patternOf(number[i] * exact::unitsInOne)};
    }
  };
  draw(a, ia);
  draw(b, ib);
  half_vector::mtimes(a.data(), b.data(), c.data(), m, k, n);
  bitComparison compare("exact product");
  for (unsigned long i = 0; i < m; ++i) {
    for (unsigned long j = 0; j < n; ++j) {
      std::int64_t sum = 0;
      for (unsigned long l = 0; l < k; ++l) sum += std::int64_t{ia[i + l * m]} * ib[l + j * k];
      const std::uint16_t expected = exact::nearestHalf(static_cast<exact::wideInteger>(std::llabs(sum)), 0);
      compare.check(c[i + j * m], half_t{static_cast<std::uint16_t>(expected | (sum < 0 ? 0x8000 : 0))});
    }
  }
}

TEST(ComplexMatrixProduct, RestoresInfinities) {
  using complexHalf = std::complex<half_t>;
  // (Inf, NaN) times (1, 1): both parts are NaNs, and made anew from (1, 0) times (1, 1).
  complexHalf a[] = {{half_t{plusInfinity}, half_t{quietNaN}}, {half_t{zero}, half_t{zero}}};
  complexHalf b[] = {{half_t{one}, half_t{one}}, {half_t{one}, half_t{one}}};
  complexHalf c[1];
  half_vector::mtimes(a, b, c, 1, 2, 1);
  EXPECT_EQ(bitsIn(c[0]), bitsIn(complexHalf(half_t{plusInfinity}, half_t{plusInfinity})));
}

TEST(ComplexMatrixProduct, GivesARealOperandAnImaginaryPartOfPlusZero) {
  using complexHalf = std::complex<half_t>;
  half_t a[] = {{two}, {zero}};
  complexHalf b[] = {{half_t{plusInfinity}, half_t{zero}}, {half_t{one}, half_t{one}}};
  complexHalf c[1];
  half_vector::mtimes(a, b, c, 1, 2, 1);  // 2 * 0 + 0 * Inf
  EXPECT_EQ(bitsIn(c[0]), bitsIn(complexHalf(half_t{plusInfinity}, half_t{quietNaN})));
}

TEST(MatrixProduct, GivesEachColumnWhateverOthersAreBesideIt) {
  bitSource bits(11);
  constexpr unsigned long m = 37, k = 300, n = 41;
  auto a = drawnMatrix<half_t>(m * k, values::spoilt, bits);
  auto b = drawnMatrix<half_t>(k * n, values::spoilt, bits);
  std::vector<half_t> whole(m * n), panels(m * n);
  half_vector::mtimes(a.data(), b.data(), whole.data(), m, k, n);
  bitComparison compare("panels");
  for (const unsigned long width : {1, 2, 3, 6, 7, 16, 40}) {
    for (unsigned long j = 0; j < n; j += width) {
      half_vector::mtimes(a.data(), b.data() + j * k, panels.data() + j * m, m, k, std::min(width, n - j));
    }
    for (unsigned long i = 0; i < m * n; ++i) compare.check(panels[i], whole[i]);
  }
}

}  // namespace
}  // namespace zthalf
