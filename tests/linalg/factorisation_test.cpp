// hgetrf2 and hgetrf.
#include <gtest/gtest.h>

#include "tests/linalg/pattern_matrices.h"
#include "tests/support/table_entries.h"

namespace zthalf {
namespace {

using namespace zthalf::testing;

constexpr std::uint16_t one = 0x3C00, two = 0x4000, quietNaN = 0x7E00;
constexpr unsigned long untouched = 777;

struct factors {
  patternArray a;
  std::vector<unsigned long> ipiv;
  int info = 999;
};

using routine = void (*)(unsigned long, unsigned long, half_t*, unsigned long, unsigned long*, int&);

factors factorised(routine factorise, patternArray a, unsigned long m, unsigned long n, unsigned long lda) {
  factors f{std::move(a), std::vector<unsigned long>(std::min(m, n) + 1, untouched)};
  factorise(m, n, halvesOf(f.a), lda, f.ipiv.data(), f.info);
  return f;
}

void expectAsTold(patternArray const& a, unsigned long m, unsigned long n, unsigned long lda) {
  const auto check = [&](routine factorise, auto byReference, char const* name) {
    const factors f = factorised(factorise, a, m, n, lda);
    factors expected{a, std::vector<unsigned long>(std::min(m, n) + 1, untouched)};
    byReference(m, n, reference::place{expected.a, 0}, lda, expected.ipiv.data(), expected.info);
    const std::string what = std::string(name) + " " + std::to_string(m) + " x " + std::to_string(n);
    expectSamePatterns(f.a, expected.a, what);
    EXPECT_EQ(f.ipiv, expected.ipiv) << what;
    EXPECT_EQ(f.info, expected.info) << what;
  };
  check(&half_vector::hgetrf2, &reference::hgetrf2, "hgetrf2");
  check(&half_vector::hgetrf, &reference::hgetrf, "hgetrf");
}

TEST(Factorisation, IsAsToldForSmallSizes) {
  bitSource bits(1);
  for (unsigned long m = 0; m <= 12; ++m) {
    for (unsigned long n = 0; n <= 12; ++n) {
      expectAsTold(drawnPatterns((m + 2) * n + m + 1, bits), m, n, m + 2);
      expectAsTold(drawnPatterns(m * n + m + 1, bits, 30, 4), m, n, m);
      expectAsTold(drawnPatterns(m * n + m + 1, bits, 0, 2), m, n, m);
    }
  }
}

TEST(Factorisation, IsAsToldAroundTheBlockSize) {
  bitSource bits(2);
  for (const unsigned long size : {63, 64, 65, 66, 128, 129}) {
    expectAsTold(drawnPatterns(size * size, bits), size, size, size);
    expectAsTold(drawnPatterns((size + 30) * size, bits), size + 30, size, size + 30);
    expectAsTold(drawnPatterns(size * (size + 30), bits), size, size + 30, size);
    expectAsTold(drawnPatterns((size + 3) * size, bits, 2000, 50), size, size, size + 3);
  }
}

TEST(Factorisation, IsAsToldOnOverlappingColumns) {
  bitSource bits(3);
  for (const unsigned long lda : {1, 3, 6}) expectAsTold(drawnPatterns(lda * 9 + 8, bits), 8, 9, lda);
  expectAsTold(drawnPatterns(40 * 70 + 70, bits), 70, 70, 40);
  EXPECT_EQ(factorised(&half_vector::hgetrf2, patternArray(20, one), 4, 3, 3).info, -4);
  EXPECT_EQ(factorised(&half_vector::hgetrf, patternArray(20, one), 4, 3, 3).info, -4);
}

TEST(Factorisation, OfNothingWritesInfoAlone) {
  for (const routine factorise : {&half_vector::hgetrf2, &half_vector::hgetrf}) {
    EXPECT_EQ(factorised(factorise, {}, 0, 3, 1).info, 0);
    EXPECT_EQ(factorised(factorise, {}, 0, 3, 0).info, -4);
    EXPECT_EQ(factorised(factorise, {}, 3, 0, 3).info, 0);
    EXPECT_EQ(factorised(factorise, {}, 3, 0, 2).info, -4);
    EXPECT_EQ(factorised(factorise, {}, 3, 0, 3).ipiv[0], untouched);
  }
}

TEST(Factorisation, TellsAZeroPivot) {
  factors f = factorised(&half_vector::hgetrf2, {0x8000}, 1, 1, 1);
  EXPECT_EQ(f.info, 1);
  EXPECT_EQ(f.ipiv[0], 1u);
  f = factorised(&half_vector::hgetrf2, {0, 0x8000, 0}, 3, 1, 3);
  EXPECT_EQ(f.info, 1);
  EXPECT_EQ(f.ipiv[0], 1u);
  EXPECT_EQ(f.a, patternArray({0, 0x8000, 0}));
  // The second column of three is twice the first one.
  f = factorised(&half_vector::hgetrf2, {one, one, one, two, two, two, one, two, 0x4200}, 3, 3, 3);
  EXPECT_EQ(f.info, 2);
}

TEST(Factorisation, LetsANaNPivotSpreadAndDoesNotTellIt) {
  const factors f = factorised(&half_vector::hgetrf2, {quietNaN, one, one, one}, 2, 2, 2);
  EXPECT_EQ(f.info, 0);
  EXPECT_EQ(f.ipiv, std::vector<unsigned long>({1, 2, untouched}));
  EXPECT_EQ(f.a, patternArray({quietNaN, quietNaN, one, quietNaN}));
}

TEST(Factorisation, InterchangesRowsForAZeroPivot) {
  const factors f = factorised(&half_vector::hgetrf2, {0, one, two, one}, 2, 2, 2);
  EXPECT_EQ(f.ipiv, std::vector<unsigned long>({2, 2, untouched}));
  EXPECT_EQ(f.a, patternArray({one, 0, one, two}));
  EXPECT_EQ(factorised(&half_vector::hgetrf2, {0xC200, 0x4200}, 2, 1, 2).ipiv[0], 1u);
}

// A pivot of 2^-10 is a reciprocal of 1024; of the half below it a rounded one would not be the quotient.
TEST(Factorisation, DividesWhereThePivotIsBelowTwoToTheMinusTen) {
  bool seen = false;
  for (std::uint16_t x = 0x0001; x < 0x13FF; ++x) {
    const factors below = factorised(&half_vector::hgetrf2, {0x13FF, x}, 2, 1, 2);
    ASSERT_EQ(below.a[1], reference::quotient(x, 0x13FF));
    patternArray scaled{x};
    reference::hscal(1, reference::quotient(one, 0x13FF), {scaled, 0}, 1);
    seen = seen || scaled[0] != below.a[1];
    // Its reciprocal rounds, and so shows the reciprocal's way from there on.
    const factors above = factorised(&half_vector::hgetrf2, {0x1401, x}, 2, 1, 2);
    scaled = {x};
    reference::hscal(1, reference::quotient(one, 0x1401), {scaled, 0}, 1);
    ASSERT_EQ(above.a[1], scaled[0]);
  }
  EXPECT_TRUE(seen);
  int scalings = 0;
  static int* count = nullptr;
  count = &scalings;
  const replacedEntry swap(
      half_ptr::hscalHalfHalfPtr, +[](unsigned long, unsigned short, unsigned short*, unsigned long) { ++*count; });
  factorised(&half_vector::hgetrf2, {0x1400, 0x0001}, 2, 1, 2);
  factorised(&half_vector::hgetrf2, {0x9400, 0x0001}, 2, 1, 2);
  EXPECT_EQ(scalings, 2);
  factorised(&half_vector::hgetrf2, {0x13FF, 0x0001}, 2, 1, 2);
  EXPECT_EQ(scalings, 2);
}

TEST(BlockedFactorisation, IsTheRecursiveOneUpTo64) {
  bitSource bits(4);
  const patternArray a = drawnPatterns(64 * 70, bits);
  const factors blocked = factorised(&half_vector::hgetrf, a, 64, 70, 64);
  const factors recursive = factorised(&half_vector::hgetrf2, a, 64, 70, 64);
  EXPECT_EQ(blocked.a, recursive.a);
  EXPECT_EQ(blocked.ipiv, recursive.ipiv);
  const patternArray larger = drawnPatterns(65 * 65, bits);
  EXPECT_NE(factorised(&half_vector::hgetrf, larger, 65, 65, 65).a,
            factorised(&half_vector::hgetrf2, larger, 65, 65, 65).a);
}

TEST(BlockedFactorisation, TellsAZeroPivotOneColumnEarly) {
  bitSource bits(5);
  for (const unsigned long column : {0, 1, 5, 63, 64}) {
    patternArray a(65 * 65, 0);
    for (unsigned long i = 0; i < 65; ++i) a[66 * i] = i == column ? 0 : one;
    EXPECT_EQ(factorised(&half_vector::hgetrf, a, 65, 65, 65).info, static_cast<int>(column)) << column;
    EXPECT_EQ(factorised(&half_vector::hgetrf2, a, 65, 65, 65).info, static_cast<int>(column) + 1) << column;
  }
}

TEST(Factorisation, GoesThroughTheTableAtEveryStep) {
  static unsigned calls;
  calls = 0;
  static auto* const original = half_ptr::hgemmHalfHalfPtr;
  bitSource bits(6);
  const patternArray a = drawnPatterns(70 * 70, bits);
  const replacedEntry swap(
      half_ptr::hgemmHalfHalfPtr, +[](char* ta, char* tb, unsigned long m, unsigned long n, unsigned long k,
                                      unsigned short alpha, unsigned short* x, unsigned long ldx, unsigned short* y,
                                      unsigned long ldy, unsigned short beta, unsigned short* c, unsigned long ldc) {
        ++calls;
        original(ta, tb, m, n, k, alpha, x, ldx, y, ldy, beta, c, ldc);
      });
  factorised(&half_vector::hgetrf, a, 70, 70, 70);
  EXPECT_EQ(calls, 63u + 5u + 1u);
}

}  // namespace
}  // namespace zthalf
