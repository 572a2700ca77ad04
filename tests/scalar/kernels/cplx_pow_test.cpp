#include "scalar/kernels/cplx_pow.h"

#include "tests/scalar/kernels/complex_comparison.h"
#include "tests/scalar/kernels/complex_steps.h"

namespace zthalf::testing {
namespace {

using qsl_scalar::cplxPowDouble;
using qsl_scalar::cplxPowSingle;

template <class Wide>
complexOf<Wide> power(complexOf<Wide> z, complexOf<Wide> w) {
  if constexpr (sizeof(Wide) == 4) {
    return cplxPowSingle(z, w);
  } else {
    return cplxPowDouble(z, w);
  }
}

template <class Wide>
class powers {
 public:
  void check(complexOf<Wide> z, complexOf<Wide> w) {
    using n = definedNumber<Wide>;
    compare_.check(power(z, w), complex_steps::pow<Wide>(n(z.re), n(z.im), n(w.re), n(w.im)), z, w);
  }

 private:
  complexComparison<Wide> compare_{sizeof(Wide) == 4 ? "cplxPowSingle" : "cplxPowDouble"};
};

std::string shown(complexOf<float> z) { return hex(wordsOf(z)); }
std::string single(complexOf<float> z, complexOf<float> w) { return shown(cplxPowSingle(z, w)); }
std::string single(complexOf<double> z, complexOf<double> w) {
  const complexOf<double> result = cplxPowDouble(z, w);
  return shown({static_cast<float>(result.re), static_cast<float>(result.im)});
}
constexpr double inf = std::numeric_limits<double>::infinity();
const double nan = std::bit_cast<double>(0x7FF8000000000000u);

// Both precisions have the same cases.
template <class Wide>
void expectNamedPowers() {
  using z = complexOf<Wide>;
  const auto of = [](double re, double im) { return z{static_cast<Wide>(re), static_cast<Wide>(im)}; };
  const complexOf<float> negativeNaNs = {std::bit_cast<float>(0xFFC00000u), std::bit_cast<float>(0xFFC00000u)};
  EXPECT_EQ(single(of(0, 1), of(2, 0)), shown({-1, 0})) << "a square";
  EXPECT_EQ(single(of(2, 3), of(2, 0)), shown({-5, 12}));
  EXPECT_EQ(single(of(-3, 0), of(2, 0)), shown({9, 0}));
  EXPECT_EQ(single(of(2, 0), of(-1, 0)), shown({0.5, 0})) << "both real";
  EXPECT_EQ(single(of(-8, 0), of(3, 0)), shown({-512, 0})) << "a negative number to an integer";
  EXPECT_EQ(single(of(-inf, 0), of(-0.25, 0)), shown({0, 0})) << "-infinity to a negative power stays real";
  EXPECT_EQ(single(of(0, 0), of(0, 0)), shown({1, 0}));
  EXPECT_EQ(single(of(2, 3), of(0, 0)), shown({1, 0}));
  EXPECT_EQ(single(of(nan, 0), of(0, 0)), shown({std::bit_cast<float>(0xFFC00000u), 0})) << "by the real power";
  EXPECT_EQ(single(of(nan, 1), of(0, 0)), shown(negativeNaNs));
  EXPECT_EQ(single(of(1, nan), of(-0.0, 0)), shown(negativeNaNs));
  EXPECT_EQ(single(of(0, 0), of(1, inf)), shown(negativeNaNs)) << "zero turned for ever";
  EXPECT_EQ(single(of(1, 2), of(1, 0)), shown({1, 2})) << "one factor";
  EXPECT_EQ(single(of(1, 2), of(3, 0)), shown({-11, -2}));
  EXPECT_EQ(single(of(0, 2), of(-1, 0)), shown({0, -0.5})) << "turned round, imaginary";
  EXPECT_EQ(single(of(1, 1), of(-1, 0)), shown({0.5, -0.5})) << "equal parts";
  EXPECT_EQ(single(of(4, 3), of(-1, 0)), shown({0.16f, -0.12f})) << "the real part is larger";
  EXPECT_EQ(single(of(-4, 0), of(0.5, 0)), shown({0, 2})) << "the root";
  EXPECT_EQ(single(of(-4, 0), of(2.5, 0)), shown({0, 32})) << "a square times the root";
}
TEST(CplxPow, NamedPowersInSinglePrecision) { expectNamedPowers<float>(); }
TEST(CplxPow, NamedPowersInDoublePrecision) { expectNamedPowers<double>(); }

// Every special part of a base and of a power crossed: 65,536 meetings.
template <class Wide>
void expectSpecialMeetings() {
  powers<Wide> expect;
  for (const std::complex<Wide> z : specialElements<std::complex<Wide>>::all()) {
    for (const std::complex<Wide> w : specialElements<std::complex<Wide>>::all()) {
      expect.check({z.real(), z.imag()}, {w.real(), w.imag()});
    }
  }
}
TEST(CplxPowSingle, EqualsItsStepsOnSpecialMeetings) { expectSpecialMeetings<float>(); }
TEST(CplxPowDouble, EqualsItsStepsOnSpecialMeetings) { expectSpecialMeetings<double>(); }

// Powers of every kind, for bases of moderate and of any size: 2, 0, whole ones, odd halves, other fractions, complex
// ones, infinite ones and NaNs, with both signs.
template <class Wide>
void expectDrawnPowers(std::uint64_t count) {
  powers<Wide> expect;
  for (std::uint64_t i = 0; i < count; ++i) {
    const std::uint64_t random = scrambled(5 * i);
    const auto part = [](std::uint64_t word, int places) {
      return std::ldexp(static_cast<Wide>(static_cast<std::int32_t>(word)), -places);
    };
    const auto any = pairAt<Wide>(i);
    const complexOf<Wide> near = {part(random, 29), i % 8 == 0 ? Wide(0) : part(random >> 32, 29)};
    const std::uint64_t other = scrambled(5 * i + 1);
    const Wide whole = static_cast<Wide>(static_cast<std::int32_t>(other % 61) - 30);
    const Wide fraction = part(other, 28);
    for (const complexOf<Wide> z : {near, complexOf<Wide>{any.first, any.second}}) {
      expect.check(z, {whole, 0});
      expect.check(z, {whole + Wide(0.5), -Wide(0)});
      expect.check(z, {fraction, 0});
      expect.check(z, {fraction, part(other >> 32, 28)});
      expect.check(z, {0, part(other >> 32, 28)});
      expect.check(z, {any.second, any.first});
    }
  }
}
TEST(CplxPowSingle, EqualsItsStepsOnDrawnPowers) { expectDrawnPowers<float>(60000); }
TEST(CplxPowDouble, EqualsItsStepsOnDrawnPowers) { expectDrawnPowers<double>(30000); }

// All special halves crossed, which is where the scalar and array functions work.
TEST(CplxPowSingle, EqualsItsStepsOnSpecialHalves) {
  powers<float> expect;
  const auto widened = [](std::complex<half_t> z) { return exactly<float>(complexHalf{z.real().bits, z.imag().bits}); };
  for (const std::complex<half_t> z : specialElements<std::complex<half_t>>::all()) {
    for (const std::complex<half_t> w : specialElements<std::complex<half_t>>::all()) {
      expect.check(widened(z), widened(w));
    }
  }
}

}  // namespace
}  // namespace zthalf::testing
