// Every comparison row of the entry list: flat and expanded, by all three roads, against exact numbers.
#include <gtest/gtest.h>

#include <cstring>
#include <set>
#include <string>
#include <vector>

#include "tests/support/comparison_rows.h"
#include "tests/support/pair_loops.h"
#include "tests/support/shapes.h"

namespace zthalf {
namespace {

using namespace zthalf::testing;

// The rows are many, and the loops under them are those of all binary rows: each row tries some of the counts and
// overlaps, and all rows together try them all.
TEST(ComparisonEntries, KeepToTheirArraysAtManyCountsMisalignmentsAndOverlaps) {
  forEachComparisonRow([](auto row) {
    using type = decltype(row);
    using Left = typename type::left;
    using Right = typename type::right;
    SCOPED_TRACE(row.name);
    constexpr unsigned stride = 11;
    checkPairLoop<Left, Right, bool>([&](Left* a, Right* b, bool* c, unsigned long na, unsigned long nb,
                                         unsigned long nc) { row.facade(a, b, c, na, 1, &na, nb, 1, &nb, nc, 1, &nc); },
                                     [&](loaded<Left> x, loaded<Right> y) { return holds(row.asked, x, y); },
                                     allPairings, stride);
  });
}

template <class Row>
void checkMeeting(Row row, meetingShapes const& shapes, bitSource& bits) {
  using Left = typename Row::left;
  using Right = typename Row::right;
  std::vector<std::byte> a(countOf(shapes.a) * sizeof(Left)), b(countOf(shapes.b) * sizeof(Right));
  drawInto<Left>(a.data(), countOf(shapes.a), bits);
  drawInto<Right>(b.data(), countOf(shapes.b), bits);
  const unsigned long n = countOf(shapes.c);
  std::vector<unsigned char> expected(n + 2, 0xA5);
  for (unsigned long k = 0; k < n; ++k) {
    expected[k + 1] = static_cast<unsigned char>(holds(row.asked, load<Left>(&a[shapes.offsetInA(k) * sizeof(Left)]),
                                                       load<Right>(&b[shapes.offsetInB(k) * sizeof(Right)])));
  }
  for (const auto road : {row.facade, row.entry, row.operation}) {
    std::vector<unsigned char> actual(n + 2, 0xA5);
    row.call(road, arrayAt<Left>(a.data()), arrayAt<Right>(b.data()), reinterpret_cast<bool*>(actual.data() + 1),
             shapes);
    ASSERT_TRUE(actual == expected) << row.name << " of " << shapes;
  }
}

TEST(ComparisonEntries, ExpandAsPlainIndexArithmeticDoes) {
  bitSource bits(181);
  forEachComparisonRow([&](auto row) {
    for (int repetition = 0; repetition < 20; ++repetition) checkMeeting(row, randomMeeting(bits), bits);
    for (auto const& shapes :
         {met({67, 1}, {67, 5}), met({1, 5}, {67, 5}), met({67, 1}, {1, 5}), met({1, 5}, {67, 1}), met({3, 1}, {1, 4}),
          met({1, 90}, {3, 1}), met({301}, {301}), met({1}, {301}), met({301}, {1})}) {
      checkMeeting(row, shapes, bits);
    }
  });
}

TEST(ComparisonEntries, TakeNullPointersForAnEmptyOutput) {
  forEachComparisonRow([](auto row) {
    for (const auto road : {row.facade, row.entry, row.operation}) {
      road(nullptr, nullptr, nullptr, 0, 0, nullptr, 0, 0, nullptr, 0, 0, nullptr);
      road(nullptr, nullptr, nullptr, 5, 0, nullptr, 1, 0, nullptr, 0, 0, nullptr);
    }
  });
}

TEST(ComparisonEntries, AreSixTimesFortyEightWithNamesOfTheirOwn) {
  std::set<std::string> names;
  forEachComparisonRow([&](auto row) { names.insert(row.name); });
  EXPECT_EQ(names.size(), 288u);
}

}  // namespace
}  // namespace zthalf
