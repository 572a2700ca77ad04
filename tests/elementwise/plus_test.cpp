// Sums of arrays of halves, against the operator of half_t and by name. Counts, overlaps and shapes are in
// binary_entries_test.cpp.
#include <gtest/gtest.h>

#include <vector>

#include "tests/support/binary_rows.h"
#include "tests/support/expect_bits.h"

namespace zthalf {
namespace {

using namespace zthalf::testing;
using plusRow = binaryRow<half_t, half_t, half_t>;

constexpr unsigned long patterns = 0x10000;

std::vector<half_t> everyPattern() {
  std::vector<half_t> all;
  for (std::uint32_t p = 0; p < patterns; ++p) all.push_back({static_cast<std::uint16_t>(p)});
  return all;
}

// The row of two half arrays, by all three roads.
template <class Visit>
void onEachRoad(Visit visit) {
  unsigned roads = 0;
  forEachBinaryRow([&](auto row) {
    if constexpr (std::is_same_v<decltype(row), plusRow>) {
      if (std::string(row.name) != "plusHalfHalf") return;
      for (const auto road : {row.facade, row.entry, row.operation}) {
        ++roads;
        visit([road](half_t* a, half_t* b, half_t* c, sizeList const& dimsA, sizeList const& dimsB) {
          plusRow::call(road, a, b, c, met(dimsA, dimsB));
        });
      }
    }
  });
  EXPECT_EQ(roads, 3u);
}

TEST(Plus, OfEveryPatternAndASingleElementIsTheOperatorsSum) {
  std::vector<half_t> all = everyPattern(), result(patterns);
  bitSource bits(101);
  std::vector<half_t> singles;
  for (int i = 0; i < 100; ++i) singles.push_back(drawer<half_t>::draw(bits));
  for (const std::uint16_t p :
       {0x0000, 0x8000, 0x0001, 0x3C00, 0x7BFF, 0x7C00, 0xFC00, 0x7C01, 0xFC01, 0x7E00, 0xFE00}) {
    singles.push_back({p});
  }
  onEachRoad([&](auto plus) {
    bitComparison compare("plus");
    for (half_t& single : singles) {
      plus(all.data(), &single, result.data(), {patterns}, {1});
      for (unsigned long i = 0; i < patterns; ++i) compare.check(result[i], all[i] + single, all[i], single);
      plus(&single, all.data(), result.data(), {1}, {patterns});
      for (unsigned long i = 0; i < patterns; ++i) compare.check(result[i], single + all[i], single, all[i]);
    }
  });
}

TEST(Plus, OfTwoArraysIsTheOperatorsSum) {
  constexpr unsigned long n = 500'000;
  std::vector<half_t> a(n), b(n), result(n);
  bitSource bits(102);
  for (unsigned long i = 0; i < n; ++i) a[i] = drawer<half_t>::draw(bits), b[i] = drawer<half_t>::draw(bits);
  onEachRoad([&](auto plus) {
    bitComparison compare("plus");
    plus(a.data(), b.data(), result.data(), {n}, {n});
    for (unsigned long i = 0; i < n; ++i) compare.check(result[i], a[i] + b[i], a[i], b[i]);
    // In place on either side.
    auto onLeft = a, onRight = b;
    plus(onLeft.data(), b.data(), onLeft.data(), {n}, {n});
    plus(a.data(), onRight.data(), onRight.data(), {n}, {n});
    for (unsigned long i = 0; i < n; ++i) {
      compare.check(onLeft[i], result[i], a[i], b[i]);
      compare.check(onRight[i], result[i], a[i], b[i]);
    }
  });
}

TEST(Plus, OfAColumnAndARowIsTheTableOfSums) {
  std::vector<half_t> column(300), row(200), result(300 * 200);
  bitSource bits(103);
  for (half_t& x : column) x = drawer<half_t>::draw(bits);
  for (half_t& x : row) x = drawer<half_t>::draw(bits);
  onEachRoad([&](auto plus) {
    bitComparison compare("plus");
    plus(column.data(), row.data(), result.data(), {300, 1}, {1, 200});
    for (unsigned long k = 0; k < result.size(); ++k) {
      compare.check(result[k], column[k % 300] + row[k / 300], column[k % 300], row[k / 300]);
    }
  });
}

struct sum {
  std::uint16_t a, b, expected;
};

// The sign of a NaN result is the right operand's if that is a NaN and the left one does not alone signal.
const sum sums[] = {{0x3C00, 0x3C00, 0x4000}, {0x7BFF, 0x7BFF, 0x7C00}, {0x8000, 0x8000, 0x8000},
                    {0x8000, 0x0000, 0x0000}, {0x0001, 0x8001, 0x0000}, {0x7C00, 0xFC00, 0x7E00},
                    {0xFC00, 0x7C00, 0x7E00}, {0x7E00, 0xFE00, 0xFE00}, {0xFE00, 0x7E00, 0x7E00},
                    {0xFC01, 0x7E00, 0xFE00}, {0x7E00, 0xFC01, 0xFE00}, {0x3C00, 0xFC01, 0xFE00},
                    {0xFE01, 0x3C00, 0xFE00}};

TEST(Plus, GivesTheValuesOfTheTableInEveryLane) {
  onEachRoad([&](auto plus) {
    for (const unsigned long n : {1UL, 8UL, 67UL}) {
      for (const auto [x, y, expected] : sums) {
        std::vector<half_t> a(n, half_t{x}), b(n, half_t{y}), c(n);
        plus(a.data(), b.data(), c.data(), {n}, {n});
        for (const half_t result : c) ASSERT_EQ(result.bits, expected) << std::hex << x << " + " << y;
      }
    }
  });
}

}  // namespace
}  // namespace zthalf
