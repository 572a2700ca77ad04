// Quotients of halves with a complex operand, as arrays: in vector lanes they have the bits of the scalar function,
// wherever in an array a pair stands. The scalar function follows its rule by arithmetic_test.cpp.
#include <gtest/gtest.h>

#include <complex>
#include <cstring>
#include <vector>

#include "scalar/complex/quotient.h"
#include "tests/support/complex_operands.h"
#include "tests/support/expect_bits.h"
#include "zthalf/half_vector.h"

namespace zthalf {
namespace {

using namespace zthalf::testing;
using complexElement = std::complex<half_t>;

template <class A, class B>
struct pairsOfOperands {
  using left = A;
  using right = B;
  std::vector<A> a;
  std::vector<B> b;

  void add(A x, B y) {
    a.push_back(x);
    b.push_back(y);
  }
  std::size_t size() const { return a.size(); }
};

std::uint16_t bare(half_t x) { return x.bits; }
zthalf::complexHalf bare(complexElement z) { return {z.real().bits, z.imag().bits}; }

template <class A, class B>
complexElement scalarQuotient(A x, B y) {
  const zthalf::complexHalf z = zthalf::quotientOf(bare(x), bare(y));
  return {half_t{z.re}, half_t{z.im}};
}

template <class A, class B>
void divide(A* a, B* b, complexElement* c, unsigned long na, unsigned long nb) {
  const unsigned long n = std::max(na, nb);
  half_vector::rdivide(a, b, c, na, 1, &na, nb, 1, &nb, n, 1, &n);
}

template <class A, class B>
void expectScalarBits(char const* what, pairsOfOperands<A, B> pairs) {
  std::vector<complexElement> c(pairs.size());
  divide(pairs.a.data(), pairs.b.data(), c.data(), c.size(), c.size());
  bitComparison compare(what);
  for (std::size_t i = 0; i < c.size(); ++i)
    compare.check(c[i], scalarQuotient(pairs.a[i], pairs.b[i]), pairs.a[i], pairs.b[i]);
}

half_t halfOf(int number) { return {half_scalar::impl::convertDoubleToHalf(number)}; }
int below(bitSource& bits, int limit) { return static_cast<int>(bits() % static_cast<unsigned>(limit)); }

// A number that meets nothing special.
template <class T>
T plainElement(unsigned long i) {
  const half_t part{static_cast<std::uint16_t>(0x3C01 + i * 37 % 0x3FF)}, other{0x4555};
  if constexpr (std::is_same_v<T, half_t>) {
    return part;
  } else {
    return {part, other};
  }
}

template <class Pair>
class ComplexQuotients : public ::testing::Test {
 public:
  using left = typename Pair::left;
  using right = typename Pair::right;
  using pairs = pairsOfOperands<left, right>;
};
using pairTypes = ::testing::Types<pairsOfOperands<complexElement, complexElement>,
                                   pairsOfOperands<complexElement, half_t>, pairsOfOperands<half_t, complexElement>>;
TYPED_TEST_SUITE(ComplexQuotients, pairTypes);

// Every pair of special elements, with parts of equal magnitude among them, and many drawn ones.
TYPED_TEST(ComplexQuotients, OfSpecialAndDrawnPairsAreTheScalarOnes) {
  typename TestFixture::pairs pairs;
  forPairsOf<typename TestFixture::left, typename TestFixture::right>(1'000'000,
                                                                      [&](auto x, auto y) { pairs.add(x, y); });
  expectScalarBits("quotient", pairs);
}

// Among plain pairs, so that what is done about a special one is seen not to touch its neighbours, at every place of a
// block of any width.
TYPED_TEST(ComplexQuotients, ASpecialPairStandsAnywhere) {
  using A = typename TestFixture::left;
  using B = typename TestFixture::right;
  std::vector<std::pair<A, B>> special;
  forPairsOf<A, B>(0, [&](A x, B y) { special.push_back({x, y}); });
  for (unsigned long place = 0; place < 128; ++place) {
    typename TestFixture::pairs pairs;
    for (unsigned long i = 0; i < 128 * 16; ++i) {
      const std::size_t chosen = (place * 977 + i / 128 * 61) % special.size();
      const bool isPlace = i % 128 == place;
      pairs.add(isPlace ? special[chosen].first : plainElement<A>(i),
                isPlace ? special[chosen].second : plainElement<B>(i));
    }
    expectScalarBits("quotient", pairs);
  }
}

// Lengths around those of blocks and vectors, written over an operand where that is as wide as the output.
TYPED_TEST(ComplexQuotients, OfAllLengthsAndInPlace) {
  using A = typename TestFixture::left;
  using B = typename TestFixture::right;
  typename TestFixture::pairs all;
  forPairsOf<A, B>(0, [&](A x, B y) { all.add(x, y); });
  bitComparison compare("quotient");
  for (unsigned long n = 1; n <= 200; ++n) {
    const auto from = static_cast<std::ptrdiff_t>(n * 7), to = from + static_cast<std::ptrdiff_t>(n);
    std::vector<A> a(all.a.begin() + from, all.a.begin() + to);
    std::vector<B> b(all.b.begin() + from, all.b.begin() + to);
    std::vector<complexElement> c(n + 1, complexElement{half_t{0x1234}, half_t{0x5678}});
    divide(a.data(), b.data(), c.data(), n, n);
    for (unsigned long i = 0; i < n; ++i) compare.check(c[i], scalarQuotient(a[i], b[i]), a[i], b[i]);
    compare.check(c[n], complexElement{half_t{0x1234}, half_t{0x5678}});
    const auto expectIn = [&](complexElement const* written) {
      EXPECT_EQ(std::memcmp(written, c.data(), n * sizeof c[0]), 0) << n << " elements in place";
    };
    if constexpr (std::is_same_v<A, complexElement>) {
      std::vector<A> both = a;
      divide(both.data(), b.data(), both.data(), n, n);
      expectIn(both.data());
    }
    if constexpr (std::is_same_v<B, complexElement>) {
      std::vector<B> both = b;
      divide(a.data(), both.data(), both.data(), n, n);
      expectIn(both.data());
    }
  }
}

// One operand for all: a compiler makes a loop of its own of that.
TYPED_TEST(ComplexQuotients, OfOneElementWithManyAreTheScalarOnes) {
  auto a = specialElements<typename TestFixture::left>::all();
  auto b = specialElements<typename TestFixture::right>::all();
  bitComparison compare("quotient");
  std::vector<complexElement> c(std::max(a.size(), b.size()));
  for (auto& x : a) {
    divide(&x, b.data(), c.data(), 1, b.size());
    for (std::size_t i = 0; i < b.size(); ++i) compare.check(c[i], scalarQuotient(x, b[i]), x, b[i]);
  }
  for (auto& y : b) {
    divide(a.data(), &y, c.data(), a.size(), 1);
    for (std::size_t i = 0; i < a.size(); ++i) compare.check(c[i], scalarQuotient(a[i], y), a[i], y);
  }
}

// Small integers: zero parts, diagonals and axes meet all the time.
TEST(ComplexQuotientsOfHalves, OfSmallIntegersAreTheScalarOnes) {
  pairsOfOperands<complexElement, complexElement> pairs;
  for (int a = -5; a <= 5; ++a) {
    for (int b = -5; b <= 5; ++b) {
      for (int c = -5; c <= 5; ++c) {
        for (int d = -5; d <= 5; ++d) pairs.add({halfOf(a), halfOf(b)}, {halfOf(c), halfOf(d)});
      }
    }
  }
  expectScalarBits("quotient", pairs);
}

// Exact ties: (a + b i) / (c + d i) with a real part of m / 2^k, where m is odd and has one bit more than a half holds;
// and beside each the nearest dividends, which make no tie.
TEST(ComplexQuotientsOfHalves, AtAndNextToTiesAreTheScalarOnes) {
  bitSource bits(302);
  pairsOfOperands<complexElement, complexElement> pairs;
  unsigned long ties = 0;
  for (unsigned long tries = 0; tries < 20'000'000 && ties < 20'000; ++tries) {
    const int c = 1 + below(bits, 7), d = 1 + below(bits, 7), m = 2049 + 2 * below(bits, 1023);
    if (c == d) continue;
    const int b = below(bits, 2048) * (1 + below(bits, 15));
    const int product = m * (c * c + d * d) - b * d;
    if (product % c != 0) continue;
    const half_t re = halfOf(product / c), im = halfOf(b);
    if (half_scalar::impl::convertHalfToDouble(re.bits) != product / c ||
        half_scalar::impl::convertHalfToDouble(im.bits) != b) {
      continue;
    }
    ++ties;
    const complexElement divisor{halfOf(c), halfOf(d)};
    for (const int step : {0, 1, -1}) {
      const half_t near{static_cast<std::uint16_t>(re.bits + step)};
      pairs.add({near, im}, divisor);
      pairs.add({near, im}, {half_t{static_cast<std::uint16_t>(divisor.real().bits + step)}, divisor.imag()});
    }
  }
  EXPECT_GE(ties, 2'000u);
  expectScalarBits("quotient", pairs);
}

}  // namespace
}  // namespace zthalf
