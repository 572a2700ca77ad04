// Powers of two arrays: every pair of element types against the steps, and the form that stops.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "tests/scalar/kernels/complex_steps.h"
#include "tests/support/binary_rows.h"
#include "tests/support/complex_operands.h"
#include "tests/support/expect_bits.h"

namespace zthalf {
namespace {

using namespace zthalf::testing;
using complexHalf = std::complex<half_t>;

template <class T>
inline constexpr bool isComplex = requires(T z) {
  z.imag();
};
template <class T>
struct partOfElement {
  using type = T;
};
template <class T>
struct partOfElement<std::complex<T>> {
  using type = T;
};
template <class A, class B>
using wideOf = std::conditional_t<std::is_same_v<typename partOfElement<A>::type, double> ||
                                      std::is_same_v<typename partOfElement<B>::type, double>,
                                  double, float>;

template <class Wide>
definedNumber<Wide> partIn(half_t x) {
  if constexpr (sizeof(Wide) == 4) {
    return half_scalar::impl::convertHalfToSingle(x.bits);
  } else {
    return half_scalar::impl::convertHalfToDouble(x.bits);
  }
}
template <class Wide, class T>
definedNumber<Wide> partIn(T x) {
  const definedNumber<T> number = x;
  return number.isSignalling() && sizeof(Wide) != sizeof(T) ? static_cast<Wide>(number.quiet().value())
                                                            : static_cast<Wide>(x);
}
template <class Wide, class T>
complex_steps::pair<Wide> in(T x) {
  if constexpr (isComplex<T>) {
    return {partIn<Wide>(x.real()), partIn<Wide>(x.imag())};
  } else {
    return {partIn<Wide>(x), Wide(0)};
  }
}
half_t narrowed(definedNumber<float> x) { return {half_scalar::impl::convertSingleToHalf(x.value())}; }
half_t narrowed(definedNumber<double> x) { return {half_scalar::impl::convertDoubleToHalf(x.value())}; }

template <class Wide>
half_t realPower(definedNumber<Wide> p, definedNumber<Wide> q) {
  return narrowed(complex_steps::real<Wide>::pow(p, q));
}

// What the power of two elements is, by the kind of its output.
template <class Out, class A, class B>
Out expectedPower(A x, B y) {
  using wide = wideOf<A, B>;
  const auto z = in<wide>(x), w = in<wide>(y);
  if constexpr (!isComplex<Out>) {
    return realPower(z.re, w.re);
  } else {
    if constexpr (!isComplex<A> && !isComplex<B>) {
      const bool leaves = z.re.value() < 0 && std::round(w.re.value()) != w.re.value();
      if (!leaves) return {realPower(z.re, w.re), half_t{0}};
    }
    const auto power = complex_steps::pow<wide>(z.re, z.im, w.re, w.im);
    return {narrowed(power.re), narrowed(power.im)};
  }
}

template <class Row>
void expectRow(Row row, unsigned long drawn) {
  using Left = typename Row::left;
  using Right = typename Row::right;
  using Out = typename Row::output;
  std::vector<Left> a;
  std::vector<Right> b;
  forPairsOf<Left, Right>(drawn, [&](Left x, Right y) {
    a.push_back(x);
    b.push_back(y);
  });
  std::vector<Out> c(a.size());
  Row::call(row.facade, a.data(), b.data(), c.data(), met({a.size()}, {b.size()}));
  bitComparison compare(row.name);
  for (std::size_t i = 0; i < c.size(); ++i) {
    if constexpr (sizeof(Left) <= 8 && sizeof(Right) <= 8) {
      compare.check(c[i], expectedPower<Out>(a[i], b[i]));
    } else {
      compare.check(c[i], expectedPower<Out>(a[i], b[i]), static_cast<std::uint32_t>(i));
    }
  }
}

template <class Visit>
unsigned forPowerRows(Visit visit) {
  unsigned rows = 0;
  forEachBinaryRow([&](auto row) {
    const std::string name = row.name;
    if (name.rfind("power", 0) != 0 && name.rfind("cplxPower", 0) != 0) return;
    ++rows;
    visit(row);
  });
  return rows;
}

TEST(PowerRows, FollowTheirSteps) {
  EXPECT_EQ(forPowerRows([](auto row) { expectRow(row, 20'000); }), 25u);
}

// The double kernels under complex powers are ours to choose: for powers up to 8 two units more or less in the last
// place of each change no half. A large power multiplies them, as it does any error of a logarithm.
TEST(PowerRows, DoNotDependOnTheLastBitsOfTheDoubleKernels) {
  unsigned long compared = 0, changed = 0;
  bitSource bits(91);
  for (int i = 0; i < 30'000; ++i) {
    const auto z = drawer<complexHalf>::draw(bits);
    const auto part = [&] { return static_cast<double>(static_cast<std::int64_t>(bits())) * 0x1p-60; };
    const std::complex<double> w = {part(), i % 4 == 0 ? 0.0 : part()};
    complex_steps::shiftOfDoubleKernels = 0;
    const auto usual = expectedPower<complexHalf>(z, w);
    for (const int shift : {-2, 2}) {
      complex_steps::shiftOfDoubleKernels = shift;
      ++compared;
      changed += bitsIn(expectedPower<complexHalf>(z, w)) != bitsIn(usual);
    }
  }
  complex_steps::shiftOfDoubleKernels = 0;
  EXPECT_EQ(compared, 60'000u);
  EXPECT_EQ(changed, 0u);
}

constexpr half_t halfOf(std::uint16_t bits) { return {bits}; }
const unsigned long one = 1;

template <class A, class B, class C>
C once(A x, B y) {
  C result;
  half_vector::power(&x, &y, &result, 1, 1, &one, 1, 1, &one, 1, 1, &one);
  return result;
}

TEST(PowerRows, NamedPowers) {
  using CH = complexHalf;
  const half_t minusEight = halfOf(0xC800), third = halfOf(0x3555);
  EXPECT_EQ((once<half_t, half_t, half_t>(minusEight, halfOf(0x4000)).bits), 0x5400);
  EXPECT_EQ((once<half_t, half_t, half_t>(minusEight, third).bits), 0xFE00);
  const CH root = once<half_t, float, CH>(minusEight, 1.0f / 3);
  EXPECT_NEAR(half_scalar::impl::convertHalfToSingle(root.real().bits), 1.0f, 0.002f);
  EXPECT_NEAR(half_scalar::impl::convertHalfToSingle(root.imag().bits), 1.732f, 0.002f);
  EXPECT_EQ(hex(once<half_t, double, CH>(halfOf(0x4800), 1.0 / 3)), hex(CH(halfOf(0x4000), halfOf(0))));
  EXPECT_EQ(hex(once<CH, CH, CH>(CH(halfOf(0), halfOf(0)), CH(halfOf(0), halfOf(0)))),
            hex(CH(halfOf(0x3C00), halfOf(0))));
  EXPECT_EQ(hex(once<CH, half_t, CH>(CH(halfOf(0x4000), halfOf(0x4200)), halfOf(0x4000))),
            hex(CH(halfOf(0xC500), halfOf(0x4A00))));
  // (NaN, 0) to the power (0, 0): the real case comes before the zero exponent.
  EXPECT_EQ(hex(once<CH, CH, CH>(CH(halfOf(0x7E00), halfOf(0)), CH(halfOf(0), halfOf(0)))),
            hex(CH(halfOf(0xFE00), halfOf(0))));
}

// The form that stops.

template <class A, class B>
bool stopping(std::vector<A> a, std::vector<B> b, std::vector<half_t>& c) {
  const unsigned long na = a.size(), nb = b.size(), nc = c.size();
  return half_vector::powerWithEarlyExit(a.data(), b.data(), c.data(), na, 1, &na, nb, 1, &nb, nc, 1, &nc);
}
std::vector<std::uint16_t> patternsOf(std::vector<half_t> const& c) {
  std::vector<std::uint16_t> patterns;
  for (const half_t x : c) patterns.push_back(x.bits);
  return patterns;
}
using patterns = std::vector<std::uint16_t>;
constexpr half_t untouched{0xABCD};
const float nanPower = std::bit_cast<float>(0x7FC00000u), infinitePower = std::numeric_limits<float>::infinity();

TEST(PowerWithEarlyExit, OfNothingIsDone) {
  std::vector<half_t> none;
  EXPECT_TRUE((stopping<half_t, float>({}, {1.0f}, none)));
  EXPECT_TRUE(half_vector::powerWithEarlyExit(static_cast<half_t*>(nullptr), static_cast<half_t*>(nullptr), nullptr, 0,
                                              0, nullptr, 0, 0, nullptr, 0, 0, nullptr));
}

TEST(PowerWithEarlyExit, StopsWhereARootIsNotReal) {
  std::vector<half_t> c(1, untouched);
  EXPECT_FALSE((stopping<half_t, float>({halfOf(0xC800)}, {1.0f / 3}, c)));
  EXPECT_EQ(patternsOf(c), patterns({0xABCD}));
  c.assign(3, untouched);
  EXPECT_FALSE((stopping<half_t, float>({halfOf(0x4400), halfOf(0xC800), halfOf(0x4400)}, {0.5f}, c)));
  EXPECT_EQ(patternsOf(c), patterns({0x4000, 0xABCD, 0xABCD})) << "what stands before is written, the rest untouched";
}

TEST(PowerWithEarlyExit, GoesOnForIntegersInfinitiesAndNaNBases) {
  std::vector<half_t> c(1, untouched);
  EXPECT_TRUE((stopping<half_t, half_t>({halfOf(0xC800)}, {halfOf(0x4000)}, c)));
  EXPECT_EQ(c[0].bits, 0x5400);
  EXPECT_TRUE((stopping<half_t, half_t>({halfOf(0xC800)}, {halfOf(0x4200)}, c)));
  EXPECT_EQ(c[0].bits, 0xE000);
  EXPECT_TRUE((stopping<half_t, float>({halfOf(0xC800)}, {infinitePower}, c)));
  EXPECT_EQ(c[0].bits, 0x7C00);
  EXPECT_TRUE((stopping<half_t, double>({halfOf(0x7E00)}, {0.5}, c)));
  EXPECT_EQ(c[0].bits, 0x7E00);
  c[0] = untouched;
  EXPECT_FALSE((stopping<half_t, float>({halfOf(0xC800)}, {nanPower}, c))) << "a NaN is no integer";
  EXPECT_EQ(c[0].bits, 0xABCD);
  EXPECT_TRUE((stopping<double, half_t>({-0.0}, {halfOf(0x3800)}, c))) << "minus zero is not negative";
  EXPECT_TRUE((stopping<float, half_t>({1.0f}, {halfOf(0x7E00)}, c)));
}

// One element on the right, one on the left, a column and a row, and equal sizes, where element 0 of the left one meets
// the whole right one.
TEST(PowerWithEarlyExit, PairsByQuotientAndRemainder) {
  const std::vector<half_t> twoToFour = {halfOf(0x4000), halfOf(0x4200), halfOf(0x4400)};
  std::vector<half_t> c(3, untouched);
  EXPECT_TRUE((stopping<half_t, half_t>(twoToFour, {halfOf(0x4000)}, c)));
  EXPECT_EQ(patternsOf(c), patterns({0x4400, 0x4880, 0x4C00}));  // 4, 9, 16
  EXPECT_TRUE((stopping<half_t, half_t>({halfOf(0x4200)}, twoToFour, c)));
  EXPECT_EQ(patternsOf(c), patterns({0x4880, 0x4EC0, 0x5510}));  // 9, 27, 81
  EXPECT_TRUE((stopping<half_t, half_t>(twoToFour, twoToFour, c)));
  EXPECT_EQ(patternsOf(c), patterns({0x4400, 0x4800, 0x4C00}));  // 2 to the powers 2, 3, 4
  c.assign(6, untouched);
  EXPECT_TRUE((stopping<half_t, float>({halfOf(0x4000), halfOf(0x4200)}, {1.0f, 2.0f, 3.0f}, c)));
  EXPECT_EQ(patternsOf(c), patterns({0x4000, 0x4400, 0x4800, 0x4200, 0x4880, 0x4EC0}));
}

// Every pair of element types gives the bits of half_scalar::power up to where it stops.
template <class A, class B>
void expectStoppingPair() {
  std::vector<A> a;
  for (const A x : specialParts<A>()) a.push_back(x);
  std::vector<B> b;
  for (const B y : specialParts<B>()) b.push_back(y);
  bitComparison compare("powerWithEarlyExit");
  for (const A x : a) {
    for (const B y : b) {
      std::vector<half_t> c(1, untouched);
      const bool done = stopping<A, B>({x}, {y}, c);
      using wide = wideOf<A, B>;
      const auto p = in<wide>(x).re.value(), q = in<wide>(y).re.value();
      const bool stops = p < 0 && std::round(q) != q;
      compare.check(done, !stops);
      compare.check(c[0], stops ? untouched : half_scalar::power(x, y));
    }
  }
}
TEST(PowerWithEarlyExit, OfAllPairsOfElementTypes) {
  expectStoppingPair<half_t, half_t>();
  expectStoppingPair<half_t, float>();
  expectStoppingPair<half_t, double>();
  expectStoppingPair<float, half_t>();
  expectStoppingPair<double, half_t>();
}

}  // namespace
}  // namespace zthalf
