#include <gtest/gtest.h>

#include <complex>

#include "scalar/logarithm.h"
#include "tests/support/array_form.h"
#include "zthalf/detail/entries.h"
#include "zthalf/half_ops.h"
#include "zthalf/half_scalar.h"
#include "zthalf/half_vector.h"

namespace zthalf::testing {
namespace {

#define ZTHALF_TEST_ARRAY_FORM(entry, facade, In, Out, ...) \
  TEST(LogarithmArrays, entry) { arrayForm(#entry, half_vector::facade, half_scalar::facade).expectAll(); }

ZTHALF_LOGARITHM_ENTRIES(ZTHALF_TEST_ARRAY_FORM)

bool isNegativeNumber(half_t x) { return x < half_t{0x0000}; }
bool isBelowMinusOne(half_t x) { return x < half_t{0xBC00}; }

TEST(LogarithmArrays, logWithEarlyExit) {
  stoppingForm("logWithEarlyExit", half_vector::logWithEarlyExit, half_scalar::log, isNegativeNumber).expectAll();
}

TEST(LogarithmArrays, log1pWithEarlyExit) {
  stoppingForm("log1pWithEarlyExit", half_vector::log1pWithEarlyExit, half_scalar::log1p, isBelowMinusOne).expectAll();
}

TEST(LogarithmArrays, log2WithEarlyExit) {
  stoppingForm("log2WithEarlyExit", half_vector::log2WithEarlyExit, half_scalar::log2, isNegativeNumber).expectAll();
}

TEST(LogarithmArrays, log10WithEarlyExit) {
  stoppingForm("log10WithEarlyExit", half_vector::log10WithEarlyExit, half_scalar::log10, isNegativeNumber).expectAll();
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

TEST(LogarithmsWithEarlyExit, AnEmptyArrayIsDone) {
#define ZTHALF_TEST_EMPTY(entry, facade, In, Out, ...) EXPECT_TRUE(half_vector::facade(nullptr, nullptr, 0));
  ZTHALF_LOGARITHM_EARLY_EXIT_ENTRIES(ZTHALF_TEST_EMPTY)
#undef ZTHALF_TEST_EMPTY
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
