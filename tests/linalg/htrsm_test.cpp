#include <gtest/gtest.h>

#include "tests/linalg/pattern_matrices.h"

namespace zthalf {
namespace {

using namespace zthalf::testing;

constexpr std::uint16_t one = 0x3C00, minusOne = 0xBC00, two = 0x4000, quietNaN = 0x7E00, infinity = 0x7C00;

struct call {
  char side, uplo, transa, diag;
  unsigned long m, n;
  std::uint16_t alpha;
  unsigned long lda, ldb;

  unsigned long order() const { return side == 'L' || side == 'l' ? m : n; }
  std::string name() const {
    return std::string("htrsm ") + side + uplo + transa + diag + " " + std::to_string(m) + " " + std::to_string(n) +
           " alpha " + hex(alpha);
  }
};

void run(call x, half_t* a, half_t* b) {
  char side[] = {x.side, 'x', 0}, uplo[] = {x.uplo, 'x', 0}, transa[] = {x.transa, 'x', 0}, diag[] = {x.diag, 'x', 0};
  half_vector::htrsm(side, uplo, transa, diag, x.m, x.n, {x.alpha}, a, x.lda, b, x.ldb);
}

void expectAsTold(call x, patternArray a, patternArray b) {
  patternArray expected = b;
  run(x, halvesOf(a), halvesOf(b));
  reference::htrsm(x.side, x.uplo, x.transa, x.diag, x.m, x.n, x.alpha, {a, 0}, x.lda, {expected, 0}, x.ldb);
  expectSamePatterns(b, expected, x.name());
}

void expectAsTold(call x, bitSource& bits, unsigned long every = 0, unsigned long zeros = 0) {
  const patternArray a = drawnPatterns(x.lda * x.order() + x.order(), bits, every, zeros);
  expectAsTold(x, a, drawnPatterns(x.ldb * x.n + x.m, bits, every, zeros));
}

template <class Visit>
void forEachBranch(Visit visit) {
  for (const char side : {'L', 'R'})
    for (const char uplo : {'U', 'L'})
      for (const char transa : {'N', 'T'})
        for (const char diag : {'N', 'U'}) visit(side, uplo, transa, diag);
}

TEST(Htrsm, IsAsToldInEveryBranchForSmallSizes) {
  bitSource bits(1);
  forEachBranch([&](char side, char uplo, char transa, char diag) {
    for (const std::uint16_t alpha : {one, minusOne, two, std::uint16_t{0x2E66}, infinity, quietNaN}) {
      for (const auto& [m, n] : {std::pair{1ul, 1ul}, {2ul, 3ul}, {7ul, 5ul}, {12ul, 34ul}, {33ul, 4ul}}) {
        expectAsTold({side, uplo, transa, diag, m, n, alpha, std::max(m, n), m}, bits);
        expectAsTold({side, uplo, transa, diag, m, n, alpha, std::max(m, n) + 2, m + 1}, bits, 23);
        expectAsTold({side, uplo, transa, diag, m, n, alpha, std::max(m, n), m}, bits, 0, 3);
        expectAsTold({side, uplo, transa, diag, m, n, alpha, std::max(m, n), m}, bits, 19, 3);
      }
    }
  });
}

TEST(Htrsm, IsAsToldAroundTheWidthOfAStrip) {
  bitSource bits(2);
  forEachBranch([&](char side, char uplo, char transa, char diag) {
    for (const unsigned long size : {31, 32, 33, 63, 64, 65, 130}) {
      const unsigned long m = side == 'L' ? 9 : size, n = side == 'L' ? size : 9;
      expectAsTold({side, uplo, transa, diag, m, n, two, 9, m}, bits, 41, 9);
      expectAsTold({side, uplo, transa, diag, n, m, one, std::max(m, n), n}, bits, 0, 9);
    }
  });
}

TEST(Htrsm, TakesAnyLetterForTheOtherChoice) {
  bitSource bits(3);
  const patternArray a = drawnPatterns(36, bits), b = drawnPatterns(36, bits);
  const auto solved = [&](char side, char uplo, char transa, char diag) {
    patternArray left = a, right = b;
    run({side, uplo, transa, diag, 6, 6, one, 6, 6}, halvesOf(left), halvesOf(right));
    return right;
  };
  EXPECT_EQ(solved('l', 'u', 'n', 'n'), solved('L', 'U', 'N', 'N'));
  EXPECT_EQ(solved('r', 'l', 't', 'u'), solved('R', 'L', 'T', 'U'));
  EXPECT_EQ(solved('?', '*', 'c', ' '), solved('R', 'L', 'T', 'U'));
  EXPECT_NE(solved('L', 'U', 'N', 'N'), solved('R', 'U', 'N', 'N'));
}

TEST(Htrsm, GivesZeroForAlphaZeroWhateverIsInTheMatrices) {
  forEachBranch([](char side, char uplo, char transa, char diag) {
    for (const std::uint16_t alpha : {std::uint16_t{0x0000}, std::uint16_t{0x8000}}) {
      patternArray a(4, quietNaN), b(6, 0xFE00);
      run({side, uplo, transa, diag, 2, 2, alpha, 2, 3}, halvesOf(a), halvesOf(b));
      EXPECT_EQ(b, patternArray({0, 0, 0xFE00, 0, 0, 0xFE00}));
    }
  });
}

TEST(Htrsm, DoesNothingWithoutRowsOrColumns) {
  forEachBranch([](char side, char uplo, char transa, char diag) {
    run({side, uplo, transa, diag, 0, 4, two, 4, 1}, nullptr, nullptr);
    run({side, uplo, transa, diag, 4, 0, 0, 4, 4}, nullptr, nullptr);
  });
}

TEST(Htrsm, DoesNotReadAUnitDiagonal) {
  forEachBranch([](char side, char uplo, char transa, char) {
    bitSource bits(4);
    patternArray a = drawnPatterns(25, bits), spoilt = a, b = drawnPatterns(25, bits), other = b;
    for (int i = 0; i < 5; ++i) spoilt[6 * i] = quietNaN;
    run({side, uplo, transa, 'U', 5, 5, two, 5, 5}, halvesOf(a), halvesOf(b));
    run({side, uplo, transa, 'U', 5, 5, two, 5, 5}, halvesOf(spoilt), halvesOf(other));
    EXPECT_EQ(other, b);
  });
}

TEST(Htrsm, DoesNotDivideAZeroOnTheLeft) {
  patternArray a{0, one, 0, one}, b{0x8000, one};  // a zero on the diagonal
  run({'L', 'L', 'N', 'N', 2, 1, one, 2, 2}, halvesOf(a), halvesOf(b));
  EXPECT_EQ(b, patternArray({0x8000, one}));
  b = {quietNaN, one};
  run({'L', 'L', 'N', 'N', 2, 1, one, 2, 2}, halvesOf(a), halvesOf(b));
  EXPECT_EQ(b, patternArray({quietNaN, quietNaN}));
  b = {0x8000, one};
  run({'L', 'L', 'T', 'N', 2, 1, one, 2, 2}, halvesOf(a), halvesOf(b));
  EXPECT_EQ(b[0], 0xFC00);  // (-0 - 1 * 1) / 0
}

// 2^-24 divided by 65504 seven times and more is no float any more. That quotient is a zero, and still takes part: the
// test is on what was there before.
TEST(Htrsm, TestsForZeroBeforeItDivides) {
  constexpr unsigned long m = 12;
  patternArray a(m * m, 0), b(m, 0);
  for (unsigned long i = 0; i < m; ++i) a[i + i * m] = 0x7BFF;
  for (unsigned long i = 0; i + 1 < m; ++i) a[i + 1 + i * m] = i == m - 2 ? infinity : 0x0001;
  b[0] = 0x0001;
  expectAsTold({'L', 'L', 'N', 'N', m, 1, one, m, m}, a, b);
  a[m - 1 + 5 * m] = infinity;
  expectAsTold({'L', 'L', 'N', 'N', m, 1, one, m, m}, a, b);
}

TEST(Htrsm, OverflowsOnlyAtTheEnd) {
  patternArray a{0x0400, 0x0400, 0, one}, b{two, two};  // 2 / 2^-14 = 2^15; times 2^-14
  run({'L', 'L', 'N', 'N', 2, 1, 0x7800, 2, 2}, halvesOf(a), halvesOf(b));
  EXPECT_EQ(b, patternArray({infinity, 0}));
}

TEST(Htrsm, ReadsOverlappingMatricesBeforeItWrites) {
  bitSource bits(5);
  forEachBranch([&](char side, char uplo, char transa, char diag) {
    for (const unsigned long ld : {1, 2, 7}) {
      patternArray all = drawnPatterns(120, bits), expected = all;
      run({side, uplo, transa, diag, 5, 6, two, ld, ld}, halvesOf(all), halvesOf(all, 2));
      reference::htrsm(side, uplo, transa, diag, 5, 6, two, {expected, 0}, ld, {expected, 2}, ld);
      expectSamePatterns(all, expected, "overlapping");
    }
  });
}

}  // namespace
}  // namespace zthalf
