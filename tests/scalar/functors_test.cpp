// The functors of conversion, bit work, rounding and spacing: shells that must pass on what the scalar bodies give, and
// the rules for complex elements.
#include <gtest/gtest.h>

#include <complex>
#include <limits>
#include <type_traits>

#include "scalar/functors/arithmetic_functors.h"
#include "scalar/functors/cast_functor.h"
#include "scalar/functors/elementwise_functors.h"
#include "scalar/functors/rounding_functors.h"
#include "scalar/functors/sign_and_class_functors.h"
#include "scalar/functors/spacing_functors.h"
#include "tests/support/expect_bits.h"
#include "tests/support/patterns.h"
#include "tests/support/reference.h"
#include "zthalf/half_scalar.h"

namespace zthalf {
namespace {

using namespace half::scalar::emulated;
using complexHalf = std::complex<fp16binary_t>;
using testing::bitComparison;

template <class Op, class Combiner, unsigned long Threshold, unsigned long Grain>
using partwise = half::utils::ElementwiseUnaryOpFtor<Op, Combiner, Threshold, Grain>;

using isnanOfBoth = partwise<realOps::isnanFtor, half::utils::boolOrFtor, 40960, 4096>;
using isinfOfBoth = partwise<realOps::isinfFtor, half::utils::boolOrFtor, 40960, 4096>;
using isfiniteOfBoth = partwise<realOps::isfiniteFtor, half::utils::boolAndFtor, 40960, 4096>;
using ceilOfBoth = partwise<realOps::ceilFtor, half::utils::combineRealComplexFtor, 2048, 128>;
using floorOfBoth = partwise<realOps::floorFtor, half::utils::combineRealComplexFtor, 2048, 128>;
using fixOfBoth = partwise<realOps::fixFtor, half::utils::combineRealComplexFtor, 2048, 128>;
using roundOfBoth = partwise<realOps::roundFtor, half::utils::combineRealComplexFtor, 2048, 128>;

complexHalf complexOf(std::uint16_t real, std::uint16_t imaginary) { return {{real}, {imaginary}}; }

std::uint16_t flipped(std::uint16_t h) { return static_cast<std::uint16_t>(h + 0x8000); }
std::uint16_t flippedUnlessZero(std::uint16_t h) { return h == 0x0000 || h == 0x8000 ? 0x0000 : flipped(h); }

TEST(Functors, HaveNoState) {
  EXPECT_TRUE((std::is_empty_v<uminusFtor> && std::is_empty_v<conjFtor> && std::is_empty_v<realFtor>));
  EXPECT_TRUE((std::is_empty_v<imagFtor> && std::is_empty_v<absFtor> && std::is_empty_v<realToComplexFtor>));
  EXPECT_TRUE((std::is_empty_v<signFtor> && std::is_empty_v<epsFtor> && std::is_empty_v<ulpFtor>));
  EXPECT_TRUE((std::is_empty_v<isnanOfBoth> && std::is_empty_v<ceilOfBoth>));
  EXPECT_TRUE((std::is_empty_v<castToFtor<float, fp16binary_t, void>>));
}

TEST(Functors, OnRealElementsAreTheScalarFunctions) {
  bitComparison compare("real functor");
  testing::forEveryPattern([&](std::uint16_t h) {
    const fp16binary_t x{h};
    compare.check(uminusFtor{}(x), flipped(h), h);
    compare.check(absFtor{}(x), half_scalar::abs({h}), h);
    compare.check(signFtor{}(x), half_scalar::sign({h}), h);
    compare.check(epsFtor{}(x), half_scalar::eps({h}), h);
    compare.check(ceilOfBoth{}(x), half_scalar::ceil({h}), h);
    compare.check(floorOfBoth{}(x), half_scalar::floor({h}), h);
    compare.check(fixOfBoth{}(x), half_scalar::fix({h}), h);
    compare.check(roundOfBoth{}(x), half_scalar::round({h}), h);
    compare.check(isnanOfBoth{}(x), half_scalar::isnan({h}), h);
    compare.check(isinfOfBoth{}(x), half_scalar::isinf({h}), h);
    compare.check(isfiniteOfBoth{}(x), half_scalar::isfinite({h}), h);
    compare.check(realToComplexFtor{}(x), complexOf(h, 0x0000), h);
  });
}

TEST(Functors, OnComplexElementsFollowTheirRules) {
  bitComparison bits("complex functor");
  bitComparison classes("complex class");
  testing::forEveryCuratedPair([&](std::uint16_t re, std::uint16_t im) {
    const complexHalf z = complexOf(re, im);
    bits.check(uminusFtor{}(z), complexOf(flipped(re), flippedUnlessZero(im)), re, im);
    bits.check(conjFtor{}(z), complexOf(re, flippedUnlessZero(im)), re, im);
    classes.check(isnanOfBoth{}(z), reference::isNaN(re) || reference::isNaN(im), re, im);
    classes.check(isinfOfBoth{}(z), (re & 0x7FFF) == 0x7C00 || (im & 0x7FFF) == 0x7C00, re, im);
    classes.check(isfiniteOfBoth{}(z), (re & 0x7FFF) < 0x7C00 && (im & 0x7FFF) < 0x7C00, re, im);
  });
}

TEST(Functors, OnComplexElementsWorkPartByPart) {
  bitComparison compare("complex functor");
  testing::forEveryPattern([&](std::uint16_t re) {
    const auto im = static_cast<std::uint16_t>(re * 40503u + 1);  // odd, so every pattern comes once
    const complexHalf z = complexOf(re, im);
    compare.check(realFtor{}(z), re, re, im);
    compare.check(imagFtor{}(z), im, re, im);
    compare.check(ceilOfBoth{}(z), std::complex<half_t>(half_scalar::ceil({re}), half_scalar::ceil({im})), re, im);
    compare.check(floorOfBoth{}(z), std::complex<half_t>(half_scalar::floor({re}), half_scalar::floor({im})), re, im);
    compare.check(fixOfBoth{}(z), std::complex<half_t>(half_scalar::fix({re}), half_scalar::fix({im})), re, im);
    compare.check(roundOfBoth{}(z), std::complex<half_t>(half_scalar::round({re}), half_scalar::round({im})), re, im);
  });
}

TEST(Uminus, OfAComplexValueHasNoNegativeZeroImaginaryPart) {
  EXPECT_EQ(testing::hex(uminusFtor{}(complexOf(0x3C00, 0x8000))), testing::hex(complexOf(0xBC00, 0x0000)));
  EXPECT_EQ(testing::hex(uminusFtor{}(complexOf(0x3C00, 0x0000))), testing::hex(complexOf(0xBC00, 0x0000)));
  EXPECT_EQ(testing::hex(uminusFtor{}(complexOf(0x0000, 0x3C00))), testing::hex(complexOf(0x8000, 0xBC00)))
      << "the real part keeps its flip";
  EXPECT_EQ(testing::hex(uminusFtor{}(fp16binary_t{0x7E00})), "0xFE00");
}

TEST(Conj, KeepsAnImaginaryZeroPositive) {
  EXPECT_EQ(testing::hex(conjFtor{}(complexOf(0x3C00, 0x0000))), testing::hex(complexOf(0x3C00, 0x0000)));
  EXPECT_EQ(testing::hex(conjFtor{}(complexOf(0x3C00, 0x8000))), testing::hex(complexOf(0x3C00, 0x0000)));
}

TEST(ClassOfComplex, JudgesBothParts) {
  const complexHalf z = complexOf(0x3C00, 0x7E00);
  EXPECT_FALSE(isfiniteOfBoth{}(z));
  EXPECT_TRUE(isnanOfBoth{}(z));
  EXPECT_FALSE(isinfOfBoth{}(z));
  EXPECT_TRUE(isinfOfBoth{}(complexOf(0x7E00, 0xFC00)));
}

TEST(RealToComplex, PassesANaNAndAddsPlusZero) {
  EXPECT_EQ(testing::hex(realToComplexFtor{}(fp16binary_t{0xFE01})), testing::hex(complexOf(0xFE01, 0x0000)));
}

TEST(Combiners, TakeTheResultsOfTheParts) {
  for (const bool first : {false, true}) {
    for (const bool second : {false, true}) {
      EXPECT_EQ(half::utils::boolOrFtor{}(first, second), first || second);
      EXPECT_EQ(half::utils::boolAndFtor{}(first, second), first && second);
      EXPECT_EQ(half::utils::getFirstArgFtor{}(first, second), first);
    }
  }
  const complexHalf z = half::utils::combineRealComplexFtor{}(fp16binary_t{0x3C00}, fp16binary_t{0x8000});
  EXPECT_EQ(testing::hex(z), testing::hex(complexOf(0x3C00, 0x8000)));
}

TEST(Plus, IsTheOperatorOfHalves) {
  bitComparison compare("plus");
  for (const std::uint16_t a : testing::randomPatterns(500, 6)) {
    for (const std::uint16_t b : testing::curatedPatterns()) {
      compare.check(plusFtor{}(fp16binary_t{a}, fp16binary_t{b}), half_t{a} + half_t{b}, a, b);
    }
  }
}

template <class T>
class Cast : public ::testing::Test {};
using castTypes = ::testing::Types<float, double, unsigned char, signed char, unsigned short, short, unsigned int, int,
                                   unsigned long long, long long>;
TYPED_TEST_SUITE(Cast, castTypes);

template <class T>
T fromHalf(std::uint16_t h) {
  if constexpr (std::is_same_v<T, float>) {
    return reference::widenedToSingle(h);
  } else if constexpr (std::is_same_v<T, double>) {
    return reference::widenedToDouble(h);
  } else {
    return reference::toInteger<T>(h);
  }
}

TYPED_TEST(Cast, FromHalfIsTheConversion) {
  bitComparison compare("half to element");
  testing::forEveryPattern([&](std::uint16_t h) {
    compare.check(castToFtor<fp16binary_t, TypeParam, void>{}({h}), fromHalf<TypeParam>(h), h);
  });
}

TYPED_TEST(Cast, ToHalfIsTheConversion) {
  bitComparison compare("element to half");
  testing::forEveryPattern([&](std::uint16_t h) {
    const TypeParam value = fromHalf<TypeParam>(h);
    // Exact in double for all these types but for 64-bit limits, which are far beyond the range.
    compare.check(castToFtor<TypeParam, fp16binary_t, void>{}(value), reference::narrowed(static_cast<double>(value)),
                  value);
  });
}

TEST(CastOfHalves, KeepsThePattern) {
  EXPECT_EQ((castToFtor<fp16binary_t, fp16binary_t, void>::grain), 128u);
  bitComparison compare("half to half");
  testing::forEveryPattern(
      [&](std::uint16_t h) { compare.check(castToFtor<fp16binary_t, fp16binary_t, void>{}({h}), fp16binary_t{h}, h); });
}

TEST(CastLogical, TakesEveryByteAndGivesABool) {
  for (unsigned byte = 0; byte <= 0xFF; ++byte) {
    const fp16binary_t h = castToFtor<bool, fp16binary_t, void>{}(static_cast<unsigned char>(byte));
    EXPECT_EQ(h.bits, byte == 0 ? 0x0000 : 0x3C00) << byte;
  }
  testing::forEveryPattern([](std::uint16_t h) {
    ASSERT_EQ((castToFtor<fp16binary_t, bool, void>{}({h})), (h & 0x7FFF) != 0) << testing::hex(h);
  });
}

TEST(UlpFunctor, OfRealElementsIsTheScalarFunction) {
  bitComparison compare("ulp");
  for (const std::uint16_t a : testing::randomPatterns(300, 7)) {
    for (const std::uint16_t b : testing::randomPatterns(300, 8)) {
      const float single = reference::widenedToSingle(b) * 1.0001f;
      compare.check(ulpFtor{}(fp16binary_t{a}, fp16binary_t{b}), half_scalar::ulp(half_t{a}, half_t{b}), a, b);
      compare.check(ulpFtor{}(fp16binary_t{a}, single), half_scalar::ulp(half_t{a}, single), a, b);
      compare.check(ulpFtor{}(double{single}, fp16binary_t{a}), half_scalar::ulp(double{single}, half_t{a}), b, a);
    }
  }
}

TEST(UlpFunctor, OfComplexElementsIsTheLargerDistance) {
  const complexHalf z = complexOf(0x3C00, 0x4000);
  EXPECT_EQ(ulpFtor{}(z, complexOf(0x3C03, 0x4001)), 3.0);
  EXPECT_EQ(ulpFtor{}(z, complexOf(0x3C01, 0x4002)), 2.0);
  EXPECT_EQ(ulpFtor{}(z, complexOf(0x3C01, 0x7E00)), std::numeric_limits<double>::infinity());
  EXPECT_EQ(ulpFtor{}(complexOf(0x3C00, 0x8000), fp16binary_t{0x3C00}), 0.5) << "a real operand has part plus zero";
  EXPECT_EQ(ulpFtor{}(fp16binary_t{0x3C01}, complexOf(0x3C00, 0x0000)), 1.0);
}

}  // namespace
}  // namespace zthalf
