// Every binary row of the entry list: whatever it computes for one pair, arrays must give for each of their pairs.
#include <gtest/gtest.h>

#include <cstring>
#include <vector>

#include "tests/support/binary_rows.h"
#include "tests/support/pair_loops.h"
#include "tests/support/shapes.h"

namespace zthalf {
namespace {

using namespace zthalf::testing;

TEST(BinaryEntries, KeepToTheirArraysAtEveryCountMisalignmentAndOverlap) {
  forEachBinaryRow([](auto row) {
    using type = decltype(row);
    using Left = typename type::left;
    using Right = typename type::right;
    using Out = typename type::output;
    SCOPED_TRACE(row.name);
    checkPairLoop<Left, Right, Out>([&](Left* a, Right* b, Out* c, unsigned long na, unsigned long nb,
                                        unsigned long nc) { row.facade(a, b, c, na, 1, &na, nb, 1, &nb, nc, 1, &nc); },
                                    [&](loaded<Left> x, loaded<Right> y) { return row.ofOnePair(x, y); });
  });
}

// By all three roads, with sentinels around the output.
template <class Row>
void checkMeeting(Row row, meetingShapes const& shapes, bitSource& bits) {
  using Left = typename Row::left;
  using Right = typename Row::right;
  using Out = typename Row::output;
  std::vector<std::byte> a(countOf(shapes.a) * sizeof(Left)), b(countOf(shapes.b) * sizeof(Right));
  drawInto<Left>(a.data(), countOf(shapes.a), bits);
  drawInto<Right>(b.data(), countOf(shapes.b), bits);
  const unsigned long n = countOf(shapes.c);
  std::vector<std::byte> expected((n + 2) * sizeof(Out), std::byte{0xA5});
  for (unsigned long k = 0; k < n; ++k) {
    store(&expected[(k + 1) * sizeof(Out)], row.ofOnePair(load<Left>(&a[shapes.offsetInA(k) * sizeof(Left)]),
                                                          load<Right>(&b[shapes.offsetInB(k) * sizeof(Right)])));
  }
  for (const auto road : {row.facade, row.entry, row.operation}) {
    std::vector<std::byte> actual((n + 2) * sizeof(Out), std::byte{0xA5});
    row.call(road, arrayAt<Left>(a.data()), arrayAt<Right>(b.data()), arrayAt<Out>(actual.data() + sizeof(Out)),
             shapes);
    ASSERT_TRUE(actual == expected) << row.name << " of " << shapes;
  }
}

TEST(BinaryEntries, ExpandAsPlainIndexArithmeticDoes) {
  forEachBinaryRow([](auto row) {
    bitSource bits(81);
    for (int repetition = 0; repetition < 300; ++repetition) {
      checkMeeting(row, randomMeeting(bits), bits);
      if (HasFailure()) return;
    }
    for (auto const& shapes :
         {met({67, 1}, {67, 5}), met({1, 5}, {67, 5}), met({67, 1}, {1, 5}), met({1, 5}, {67, 1})}) {
      checkMeeting(row, shapes, bits);
    }
  });
}

TEST(BinaryEntries, TakeNullPointersForAnEmptyOutput) {
  forEachBinaryRow([](auto row) {
    for (const auto road : {row.facade, row.entry, row.operation}) {
      road(nullptr, nullptr, nullptr, 0, 0, nullptr, 0, 0, nullptr, 0, 0, nullptr);
      road(nullptr, nullptr, nullptr, 5, 0, nullptr, 1, 0, nullptr, 0, 0, nullptr);
    }
  });
}

}  // namespace
}  // namespace zthalf
