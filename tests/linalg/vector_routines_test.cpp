// hscal, ihamax and hlaswp.
#include <gtest/gtest.h>

#include "tests/linalg/pattern_matrices.h"

namespace zthalf {
namespace {

using namespace zthalf::testing;

constexpr std::uint16_t one = 0x3C00, quietNaN = 0x7E00, infinity = 0x7C00;

TEST(Hscal, MultipliesEveryPatternByEveryNotableFactor) {
  patternArray all(0x10000);
  for (std::uint32_t p = 0; p < 0x10000; ++p) all[p] = static_cast<std::uint16_t>(p);
  for (const std::uint16_t alpha : {0x0000, 0x8000, 0x0001, 0x3555, 0x3C00, 0xBC00, 0x4200, 0x7BFF, 0x7C00, 0xFC00,
                                    0x7E00, 0xFE00, 0x7C01, 0xFC01}) {
    patternArray x = all, expected = all;
    half_vector::hscal(x.size(), {alpha}, halvesOf(x), 1);
    reference::hscal(expected.size(), alpha, {expected, 0}, 1);
    expectSamePatterns(x, expected, "hscal by " + hex(alpha));
  }
}

TEST(Hscal, TakesEveryCountAndStride) {
  bitSource bits(1);
  for (unsigned long n = 0; n <= 70; ++n) {
    for (const unsigned long incx : {0, 1, 2, 5}) {
      patternArray x = drawnPatterns(400, bits, 9), expected = x;
      half_vector::hscal(n, {0x4100}, halvesOf(x, 1), incx);
      reference::hscal(n, 0x4100, {expected, 1}, incx);
      expectSamePatterns(x, expected, "hscal");
    }
  }
}

TEST(Hscal, HasNoShortcutForZero) {
  patternArray x{infinity, 0x8000, quietNaN};
  half_vector::hscal(3, {0x0000}, halvesOf(x), 1);
  EXPECT_EQ(x, patternArray({quietNaN, 0x8000, quietNaN}));
}

unsigned long largest(patternArray x, unsigned long incx = 1) {
  return half_vector::ihamax(incx == 0 ? x.size() : (x.size() + incx - 1) / incx, halvesOf(x), incx);
}

TEST(Ihamax, CountsFromZeroAndTakesTheFirstOfEqualOnes) {
  EXPECT_EQ(largest({0xC200, 0x4200}), 0u);
  EXPECT_EQ(largest({0x4200, 0xC201, 0x4201}), 1u);
  EXPECT_EQ(largest({0x0000, 0x8000, 0x0001}), 2u);
  EXPECT_EQ(largest({one, infinity, 0xFC00}), 1u);
}

TEST(Ihamax, NeverTakesANaNButAFirstOne) {
  EXPECT_EQ(largest({quietNaN, one}), 0u);
  EXPECT_EQ(largest({0xFC01, infinity}), 0u);
  EXPECT_EQ(largest({one, quietNaN, 0x4000}), 2u);
  EXPECT_EQ(largest({one, quietNaN, 0xFFFF}), 0u);
}

TEST(Ihamax, OfOneOrNoneOrWithoutAStrideIsZero) {
  EXPECT_EQ(half_vector::ihamax(0, nullptr, 1), 0u);
  EXPECT_EQ(half_vector::ihamax(1, nullptr, 1), 0u);
  EXPECT_EQ(largest({one, 0x4000}, 0), 0u);
}

TEST(Ihamax, IsAsToldForEveryCountAndStride) {
  bitSource bits(2);
  for (unsigned long n = 0; n <= 1100; n += n < 40 ? 1 : 53) {
    for (const unsigned long incx : {1, 2, 3}) {
      for (const unsigned long every : {0, 4}) {
        patternArray x = drawnPatterns(n * incx + 1, bits, every);
        if (every != 0) x[0] = one;
        EXPECT_EQ(half_vector::ihamax(n, halvesOf(x), incx), reference::ihamax(n, {x, 0}, incx)) << n << " " << incx;
      }
    }
  }
}

// The only largest element at each place, and the same again behind it.
TEST(Ihamax, FindsAnElementAtEveryPlace) {
  for (unsigned long at = 0; at < 600; ++at) {
    patternArray x(700, one);
    x[at] = 0xC000;
    if (at % 2 == 0) x[at + 90] = 0x4000;
    EXPECT_EQ(half_vector::ihamax(x.size(), halvesOf(x), 1), at);
  }
}

std::vector<unsigned long> drawnRows(unsigned long count, unsigned long rows, bitSource& bits) {
  std::vector<unsigned long> ipiv(count);
  for (unsigned long& row : ipiv) row = bits() % rows + 1;
  return ipiv;
}

TEST(Hlaswp, IsAsToldForColumnsStridesAndRows) {
  bitSource bits(3);
  constexpr unsigned long rows = 11;
  for (const unsigned long n : {0, 1, 5, 31, 32, 33, 64, 70}) {
    for (const int incx : {0, 1, 2, -1, -3}) {
      for (const auto& [k1, k2] : {std::pair{1ul, 11ul}, {3ul, 7ul}, {4ul, 4ul}, {5ul, 4ul}}) {
        for (const unsigned long lda : {11ul, 14ul, 3ul}) {
          patternArray a = drawnPatterns(lda * n + rows, bits, 3), expected = a;
          auto ipiv = drawnRows(60, rows, bits);
          half_vector::hlaswp(n, halvesOf(a), lda, k1, k2, ipiv.data(), incx);
          reference::hlaswp(n, {expected, 0}, lda, static_cast<long>(k1), static_cast<long>(k2), ipiv.data(), incx);
          expectSamePatterns(a, expected, "hlaswp");
        }
      }
    }
  }
}

TEST(Hlaswp, UndoesItselfBackwards) {
  bitSource bits(4);
  const patternArray before = drawnPatterns(8 * 40, bits, 2);
  patternArray a = before;
  auto ipiv = drawnRows(8, 8, bits);
  half_vector::hlaswp(40, halvesOf(a), 8, 1, 8, ipiv.data(), 1);
  EXPECT_NE(a, before);
  half_vector::hlaswp(40, halvesOf(a), 8, 1, 8, ipiv.data(), -1);
  EXPECT_EQ(a, before);
}

}  // namespace
}  // namespace zthalf
