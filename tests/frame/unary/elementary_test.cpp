// The real functions of one half on arrays, against the scalar functions.
#include <gtest/gtest.h>

#include <complex>

#include "scalar/logarithm.h"
#include "tests/support/array_form.h"
#include "zthalf/detail/entries.h"
#include "zthalf/half_scalar.h"
#include "zthalf/half_vector.h"

namespace zthalf::testing {
namespace {

#define ZTHALF_ELEMENTARY_ENTRIES(X) \
  ZTHALF_ROOT_ENTRIES(X)             \
  ZTHALF_EXPONENTIAL_ENTRIES(X)      \
  ZTHALF_LOGARITHM_ENTRIES(X)        \
  ZTHALF_TRIGONOMETRIC_ENTRIES(X)    \
  ZTHALF_ARC_TANGENT_ENTRIES(X)      \
  ZTHALF_HYPERBOLIC_ENTRIES(X)       \
  ZTHALF_BOUNDED_DOMAIN_ENTRIES(X)

#define ZTHALF_TEST_ARRAY_FORM(entry, facade, In, Out, ...) \
  TEST(ElementaryArrays, entry) { arrayForm(#entry, half_vector::facade, half_scalar::facade).expectAll(); }
ZTHALF_ELEMENTARY_ENTRIES(ZTHALF_TEST_ARRAY_FORM)

// Where the stopping forms stop, said once more.
bool isNegativeNumber(half_t x) { return x < half_t{0x0000}; }
bool isBelowMinusOne(half_t x) { return x < half_t{0xBC00}; }
bool isBeyondOne(half_t x) { return half_scalar::abs(x) > half_t{0x3C00}; }

#define ZTHALF_TEST_STOPPING_FORM(function, stops)                                                           \
  TEST(StoppingArrays, function) {                                                                           \
    stoppingForm(#function, half_vector::function##WithEarlyExit, half_scalar::function, stops).expectAll(); \
  }
ZTHALF_TEST_STOPPING_FORM(sqrt, isNegativeNumber)
ZTHALF_TEST_STOPPING_FORM(log, isNegativeNumber)
ZTHALF_TEST_STOPPING_FORM(log1p, isBelowMinusOne)
ZTHALF_TEST_STOPPING_FORM(log2, isNegativeNumber)
ZTHALF_TEST_STOPPING_FORM(log10, isNegativeNumber)
ZTHALF_TEST_STOPPING_FORM(asin, isBeyondOne)
ZTHALF_TEST_STOPPING_FORM(acos, isBeyondOne)
ZTHALF_TEST_STOPPING_FORM(atanh, isBeyondOne)

TEST(StoppingArrays, AnEmptyOneIsDone) {
#define ZTHALF_TEST_EMPTY(entry, facade, In, Out, function) EXPECT_TRUE(half_vector::facade(nullptr, nullptr, 0));
  ZTHALF_EARLY_EXIT_ENTRIES(ZTHALF_TEST_EMPTY)
#undef ZTHALF_TEST_EMPTY
}

TEST(SqrtWithEarlyExit, StopsAtANegativeNumberAndLeavesTheRestAlone) {
  half_t source[] = {{0x4400}, {0xBC00}, {0x4880}};  // 4, -1, 9
  half_t result[] = {sentinel, sentinel, sentinel};
  EXPECT_FALSE(half_vector::sqrtWithEarlyExit(source, result, 3));
  EXPECT_EQ(hex(result[0]), "0x4000");
  EXPECT_EQ(hex(result[1]), hex(sentinel));
  EXPECT_EQ(hex(result[2]), hex(sentinel));
}

TEST(SqrtWithEarlyExit, GoesOnAtMinusZeroAndNaN) {
  half_t source[] = {{0x4400}, {0x8000}, {0xFE00}};  // 4, -0, NaN
  half_t result[] = {sentinel, sentinel, sentinel};
  EXPECT_TRUE(half_vector::sqrtWithEarlyExit(source, result, 3));
  EXPECT_EQ(hex(result[0]), "0x4000");
  EXPECT_EQ(hex(result[1]), "0x0000");
  EXPECT_EQ(hex(result[2]), "0xFE00");
}

TEST(Log1pWithEarlyExit, GoesOnAtMinusOne) {
  half_t source{0xBC00}, result = sentinel;
  EXPECT_TRUE(half_vector::log1pWithEarlyExit(&source, &result, 1));
  EXPECT_EQ(hex(result), "0xFC00");
}

TEST(Log1pWithEarlyExit, StopsJustBelowMinusOne) {
  half_t source{0xBC01}, result = sentinel;  // -1.001
  EXPECT_FALSE(half_vector::log1pWithEarlyExit(&source, &result, 1));
  EXPECT_EQ(hex(result), hex(sentinel));
}

TEST(AsinWithEarlyExit, GoesOnAtOneMinusOneAndNaN) {
  half_t source[] = {{0x3C00}, {0xBC00}, {0x7E00}};
  half_t result[] = {sentinel, sentinel, sentinel};
  EXPECT_TRUE(half_vector::asinWithEarlyExit(source, result, 3));
  EXPECT_EQ(hex(result[0]), "0x3E48");
  EXPECT_EQ(hex(result[1]), "0xBE48");
  EXPECT_EQ(hex(result[2]), "0xFE00");
}

TEST(AsinWithEarlyExit, StopsAtAnInfinityOfEitherSign) {
  for (const std::uint16_t infinity : {0x7C00, 0xFC00}) {
    half_t source{infinity}, result = sentinel;
    EXPECT_FALSE(half_vector::asinWithEarlyExit(&source, &result, 1));
    EXPECT_EQ(hex(result), hex(sentinel));
  }
}

TEST(AcosWithEarlyExit, StopsJustBeyondOneAndLeavesTheRestAlone) {
  half_t source[] = {{0x3800}, {0xBC01}, {0x3800}};  // 0.5, -1.001, 0.5
  half_t result[] = {sentinel, sentinel, sentinel};
  EXPECT_FALSE(half_vector::acosWithEarlyExit(source, result, 3));
  EXPECT_EQ(hex(result[0]), hex(half_scalar::acos({0x3800})));
  EXPECT_EQ(hex(result[1]), hex(sentinel));
  EXPECT_EQ(hex(result[2]), hex(sentinel));
}

TEST(AtanhWithEarlyExit, GoesOnAtOneAndGivesInfinity) {
  half_t source{0x3C00}, result = sentinel;
  EXPECT_TRUE(half_vector::atanhWithEarlyExit(&source, &result, 1));
  EXPECT_EQ(hex(result), "0x7C00");
}

TEST(AtanhWithEarlyExit, StopsJustBeyondOne) {
  half_t source{0x3C01}, result = sentinel;
  EXPECT_FALSE(half_vector::atanhWithEarlyExit(&source, &result, 1));
  EXPECT_EQ(hex(result), hex(sentinel));
}

// Both outputs for every count, from a real and from a complex source, with nothing written outside.
TEST(Log2WithTwoOutputs, EqualsTheScalarSplit) {
  bitComparison fractions("fraction"), exponents("exponent");
  half_vector::log2(static_cast<half_t*>(nullptr), nullptr, nullptr, 0);
  half_vector::log2(static_cast<std::complex<half_t>*>(nullptr), nullptr, nullptr, 0);
  for (const unsigned long n : interestingArrayCounts()) {
    std::vector<half_t> source = patternsFrom(static_cast<std::uint32_t>(n), n);
    std::vector<std::complex<half_t>> complexSource(n);
    for (std::size_t i = 0; i < n; ++i) complexSource[i] = {source[i], half_t{static_cast<std::uint16_t>(i * 77)}};
    for (const bool isComplex : {false, true}) {
      std::vector<half_t> fraction(n + 2, sentinel), exponent(n + 2, sentinel);
      if (isComplex) {
        half_vector::log2(complexSource.data(), fraction.data() + 1, exponent.data() + 1, n);
      } else {
        half_vector::log2(source.data(), fraction.data() + 1, exponent.data() + 1, n);
      }
      fractions.check(fraction.front(), sentinel);
      exponents.check(exponent.front(), sentinel);
      fractions.check(fraction.back(), sentinel);
      exponents.check(exponent.back(), sentinel);
      for (std::size_t i = 0; i < n; ++i) {
        const fractionAndExponent expected = splitOf(source[i].bits);
        fractions.check(fraction[i + 1], expected.fraction, source[i]);
        exponents.check(exponent[i + 1], expected.exponent, source[i]);
      }
    }
  }
}

// Either output may take the source's place.
TEST(Log2WithTwoOutputs, WorksInPlace) {
  bitComparison compare("log2 in place");
  for (const unsigned long n : {1ul, 40ul, 1000ul, 65536ul}) {
    const std::vector<half_t> source = patternsFrom(11, n);
    std::vector<half_t> first = source, second = source, other(n);
    half_vector::log2(first.data(), first.data(), other.data(), n);
    half_vector::log2(second.data(), other.data(), second.data(), n);
    for (std::size_t i = 0; i < n; ++i) {
      compare.check(first[i], splitOf(source[i].bits).fraction, source[i]);
      compare.check(second[i], splitOf(source[i].bits).exponent, source[i]);
    }
  }
}

// A destination that runs ahead of the source sees its own earlier results, as in a pass of single elements.
TEST(Log2WithTwoOutputs, IsAnAscendingPassWhereArraysOverlap) {
  bitComparison compare("log2 overlapping");
  for (int distance = -40; distance <= 40; ++distance) {
    const unsigned long n = 200;
    std::vector<half_t> buffer = patternsFrom(5, n + 80), exponent(n, sentinel);
    std::vector<half_t> expected = buffer, expectedExponent(n);
    for (unsigned long i = 0; i < n; ++i) {
      const fractionAndExponent parts = splitOf(expected[40 + i].bits);
      expected[40 + distance + i] = {parts.fraction};
      expectedExponent[i] = {parts.exponent};
    }
    half_vector::log2(buffer.data() + 40, buffer.data() + 40 + distance, exponent.data(), n);
    for (std::size_t i = 0; i < buffer.size(); ++i) compare.check(buffer[i], expected[i], distance);
    for (std::size_t i = 0; i < n; ++i) compare.check(exponent[i], expectedExponent[i], distance);
  }
}

}  // namespace
}  // namespace zthalf::testing
