#include "scalar/kernels/cplx_multiply.h"

#include "tests/scalar/kernels/complex_comparison.h"
#include "tests/scalar/kernels/complex_steps.h"

namespace zthalf::testing {
namespace {

using qsl_scalar::cmulSingle;

complexOf<float> word(std::uint32_t re, std::uint32_t im) {
  return {std::bit_cast<float>(re), std::bit_cast<float>(im)};
}
constexpr float inf = std::numeric_limits<float>::infinity();
constexpr float most = std::numeric_limits<float>::max();

std::string product(complexOf<float> x, complexOf<float> y) { return hex(wordsOf(cmulSingle(x, y))); }
std::string shown(complexOf<float> z) { return hex(wordsOf(z)); }

TEST(CmulSingle, NamedProducts) {
  EXPECT_EQ(product({1, 2}, {3, 4}), shown({-5, 10}));
  EXPECT_EQ(product({inf, 0}, {2, 0}), shown({inf, 0})) << "two reals have one term";
  EXPECT_EQ(product({2, -0.0f}, {3, 0}), shown({6, 0})) << "and an imaginary part of +0";
  EXPECT_EQ(product({inf, 0}, {0, 2}), shown({0, inf})) << "a real and an imaginary one as well, when repaired";
  EXPECT_EQ(product({0, 2}, {inf, 0}), shown({0, inf}));
  EXPECT_EQ(product({inf, 1}, {1, 1}), shown({inf, inf}));
  EXPECT_EQ(product({most, most}, {2, 2}), shown({0, inf})) << "infinity minus infinity of finite factors is a zero";
  EXPECT_EQ(product({most, most}, {1, 1}), shown({0, inf}));
  EXPECT_EQ(product({most, 1}, {most, most}), shown({inf, inf}));
  EXPECT_EQ(product(word(0x7FC00001, 0x3F800000), {1, 1}), hex(wordsOf(word(0x7FC00001, 0x7FC00001))));
}

// With an infinite factor beside one that is real or imaginary the bracket may vanish, and the terms are taken again.
TEST(CmulSingle, InfiniteOnAnAxis) {
  EXPECT_EQ(product({inf, 1}, {0, -0.0f}), hex(wordsOf(word(0x7FC00000, 0x7FC00000)))) << "times zero: no number";
  EXPECT_EQ(product({inf, 1}, {0, 2}), shown({-2, inf}));
  EXPECT_EQ(product({inf, -inf}, {0, 2}), shown({inf, inf}));
}

using numbers = complex_steps::pair<float>;

template <class Wide>
void expectProducts(std::uint64_t drawn) {
  complexComparison<Wide> compare("cmul");
  const auto check = [&](complexOf<Wide> x, complexOf<Wide> y) {
    using n = definedNumber<Wide>;
    const auto expected = complex_steps::multiply<Wide>(n(x.re), n(x.im), n(y.re), n(y.im));
    const complexOf<Wide> result = onCalledUnit([=]<class Unit>(Unit) { return qsl_scalar::cmul<Unit>(x, y); });
    compare.check(result, expected, x, y);
  };
  for (const std::complex<Wide> x : specialElements<std::complex<Wide>>::all()) {
    for (const std::complex<Wide> y : specialElements<std::complex<Wide>>::all()) {
      check({x.real(), x.imag()}, {y.real(), y.imag()});
    }
  }
  for (std::uint64_t i = 0; i < drawn; ++i) {
    const auto x = pairAt<Wide>(2 * i), y = pairAt<Wide>(2 * i + 1), near = pairAt<Wide>(4 * i + 1);
    check({x.first, x.second}, {y.first, y.second});
    check({x.first, x.second}, {near.first, near.second});
    check({near.first, near.second}, {near.second, near.first});
  }
}

TEST(Cmul, EqualsItsStepsInSinglePrecision) { expectProducts<float>(quickComplex); }
TEST(Cmul, EqualsItsStepsInDoublePrecision) { expectProducts<double>(quickComplex); }

template <class Wide>
void expectSquares() {
  expectSteps<Wide>(
      "csquare", quickComplex,
      [](complexOf<Wide> z) { return onCalledUnit([=]<class Unit>(Unit) { return qsl_scalar::csquare<Unit>(z); }); },
      complex_steps::square<Wide>);
}
TEST(Csquare, EqualsItsSteps) {
  expectSquares<float>();
  expectSquares<double>();
}

// The repair itself, on products whose parts are made bad by hand: branches that no plain product reaches.
TEST(CmulRecover, EqualsItsStepsForAnyPlainProduct) {
  complexComparison<float> compare("cmulRecover");
  using n = definedNumber<float>;
  const auto parts = specialParts<float>();
  for (const std::complex<float> x : specialElements<std::complex<float>>::all()) {
    for (const std::complex<float> y : specialElements<std::complex<float>>::all()) {
      for (const float bad : {inf, -inf, std::bit_cast<float>(0xFFC00000u), 1.0f}) {
        n re = bad, im = bad;
        complex_steps::recover<float>(x.real(), x.imag(), y.real(), y.imag(), re, im);
        const complexOf<float> a = {x.real(), x.imag()}, b = {y.real(), y.imag()};
        compare.check(qsl_scalar::cmulRecover(a, b, {bad, bad}), numbers{re, im}, a, b);
      }
    }
  }
  EXPECT_FALSE(parts.empty());
}

}  // namespace
}  // namespace zthalf::testing
