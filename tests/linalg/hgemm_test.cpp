#include <gtest/gtest.h>

#include "tests/linalg/pattern_matrices.h"

namespace zthalf {
namespace {

using namespace zthalf::testing;
using reference::place;

constexpr std::uint16_t one = 0x3C00, minusOne = 0xBC00, two = 0x4000, quietNaN = 0x7E00, negativeNaN = 0xFE00;
constexpr std::uint16_t scales[] = {0x0000, 0x8000, one, minusOne, two, 0x2E66, 0x7BFF, 0x7C00, quietNaN, 0xFC01};

struct call {
  char transa, transb;
  unsigned long m, n, k;
  std::uint16_t alpha, beta;
  unsigned long lda, ldb, ldc;
};

void run(call x, half_t* a, half_t* b, half_t* c) {
  char ta[] = {x.transa, 'x', 0}, tb[] = {x.transb, 'x', 0};
  half_vector::hgemm(ta, tb, x.m, x.n, x.k, {x.alpha}, a, x.lda, b, x.ldb, {x.beta}, c, x.ldc);
}

void expectAsTold(call x, bitSource& bits, unsigned long every = 0, unsigned long zeros = 0) {
  patternArray a = drawnPatterns(x.lda * x.k + x.m, bits, every, zeros);
  patternArray b = drawnPatterns(x.ldb * x.n + x.k, bits, every, zeros);
  patternArray c = drawnPatterns(x.ldc * x.n + x.m, bits, every, zeros), expected = c;
  run(x, halvesOf(a), halvesOf(b), halvesOf(c));
  reference::hgemm(x.transa, x.m, x.n, x.k, x.alpha, {a, 0}, x.lda, {b, 0}, x.ldb, x.beta, {expected, 0}, x.ldc);
  expectSamePatterns(c, expected,
                     std::string("hgemm ") + x.transa + " " + std::to_string(x.m) + " " + std::to_string(x.n) + " " +
                         std::to_string(x.k) + " alpha " + hex(x.alpha) + " beta " + hex(x.beta));
}

TEST(Hgemm, IsAsToldForAllOptionsScalesAndSmallSizes) {
  bitSource bits(1);
  for (const char transa : {'N', 'n', 'T', 't', 'C', '?'}) {
    for (const std::uint16_t alpha : scales) {
      for (const std::uint16_t beta : scales) {
        for (const auto& [m, n, k] : {std::tuple{1ul, 1ul, 1ul}, {4ul, 3ul, 0ul}, {5ul, 4ul, 7ul}, {9ul, 2ul, 40ul}}) {
          expectAsTold({transa, 'N', m, n, k, alpha, beta, m + 2, k + 1, m + 3}, bits);
          expectAsTold({transa, 'T', m, n, k, alpha, beta, m, k, m}, bits, 11, 5);
        }
      }
    }
  }
}

TEST(Hgemm, IsAsToldForEverySizeUpToTwenty) {
  bitSource bits(2);
  for (unsigned long m = 1; m <= 20; ++m) {
    for (unsigned long n = 1; n <= 20; n += 3) {
      for (unsigned long k = 1; k <= 20; ++k) {
        expectAsTold({'N', 'N', m, n, k, minusOne, one, m, k, m}, bits, 97);
        expectAsTold({'T', 'N', m, n, k, minusOne, one, m + 1, k, m}, bits, 97);
      }
    }
  }
}

TEST(Hgemm, IsAsToldAroundTheSeams) {
  bitSource bits(3);
  for (const unsigned long size : {31, 33, 63, 64, 65, 127, 255, 256, 257, 513}) {
    for (const char transa : {'N', 'T'}) {
      expectAsTold({transa, 'N', size, 3, 5, 0x3800, two, size + 1, 5, size}, bits, 61);
      expectAsTold({transa, 'N', 3, size, 9, 0x3800, one, 3, 9, 4}, bits, 61);
      expectAsTold({transa, 'N', 5, 4, size, 0x3800, 0, 5, size, 5}, bits, 301);
      expectAsTold({transa, 'N', 5, 4, size, 0x3800, one, 5, size, 5}, bits);
    }
  }
  expectAsTold({'N', 'N', 1030, 3, 258, minusOne, one, 1030, 258, 1030}, bits, 777);
}

TEST(Hgemm, HasTheSignOfTheFirstNaNOfAChain) {
  bitSource bits(4);
  for (const unsigned long k : {3, 32, 33, 100, 260, 600}) {
    for (const char transa : {'N', 'T'}) {
      for (const std::uint16_t beta : {std::uint16_t{0}, one, two}) {
        for (int round = 0; round < 4; ++round) expectAsTold({transa, 'N', 7, 6, k, minusOne, beta, 7, k, 7}, bits, 20);
      }
    }
  }
}

TEST(Hgemm, LeavesCAloneWhereAlphaIsZero) {
  patternArray a{one}, b{one}, c{negativeNaN};
  for (const std::uint16_t beta : scales) {
    run({'N', 'N', 1, 1, 1, 0x0000, beta, 1, 1, 1}, halvesOf(a), halvesOf(b), halvesOf(c));
    run({'T', 'N', 1, 1, 1, 0x8000, beta, 1, 1, 1}, halvesOf(a), halvesOf(b), halvesOf(c));
    EXPECT_EQ(c[0], negativeNaN);
  }
}

TEST(Hgemm, WithoutAnInnerDimensionScalesCUnlessBetaIsOne) {
  patternArray c{one, 0x7C01};
  run({'N', 'N', 2, 1, 0, one, two, 2, 1, 2}, nullptr, nullptr, halvesOf(c));
  EXPECT_EQ(c, patternArray({two, quietNaN}));
  c = {one, 0x7C01};
  run({'N', 'N', 2, 1, 0, one, one, 2, 1, 2}, nullptr, nullptr, halvesOf(c));
  EXPECT_EQ(c, patternArray({one, 0x7C01}));
}

TEST(Hgemm, DoesNothingWithoutRowsOrColumns) {
  run({'N', 'N', 0, 5, 3, one, two, 1, 3, 1}, nullptr, nullptr, nullptr);
  run({'T', 'N', 5, 0, 3, one, two, 5, 3, 5}, nullptr, nullptr, nullptr);
}

TEST(Hgemm, DoesNotLookAtTransb) {
  bitSource bits(5);
  patternArray a = drawnPatterns(30, bits), b = drawnPatterns(30, bits), plain(25), other(25);
  run({'N', 'N', 5, 5, 6, one, 0, 5, 6, 5}, halvesOf(a), halvesOf(b), halvesOf(plain));
  run({'N', 'T', 5, 5, 6, one, 0, 5, 6, 5}, halvesOf(a), halvesOf(b), halvesOf(other));
  EXPECT_EQ(other, plain);
}

TEST(Hgemm, RoundsOnceWhereNotTransposed) {
  // 2048 + 1 + 1 is a half, though 2048 + 1 is none.
  patternArray a{0x6800, one, one}, b{one, one, one}, c{0};
  run({'N', 'N', 1, 1, 3, one, 0, 1, 3, 1}, halvesOf(a), halvesOf(b), halvesOf(c));
  EXPECT_EQ(c[0], 0x6801);
  // alpha times b is a half before it is multiplied: 3 * 683 = 2049 becomes 2048.
  a = {one};
  b = {0x6156};
  run({'N', 'N', 1, 1, 1, 0x4200, 0, 1, 1, 1}, halvesOf(a), halvesOf(b), halvesOf(c));
  EXPECT_EQ(c[0], 0x6800);
}

TEST(Hgemm, StopsAt2048OnesWhereTransposed) {
  patternArray a(4000, one), b(4000, one), c{0};
  run({'T', 'N', 1, 1, 4000, one, 0, 1, 4000, 1}, halvesOf(a), halvesOf(b), halvesOf(c));
  EXPECT_EQ(c[0], 0x6800);
  run({'N', 'N', 1, 1, 4000, one, 0, 1, 4000, 1}, halvesOf(a), halvesOf(b), halvesOf(c));
  EXPECT_EQ(c[0], 0x6BD0);
}

TEST(Hgemm, TransposesADenseBlock) {
  // a is k by m: columns (1, 2, 3) and (4, 5, 6); the leading dimension is m.
  patternArray a{one, two, 0x4200, 0x4400, 0x4500, 0x4600}, b{one, 0, 0}, c(2);
  run({'T', 'N', 2, 1, 3, one, 0, 2, 3, 2}, halvesOf(a), halvesOf(b), halvesOf(c));
  EXPECT_EQ(c, patternArray({one, 0x4400}));
}

// Where columns overlap, and a, b and c lie in each other, everything is read before anything is written.
TEST(Hgemm, ReadsOverlappingMatricesBeforeItWrites) {
  bitSource bits(6);
  for (const char transa : {'N', 'T'}) {
    for (const unsigned long ld : {1, 2, 5, 9}) {
      patternArray all = drawnPatterns(200, bits), expected = all;
      const call x{transa, 'N', 6, 5, 4, one, one, ld, ld, ld};
      run(x, halvesOf(all), halvesOf(all, 3), halvesOf(all, 2));
      reference::hgemm(transa, 6, 5, 4, one, {expected, 0}, ld, {expected, 3}, ld, one, {expected, 2}, ld);
      expectSamePatterns(all, expected, "overlapping");
    }
  }
}

}  // namespace
}  // namespace zthalf
