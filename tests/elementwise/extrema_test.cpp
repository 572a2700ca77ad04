// min and max of two arrays over every pair of element types, against their steps written out; by the entry, by the
// template and by the function that chooses.
#include <gtest/gtest.h>

#include <cstring>
#include <vector>

#include "tests/support/binary_rows.h"
#include "tests/support/drawn_values.h"
#include "tests/support/extremum_steps.h"
#include "tests/support/pair_loops.h"
#include "tests/support/shapes.h"

namespace zthalf {
namespace {

using namespace zthalf::testing;
using namespace zthalf::testing::steps;

// Few values, so that they meet their like: ties, zeros of both signs, lengths that agree, infinities and NaNs.
half_t fewHalves(bitSource& bits) {
  return half_t{oneOf<std::uint16_t>({0x0000, 0x8000, 0x3C00, 0xBC00, 0x4200, 0xC200, 0x4400, 0x4500, 0xC500, 0x0001,
                                      0x7C00, 0xFC00, 0x7E00, 0xFE00, 0x7C01, 0xFD55},
                                     bits)};
}

template <class T>
struct fewValues {
  static T draw(bitSource& bits) {
    if constexpr (partsOf<T>::areTwo) {
      using part = fewValues<typename partsOf<T>::type>;
      const auto real = part::draw(bits);
      return {real, part::draw(bits)};
    } else if constexpr (std::is_same_v<T, half_t>) {
      return fewHalves(bits);
    } else {
      return wide<T>(fewHalves(bits));
    }
  }
};

template <class T>
T drawn(bitSource& bits) {
  return bits() % 3 != 0 ? fewValues<T>::draw(bits) : drawer<T>::draw(bits);
}

template <class Row>
void expectSteps(Row row, meetingShapes const& shapes, bitSource& bits) {
  using Left = typename Row::left;
  using Right = typename Row::right;
  using Out = typename Row::output;
  const extremumForm form = extremumFormNamed(row.name);
  std::vector<Left> a(countOf(shapes.a));
  std::vector<Right> b(countOf(shapes.b));
  for (Left& x : a) x = drawn<Left>(bits);
  for (Right& y : b) y = drawn<Right>(bits);
  const unsigned long n = countOf(shapes.c);
  for (const auto road : {row.facade, row.entry, row.operation}) {
    std::vector<Out> c(n, fewValues<Out>::draw(bits));
    row.call(road, a.data(), b.data(), c.data(), shapes);
    unsigned long differences = 0;
    for (unsigned long k = 0; k < n; ++k) {
      const Out expected = extremumOfPair(form, a[shapes.offsetInA(k)], b[shapes.offsetInB(k)]);
      differences += std::memcmp(&expected, &c[k], sizeof(Out)) != 0;
    }
    ASSERT_EQ(differences, 0u) << row.name << " of " << shapes;
  }
}

TEST(Extrema, OfTwoArraysAreByTheStepsForEveryPair) {
  unsigned rows = 0;
  bitSource bits(211);
  forEachChosenBinaryRow([&](auto row) {
    ++rows;
    for (auto const& shapes :
         {met({4000}, {4000}), met({1}, {300}), met({300}, {1}), met({1}, {1}), met({67, 1}, {67, 5}),
          met({67, 1}, {1, 5}), met({1, 5}, {67, 1}), met({2, 1, 3}, {1, 5, 3})}) {
      expectSteps(row, shapes, bits);
    }
    for (int repetition = 0; repetition < 30; ++repetition) expectSteps(row, randomMeeting(bits), bits);
  });
  EXPECT_EQ(rows, 80u);
}

// One row of each kind of loop: the others differ in their functor alone.
TEST(Extrema, KeepToTheirArraysAtEveryCountMisalignmentAndOverlap) {
  forEachChosenBinaryRow([](auto row) {
    using type = decltype(row);
    using Left = typename type::left;
    using Right = typename type::right;
    using Out = typename type::output;
    const std::string name = row.name;
    if (name != "minHalfHalf" && name != "maxOmitNaNHalfHalf" && name != "maxHalfSingle" && name != "minDoubleHalf" &&
        name != "minOmitNaNCplxHalfHalf") {
      return;
    }
    SCOPED_TRACE(name);
    checkPairLoop<Left, Right, Out>([&](Left* a, Right* b, Out* c, unsigned long na, unsigned long nb,
                                        unsigned long nc) { row.facade(a, b, c, na, 1, &na, nb, 1, &nb, nc, 1, &nc); },
                                    [&](Left x, Right y) { return row.ofOnePair(x, y); });
  });
}

TEST(Extrema, TakeNullPointersForAnEmptyOutput) {
  forEachChosenBinaryRow([](auto row) {
    for (const auto road : {row.facade, row.entry, row.operation}) {
      road(nullptr, nullptr, nullptr, 0, 0, nullptr, 0, 0, nullptr, 0, 0, nullptr);
      road(nullptr, nullptr, nullptr, 5, 0, nullptr, 1, 0, nullptr, 0, 0, nullptr);
    }
  });
}

}  // namespace
}  // namespace zthalf
