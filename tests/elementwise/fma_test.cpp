// fma of arrays: every row against the functor for single elements, flat and expanded, and special values by name.
#include <gtest/gtest.h>

#include <cstring>
#include <set>
#include <string>
#include <vector>

#include "scalar/functors/multiply_add_functor.h"
#include "tests/support/exact.h"
#include "tests/support/expect_bits.h"
#include "tests/support/stage.h"
#include "tests/support/ternary_rows.h"

namespace zthalf {
namespace {

using namespace zthalf::testing;

fp16binary_t plain(half_t x) { return {x.bits}; }
float plain(float x) { return x; }
double plain(double x) { return x; }

template <class Out, class A, class B, class C>
Out expectedFma(A x, B y, C z) {
  const auto result = half::scalar::emulated::fmaFtor{}(plain(x), plain(y), plain(z));
  static_assert(sizeof(result) == sizeof(Out));
  Out out;
  std::memcpy(static_cast<void*>(&out), &result, sizeof out);
  return out;
}

struct triplePlacement {
  std::size_t a, b, c, out;
};

// One element after the other, each read after the earlier ones were written; single elements are read first.
template <class Row>
void expectAscending(stage& on, Row row, triplePlacement at, unsigned mix, unsigned long n) {
  using A = typename Row::first;
  using B = typename Row::second;
  using C = typename Row::third;
  using Out = typename Row::output;
  const unsigned long na = (mix & 4) != 0 ? n : 1, nb = (mix & 2) != 0 ? n : 1, nc = (mix & 1) != 0 ? n : 1;
  EXPECT_TRUE(on.agrees(
      [&](std::byte* bytes) {
        row.facade(arrayAt<A>(bytes + at.a), arrayAt<B>(bytes + at.b), arrayAt<C>(bytes + at.c),
                   arrayAt<Out>(bytes + at.out), na, 1, &na, nb, 1, &nb, nc, 1, &nc, n, 1, &n);
        return true;
      },
      [&](std::byte* bytes) {
        const auto x = load<A>(bytes + at.a);
        const auto y = load<B>(bytes + at.b);
        const auto z = load<C>(bytes + at.c);
        for (unsigned long i = 0; i < n; ++i) {
          store(bytes + at.out + i * sizeof(Out),
                expectedFma<Out>(na == 1 ? x : load<A>(bytes + at.a + i * sizeof(A)),
                                 nb == 1 ? y : load<B>(bytes + at.b + i * sizeof(B)),
                                 nc == 1 ? z : load<C>(bytes + at.c + i * sizeof(C))));
        }
        return true;
      }))
      << row.name << ", " << n << " elements, mix " << mix << ", at " << at.a << ", " << at.b << ", " << at.c << ", "
      << at.out;
}

constexpr std::size_t room = 300 * sizeof(double) + 64;

template <class Row>
void draw(stage& on, triplePlacement at, unsigned long n, bitSource& bits) {
  drawInto<typename Row::first>(on.initial() + at.a, n, bits);
  drawInto<typename Row::second>(on.initial() + at.b, n, bits);
  drawInto<typename Row::third>(on.initial() + at.c, n, bits);
}

TEST(FmaEntries, KeepToTheirArraysInEveryFlatFormAtManyCounts) {
  bitSource bits(201);
  stage on(5 * room, 202);
  forEachTernaryRow([&](auto row) {
    using type = decltype(row);
    for (const std::size_t shift : {0u, 8u, 24u}) {
      const triplePlacement at{64 + shift, room + 64, 2 * room + 64 + 2 * shift, 3 * room + 64 + shift};
      draw<type>(on, at, 300, bits);
      for (unsigned mix = 1; mix < 8; ++mix) {
        for (const unsigned long n :
             {0, 1, 2, 3, 4, 5, 7, 8, 9, 15, 16, 17, 31, 32, 33, 47, 64, 65, 67, 129, 257, 300}) {
          expectAscending(on, row, at, mix, static_cast<unsigned long>(n));
        }
      }
    }
  });
}

TEST(FmaEntries, AscendWhereTheOutputOverlapsAnOperand) {
  bitSource bits(203);
  stage on(6 * room, 204);
  forEachTernaryRow([&](auto row) {
    using type = decltype(row);
    for (int distance = -320; distance <= 320; distance += distance % 3 == 0 ? 24 : 8) {
      const std::size_t middle = 4 * room, moved = middle + static_cast<std::size_t>(distance);
      for (triplePlacement at :
           {triplePlacement{middle, 64, room + 64, moved}, triplePlacement{64, middle, room + 64, moved},
            triplePlacement{64, room + 64, middle, moved}}) {
        draw<type>(on, at, 300, bits);
        for (const unsigned long n : {5UL, 40UL, 300UL}) expectAscending(on, row, at, 7, n);
      }
      if (::testing::Test::HasFailure()) return;
    }
    const triplePlacement oneArray{room, room, room, room};
    draw<type>(on, oneArray, 300, bits);
    if (sizeof(typename type::first) == sizeof(typename type::output) &&
        sizeof(typename type::second) == sizeof(typename type::output) &&
        sizeof(typename type::third) == sizeof(typename type::output)) {
      for (const unsigned long n : {1UL, 67UL, 300UL}) expectAscending(on, row, oneArray, 7, n);
    }
  });
}

// By all three roads, with sentinels around the output.
template <class Row>
void checkMeeting(Row row, tripleShapes const& shapes, bitSource& bits) {
  using A = typename Row::first;
  using B = typename Row::second;
  using C = typename Row::third;
  using Out = typename Row::output;
  std::vector<std::byte> a(countOf(shapes.a) * sizeof(A)), b(countOf(shapes.b) * sizeof(B)),
      c(countOf(shapes.c) * sizeof(C));
  drawInto<A>(a.data(), countOf(shapes.a), bits);
  drawInto<B>(b.data(), countOf(shapes.b), bits);
  drawInto<C>(c.data(), countOf(shapes.c), bits);
  const unsigned long n = countOf(shapes.out);
  std::vector<std::byte> expected((n + 2) * sizeof(Out), std::byte{0xA5});
  for (unsigned long k = 0; k < n; ++k) {
    store(&expected[(k + 1) * sizeof(Out)],
          expectedFma<Out>(load<A>(&a[offsetIn(shapes.a, shapes.out, k) * sizeof(A)]),
                           load<B>(&b[offsetIn(shapes.b, shapes.out, k) * sizeof(B)]),
                           load<C>(&c[offsetIn(shapes.c, shapes.out, k) * sizeof(C)])));
  }
  for (const auto road : {row.facade, row.entry, row.operation}) {
    std::vector<std::byte> actual((n + 2) * sizeof(Out), std::byte{0xA5});
    row.call(road, arrayAt<A>(a.data()), arrayAt<B>(b.data()), arrayAt<C>(c.data()),
             arrayAt<Out>(actual.data() + sizeof(Out)), shapes);
    ASSERT_TRUE(actual == expected) << row.name << " of " << shapes;
  }
}

TEST(FmaEntries, ExpandAsPlainIndexArithmeticDoes) {
  bitSource bits(205);
  const sizeList one{1}, column{67, 1}, row{1, 5}, matrix{67, 5};
  forEachTernaryRow([&](auto fma) {
    for (int repetition = 0; repetition < 150; ++repetition) checkMeeting(fma, randomTriple(bits), bits);
    for (auto const& shapes :
         {met(column, row, matrix), met(row, column, matrix), met(matrix, matrix, row), met(column, column, row),
          met(row, row, column), met(column, row, one), met(one, row, column),
          met(sizeList{3, 1}, sizeList{1, 4}, sizeList{3, 4}), met(sizeList{3, 1}, sizeList{1, 200}, one)}) {
      checkMeeting(fma, shapes, bits);
    }
  });
}

TEST(FmaEntries, AreTwentySevenAndTakeNullPointersForAnEmptyOutput) {
  std::set<std::string> names;
  forEachTernaryRow([&](auto row) {
    names.insert(row.name);
    for (const auto road : {row.facade, row.entry, row.operation}) {
      road(nullptr, nullptr, nullptr, nullptr, 5, 0, nullptr, 1, 0, nullptr, 5, 0, nullptr, 0, 0, nullptr);
    }
  });
  EXPECT_EQ(names.size(), 27u);
}

// In every lane and remainder.
template <class A, class B, class C, class Out>
void expectFma(A x, B y, C z, Out expected) {
  for (const unsigned long n : {1UL, 7UL, 67UL}) {
    std::vector<A> a(n, x);
    std::vector<B> b(n, y);
    std::vector<C> c(n, z);
    std::vector<Out> d(n);
    half_vector::fma(a.data(), b.data(), c.data(), d.data(), n, 1, &n, n, 1, &n, n, 1, &n, n, 1, &n);
    for (const Out result : d) ASSERT_EQ(hex(result), hex(expected));
  }
}

TEST(Fma, AProductThatTheThirdOperandTakesAwayIsPlusZero) {
  expectFma(half_t{0x4200}, half_t{0x4400}, half_t{0xCA00}, half_t{0x0000});
  expectFma(half_t{0x8000}, half_t{0x3C00}, half_t{0x8000}, half_t{0x8000});
}

TEST(Fma, OfSinglesIsRoundedOnce) {
  expectFma(1.0f + 0x1p-23f, 1.0f + 0x1p-23f, -1.0f, 0x1p-22f + 0x1p-46f);
  expectFma(1.0f + 0x1p-12f, 1.0f + 0x1p-12f, 0x1p-80f, 0x1.002002p0f);  // a tie, and a little more
}

TEST(Fma, WithADoubleFactorIsFused) {
  const double x = 1.0 + 0x1p-30;
  expectFma(x, x, -1.0, 0x1p-29 + 0x1p-60);
  expectFma(half_t{0x3C00}, 65519.999, half_t{0x0000}, half_t{0x7BFF});
  expectFma(half_t{0x3C00}, 65520.0, half_t{0x0000}, half_t{0x7C00});
}

TEST(Fma, InvalidOperationsAndNaNsAreThoseOfTheDefiningUnit) {
  expectFma(half_t{0x7C00}, half_t{0x0000}, half_t{0x3C00}, half_t{0x7E00});
  expectFma(half_t{0x7C00}, half_t{0x3C00}, half_t{0xFC00}, half_t{0x7E00});
  expectFma(half_t{0x7C00}, half_t{0x0000}, half_t{0xFE00}, half_t{0x7E00});
  expectFma(half_t{0x7C00}, half_t{0x0000}, half_t{0xFC01}, half_t{0xFE00});
  expectFma(half_t{0x3C00}, half_t{0xFE00}, half_t{0x7E00}, half_t{0xFE00});
}

}  // namespace
}  // namespace zthalf
