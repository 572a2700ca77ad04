// Functions of single complex halves.
#include <gtest/gtest.h>

#include <cmath>

#include "scalar/kernels/hypot_single.h"
#include "tests/support/complex_operands.h"
#include "tests/support/defined_number.h"
#include "tests/support/exact.h"
#include "tests/support/expect_bits.h"
#include "zthalf/half_scalar.h"

namespace zthalf {
namespace {

using namespace zthalf::testing;
using complexHalf = std::complex<half_t>;
using single = definedNumber<float>;

complexHalf of(std::uint16_t re, std::uint16_t im) { return {half_t{re}, half_t{im}}; }
single widened(half_t x) { return half_scalar::impl::convertHalfToSingle(x.bits); }
half_t narrowed(single x) { return {half_scalar::impl::convertSingleToHalf(x.value())}; }

template <class Visit>
void forComplexValues(Visit visit) {
  for (const complexHalf z : specialElements<complexHalf>::all()) visit(z);
  bitSource bits(311);
  for (int i = 0; i < 1'000'000; ++i) visit(drawer<complexHalf>::draw(bits));
}

single root(single x) { return x.isNaN() ? x.quiet() : single(std::sqrt(x.value())); }

// Step by step, with the root moved off a tie that it only seems to be.
half_t magnitudeStepByStep(complexHalf z) {
  const single A = widened(z.real()) * widened(z.real()), B = widened(z.imag()) * widened(z.imag());
  const single s = A + B;
  const single e = ((s - A) - B) + ((s - B) - A);
  single r = root(s);
  if (!e.isNaN() && !e.isZero() && !s.isInfinite()) {
    const single d = s - r * r;
    const std::uint32_t low = r.bits & 0x3FFF;
    if (low == 0x1000 && e < d) {
      r = single::ofBits(r.bits | 1);
    } else if (low == 0x3000 && e > d) {
      r = single::ofBits(r.bits - 1);
    }
  }
  return narrowed(r);
}

TEST(ComplexFunctions, AbsFollowsItsSteps) {
  bitComparison compare("abs");
  forComplexValues([&](complexHalf z) { compare.check(half_scalar::abs(z), magnitudeStepByStep(z), z); });
}

// m is the nearest half to the root if (m - u/2)^2 < re^2 + im^2 < (m + u/2)^2, all in integers of half units.
TEST(ComplexFunctions, AbsIsTheExactRootRoundedOnce) {
  bitSource bits(312);
  unsigned long compared = 0;
  for (int i = 0; i < 2'000'000; ++i) {
    const auto re = static_cast<std::uint16_t>(bits() >> 48), im = static_cast<std::uint16_t>(bits() >> 48);
    if (!exact::isFinite(re) || !exact::isFinite(im)) continue;
    const std::uint16_t m = half_scalar::abs(of(re, im)).bits;
    if (m < 0x0400 || m >= 0x7BFF) continue;
    ++compared;
    const auto squared = [](std::int64_t x) { return static_cast<exact::wideInteger>(static_cast<__int128>(x) * x); };
    const exact::wideInteger sum = 4 * (squared(exact::unitsOf(re)) + squared(exact::unitsOf(im)));
    const auto between = [](std::uint16_t low) { return exact::unitsOf(low) + exact::unitsOf(low + 1); };
    const bool isEven = m % 2 == 0;
    ASSERT_TRUE(isEven ? squared(between(m - 1)) <= sum && sum <= squared(between(m))
                       : squared(between(m - 1)) < sum && sum < squared(between(m)))
        << hex(of(re, im)) << " gives " << std::hex << m;
  }
  EXPECT_GT(compared, 1'000'000u);
}

TEST(ComplexFunctions, AbsOfNamedValues) {
  EXPECT_EQ(half_scalar::abs(of(0x4200, 0x4400)).bits, 0x4500);
  EXPECT_EQ(half_scalar::abs(of(0xFC00, 0x7E00)).bits, 0x7E00);
  EXPECT_EQ(half_scalar::abs(of(0xFE00, 0x7E00)).bits, 0xFE00);
  EXPECT_EQ(half_scalar::abs(of(0x7C00, 0xFC01)).bits, 0xFE00);
  EXPECT_EQ(half_scalar::abs(of(0x7BFF, 0x7BFF)).bits, 0x7C00);
  EXPECT_EQ(half_scalar::abs(of(0x8000, 0x8000)).bits, 0x0000);
}

TEST(ComplexFunctions, EpsIsThatOfTheMagnitude) {
  bitComparison compare("eps");
  forComplexValues([&](complexHalf z) {
    const std::uint16_t m = magnitudeStepByStep(z).bits & 0x7FFF;
    const int field = m >> 10;
    const std::uint16_t expected = field == 31   ? 0x7E00
                                   : field <= 1  ? 0x0001
                                   : field <= 10 ? static_cast<std::uint16_t>(1 << (field - 1))
                                                 : static_cast<std::uint16_t>((field - 10) << 10);
    compare.check(half_scalar::eps(z), half_t{expected}, z);
  });
}

TEST(ComplexFunctions, SignIsTheDirection) {
  bitComparison compare("sign");
  forComplexValues([&](complexHalf z) {
    const single re = widened(z.real()), im = widened(z.imag());
    complexHalf expected;
    if (im.isZero()) {
      const single real = re < single(0.0f) ? single(-1.0f) : re > single(0.0f) ? single(1.0f) : re + single(0.0f);
      expected = {narrowed(real), half_t{0}};
    } else {
      const single h = qsl_scalar::hypotSingle(re.value(), im.value());
      expected = {narrowed(re / h), narrowed(im / h)};
    }
    compare.check(half_scalar::sign(z), expected, z);
  });
  EXPECT_EQ(hex(half_scalar::sign(of(0, 0))), hex(of(0, 0)));
  EXPECT_EQ(hex(half_scalar::sign(of(0x8000, 0))), hex(of(0, 0)));
  EXPECT_EQ(hex(half_scalar::sign(of(0x4200, 0x4400))), hex(of(0x38CD, 0x3A66)));  // 0.6, 0.8
  EXPECT_EQ(hex(half_scalar::sign(of(0xC000, 0))), hex(of(0xBC00, 0)));
}

TEST(ComplexFunctions, RoundingActsOnEachPart) {
  forComplexValues([](complexHalf z) {
    using namespace half_scalar;
    ASSERT_EQ(bitsIn(ceil(z)), bitsIn(complexHalf(ceil(z.real()), ceil(z.imag()))));
    ASSERT_EQ(bitsIn(floor(z)), bitsIn(complexHalf(floor(z.real()), floor(z.imag()))));
    ASSERT_EQ(bitsIn(fix(z)), bitsIn(complexHalf(fix(z.real()), fix(z.imag()))));
    ASSERT_EQ(bitsIn(round(z)), bitsIn(complexHalf(round(z.real()), round(z.imag()))));
  });
}

TEST(ComplexFunctions, ConjugateAndNegation) {
  forComplexValues([](complexHalf z) {
    const bool isReal = (z.imag().bits & 0x7FFF) == 0;
    const auto im = static_cast<std::uint16_t>(isReal ? 0 : z.imag().bits ^ 0x8000);
    ASSERT_EQ(bitsIn(half_scalar::conj(z)), bitsIn(of(z.real().bits, im)));
    ASSERT_EQ(bitsIn(half_scalar::uminus(z)), bitsIn(of(z.real().bits ^ 0x8000, im)));
  });
  EXPECT_EQ(hex(half_scalar::conj(of(0x3C00, 0x8000))), hex(of(0x3C00, 0x0000)));
}

TEST(ComplexFunctions, Classification) {
  forComplexValues([](complexHalf z) {
    const auto nan = [](half_t x) { return (x.bits & 0x7FFF) > 0x7C00; };
    const auto infinite = [](half_t x) { return (x.bits & 0x7FFF) == 0x7C00; };
    ASSERT_EQ(half_scalar::isnan(z), nan(z.real()) || nan(z.imag()));
    ASSERT_EQ(half_scalar::isinf(z), infinite(z.real()) || infinite(z.imag()));
    ASSERT_EQ(half_scalar::isfinite(z), (z.real().bits & 0x7C00) != 0x7C00 && (z.imag().bits & 0x7C00) != 0x7C00);
  });
}

TEST(ComplexFunctions, HypotIsThatOfTheTwoRoundedMagnitudes) {
  bitComparison compare("hypot");
  forPairsOf<complexHalf, complexHalf>(200'000, [&](complexHalf x, complexHalf y) {
    compare.check(half_scalar::hypot(x, y), half_scalar::hypot(magnitudeStepByStep(x), magnitudeStepByStep(y)), x, y);
  });
}

}  // namespace
}  // namespace zthalf
