// Sums, products and means whose results are plain from the rules, through the selectors.
#include <gtest/gtest.h>

#include <cmath>
#include <complex>
#include <vector>

#include "tests/support/expect_bits.h"
#include "zthalf/half_reductions.h"
#include "zthalf/half_vector.h"

namespace zthalf {
namespace {

using namespace zthalf::testing;
using cplx = std::complex<half_t>;
using selector = void (*)(void*, void*, unsigned long, unsigned long*, bool, bool, bool, FloatTypeEnum, FloatTypeEnum);

constexpr half_t zero{0x0000}, one{0x3C00}, two{0x4000}, four{0x4400}, five{0x4500}, minusZero{0x8000}, inf{0x7C00},
    minusInf{0xFC00}, nan{0x7E00}, largest{0x7BFF};

struct options {
  bool omitNaN = false;
  FloatTypeEnum accumulator = FloatTypeHalf;
};

template <class In>
std::vector<In> along(selector op, std::vector<In> x, std::vector<unsigned long> dims, bool firstReduced,
                      options o = {}) {
  unsigned long outputs = 1;
  for (std::size_t d = firstReduced ? 1 : 0; d < dims.size(); d += 2) outputs *= dims[d];
  std::vector<In> results(outputs);
  op(x.data(), results.data(), dims.size(), dims.data(), firstReduced, !std::is_same_v<In, half_t>, o.omitNaN,
     o.accumulator, FloatTypeHalf);
  return results;
}

template <class In>
In whole(selector op, std::vector<In> x, options o = {}) {
  return along(op, x, {x.size()}, true, o).front();
}

template <class In>
double wholeDouble(selector op, std::vector<In> x, bool omitNaN, FloatTypeEnum accumulator = FloatTypeHalf) {
  std::complex<double> result{-7, -7};
  unsigned long n = x.size();
  op(x.data(), &result, 1, &n, true, !std::is_same_v<In, half_t>, omitNaN, accumulator, FloatTypeDouble);
  if (std::is_same_v<In, half_t>) {
    EXPECT_EQ(result.imag(), -7);
  }
  return result.real();
}

#define EXPECT_BITS(result, expected) EXPECT_EQ(bitsIn(result), bitsIn(expected))

TEST(Reductions, OfNothing) {
  for (const bool omitNaN : {false, true}) {
    for (const FloatTypeEnum accumulator : {FloatTypeHalf, FloatTypeSingle}) {
      const options o{omitNaN, accumulator};
      EXPECT_BITS(whole<half_t>(half_vector::sum, {}, o), zero);
      EXPECT_BITS(whole<half_t>(half_vector::prod, {}, o), one);
      EXPECT_BITS(whole<half_t>(half_vector::mean, {}, o), nan);
      EXPECT_BITS(whole<cplx>(half_vector::sum, {}, o), cplx(zero, zero));
      EXPECT_BITS(whole<cplx>(half_vector::prod, {}, o), cplx(one, zero));
      EXPECT_BITS(whole<cplx>(half_vector::mean, {}, o), cplx(nan, zero));
    }
    EXPECT_BITS(wholeDouble<half_t>(half_vector::sum, {}, omitNaN), 0.0);
    EXPECT_BITS(wholeDouble<half_t>(half_vector::prod, {}, omitNaN), 1.0);
    EXPECT_EQ(bitsIn(wholeDouble<half_t>(half_vector::mean, {}, omitNaN)), 0x7FF8000000000000u);
    EXPECT_BITS(wholeDouble<cplx>(half_vector::prod, {}, omitNaN), 1.0);
  }
}

TEST(Reductions, OfNaNsAlone) {
  const std::vector<half_t> x(300, nan);
  for (const FloatTypeEnum accumulator : {FloatTypeHalf, FloatTypeSingle}) {
    EXPECT_BITS(whole(half_vector::sum, x, {true, accumulator}), zero);
    EXPECT_BITS(whole(half_vector::prod, x, {true, accumulator}), one);
    EXPECT_BITS(whole(half_vector::mean, x, {true, accumulator}), nan);
  }
  EXPECT_BITS(whole(half_vector::mean, std::vector<cplx>(9, cplx(nan, one)), {true, FloatTypeHalf}), cplx(nan, zero));
}

TEST(Sum, OfOnesIsExactByTheTreeAndStopsAt2048InAChain) {
  const std::vector<half_t> ones(4096, one);
  const half_t h4096{0x6C00}, h2048{0x6800};
  EXPECT_BITS(whole(half_vector::sum, ones), h4096);
  EXPECT_BITS(along(half_vector::sum, ones, {1, 4096}, false).front(), h2048);
  EXPECT_BITS(along(half_vector::sum, ones, {1, 4096}, false, {false, FloatTypeSingle}).front(), h4096);
  EXPECT_BITS(along(half_vector::sum, ones, {4096, 1}, true).front(), h4096);
}

TEST(Sum, Of256IsOneChainAndOf257Two) {
  std::vector<half_t> x(257, half_t{0x1000});  // 2^-11, half the last place of 1
  x[0] = one;
  EXPECT_BITS(whole(half_vector::sum, std::vector<half_t>(x.begin(), x.end() - 1)), one);
  EXPECT_BITS(whole(half_vector::sum, x), half_t{0x3C40});  // the right half has 129 of them to itself, the last a tie
}

TEST(Sum, OfAColumnAndOfARowOfTheSameNumbersMayDiffer) {
  std::vector<half_t> x(300, half_t{0x1000});
  x[0] = one;
  EXPECT_BITS(along(half_vector::sum, x, {1, 300}, false).front(), one);
  EXPECT_GT(along(half_vector::sum, x, {300, 1}, true).front().bits, one.bits);
}

TEST(Reductions, WithNothingReducedCombineEachElementOnce) {
  const std::vector<half_t> x{one, minusZero, half_t{0xFC01}, minusInf};
  const auto sums = along(half_vector::sum, x, {4}, false);
  EXPECT_BITS(sums[0], one);
  EXPECT_BITS(sums[1], zero);
  EXPECT_BITS(sums[2], half_t{0xFE00});
  EXPECT_BITS(sums[3], minusInf);
  const auto products = along(half_vector::prod, x, {4}, false);
  EXPECT_BITS(products[1], minusZero);
  EXPECT_BITS(products[2], half_t{0xFE00});
  EXPECT_BITS(along(half_vector::mean, x, {4}, false)[0], one);
}

TEST(Reductions, OverNoCombinationGiveTheStartingValue) {
  EXPECT_BITS(along<half_t>(half_vector::sum, {}, {4, 1, 0}, true).front(), zero);
  EXPECT_BITS(along<half_t>(half_vector::prod, {}, {1, 0}, false).front(), one);
  EXPECT_BITS(along<half_t>(half_vector::prod, {}, {0, 1}, true).front(), one);
  EXPECT_BITS(along<half_t>(half_vector::mean, {}, {0, 1}, true).front(), nan);
}

TEST(OmitNaN, ThrowsAwayWhatASumBecameNaNWith) {
  EXPECT_BITS(whole<half_t>(half_vector::sum, {inf, minusInf, five}, {true, FloatTypeHalf}), five);
  EXPECT_BITS(whole<half_t>(half_vector::sum, {inf, minusInf, five}, {true, FloatTypeSingle}), five);
  EXPECT_EQ(wholeDouble<half_t>(half_vector::sum, {inf, minusInf, five}, true), 5);
  EXPECT_BITS(whole<half_t>(half_vector::sum, {inf, minusInf}, {true, FloatTypeHalf}), nan);
  EXPECT_BITS(whole<half_t>(half_vector::prod, {zero, inf, five}, {true, FloatTypeHalf}), five);
  EXPECT_BITS(whole<half_t>(half_vector::sum, {inf, minusInf, nan, minusZero}, {true, FloatTypeHalf}), zero)
      << "two NaNs give the identity";
  EXPECT_BITS(whole<half_t>(half_vector::sum, {inf, minusInf, minusZero}, {true, FloatTypeHalf}), minusZero)
      << "the next value itself";
}

// Where the leaves meet the same rule holds: a left part that became a NaN is lost.
TEST(OmitNaN, AppliesItsRuleToJoins) {
  std::vector<half_t> x(257, zero);
  x[0] = five;
  x[126] = inf;
  x[127] = minusInf;  // the last of the left leaf
  x[200] = two;
  EXPECT_BITS(whole(half_vector::sum, x, {true, FloatTypeHalf}), two);
  x[255] = inf;
  x[256] = minusInf;
  EXPECT_BITS(whole(half_vector::sum, x, {true, FloatTypeHalf}), zero);
  x[127] = zero;
  EXPECT_BITS(whole(half_vector::sum, x, {true, FloatTypeHalf}), inf);
}

TEST(OmitNaN, DropsAComplexElementWhole) {
  const std::vector<cplx> x{{nan, one}, {two, one}, {one, nan}};
  EXPECT_BITS(whole(half_vector::sum, x, {true, FloatTypeHalf}), cplx(two, one));
  EXPECT_BITS(whole(half_vector::prod, x, {true, FloatTypeHalf}), cplx(two, one));
  EXPECT_BITS(whole(half_vector::mean, x, {true, FloatTypeSingle}), cplx(two, one));
}

TEST(OmitNaN, OfAMeanSkipsElementsButKeepsWhatTheSumBecame) {
  EXPECT_BITS(whole<half_t>(half_vector::mean, {inf, minusInf, one}, {true, FloatTypeHalf}), nan);
  EXPECT_BITS(whole<half_t>(half_vector::mean, {nan, two, nan, four}, {true, FloatTypeHalf}), half_t{0x4200});
  const auto rows =
      along<half_t>(half_vector::mean, {nan, one, two, one, four, one}, {2, 3}, false, {true, FloatTypeHalf});
  EXPECT_BITS(rows[0], half_t{0x4200});
  EXPECT_BITS(rows[1], one);
  const auto columns =
      along<half_t>(half_vector::mean, {nan, two, four, one, one, one}, {3, 2}, true, {true, FloatTypeHalf});
  EXPECT_BITS(columns[0], half_t{0x4200});
  EXPECT_BITS(columns[1], one);
}

TEST(Product, OfComplexElementsLeavesZeroPartsOut) {
  for (const FloatTypeEnum accumulator : {FloatTypeHalf, FloatTypeSingle})
    EXPECT_BITS(whole<cplx>(half_vector::prod, {{zero, inf}}, {false, accumulator}), cplx(zero, inf));
  std::complex<double> result;
  cplx x{zero, inf};
  unsigned long n = 1;
  half_vector::prod(&x, &result, 1, &n, true, true, false, FloatTypeHalf, FloatTypeDouble);
  EXPECT_EQ(result.real(), 0);
  EXPECT_EQ(result.imag(), INFINITY);
}

// The fourth power of (1 + 2^-10)(1 + i) is -4 (1 + 2^-10)^4, of which half accumulators keep 11 bits at each step.
TEST(Product, OfComplexElementsRoundsAsItsAccumulatorDoes) {
  const half_t next{0x3C01};
  const std::vector<cplx> x(4, cplx(next, next));
  EXPECT_BITS(whole(half_vector::prod, x, {false, FloatTypeHalf}), cplx(half_t{0xC404}, zero));
  EXPECT_EQ(wholeDouble(half_vector::prod, x, false), -4 * std::pow(1 + 0x1p-10, 4));
}

TEST(Mean, DividesInDoubleAndRoundsOnce) {
  EXPECT_BITS(whole<half_t>(half_vector::mean, {one, two, four}), half_t{0x40AB});  // 7/3
  EXPECT_BITS(whole<half_t>(half_vector::mean, {largest, largest}), inf);
  EXPECT_BITS(whole<half_t>(half_vector::mean, {largest, largest}, {false, FloatTypeSingle}), largest);
  EXPECT_EQ(wholeDouble<half_t>(half_vector::mean, {one, two, four}, false), 7.0 / 3.0);
}

TEST(Selectors, TakeADoubleResultFirstAndThenTheAccumulator) {
  std::vector<half_t> ones(4096, one);
  EXPECT_EQ(wholeDouble(half_vector::sum, ones, false, FloatTypeSingle), 4096);
  const half_t h2048{0x6800};
  EXPECT_BITS(along(half_vector::sum, ones, {1, 4096}, false, {false, FloatTypeDouble}).front(), h2048)
      << "a double accumulator for a half result means half";
  half_t result;
  unsigned long dims[] = {1, 4096};
  half_vector::sum(ones.data(), &result, 2, dims, false, false, false, FloatTypeHalf, FloatTypeSingle);
  EXPECT_BITS(result, h2048) << "a single result too";
}

TEST(SimpleForms, AreTheEntriesOfTheWholeArray) {
  std::vector<half_t> x{one, two, four};
  std::vector<cplx> z{{one, two}, {four, one}};
  half_t h;
  cplx c;
  double d;
  std::complex<double> cd;
  half_vector::sumSimpleReduceHalf(x.data(), &h, 3);
  EXPECT_BITS(h, half_t{0x4700});
  half_vector::prodSimpleReduceSingle(x.data(), &h, 3);
  EXPECT_BITS(h, half_t{0x4800});
  half_vector::meanSimpleReduceHalf(x.data(), &h, 3);
  EXPECT_BITS(h, half_t{0x40AB});
  half_vector::meanSimpleReduceDouble(x.data(), &d, 3);
  EXPECT_EQ(d, 7.0 / 3.0);
  half_vector::prodSimpleReduceHalf(z.data(), &c, 2);
  EXPECT_BITS(c, cplx(two, half_t{0x4880}));  // (1 + 2i)(4 + i) = 2 + 9i
  half_vector::sumSimpleReduceDouble(z.data(), &cd, 2);
  EXPECT_EQ(cd, std::complex<double>(5, 3));
  half::sumSimpleReduce<fp16binary_t, fp16binary_t, float>(reinterpret_cast<fp16binary_t*>(x.data()),
                                                           reinterpret_cast<fp16binary_t*>(&h), 3);
  EXPECT_BITS(h, half_t{0x4700});
}

// Of two NaNs a fold takes the sign of what was folded so far, but a column of halves that of its last tree.
TEST(Sum, TakesTheFirstNaNInTheOrderOfItsSteps) {
  const half_t minusNaN{0xFE00}, signalling{0x7C01};
  EXPECT_BITS(whole<half_t>(half_vector::sum, {one, nan, minusNaN}), nan);
  EXPECT_BITS(whole<half_t>(half_vector::sum, {one, minusNaN, nan}), minusNaN);
  EXPECT_BITS(whole<half_t>(half_vector::sum, {one, minusNaN, signalling}), nan) << "a signalling one wins";
  EXPECT_BITS(whole<half_t>(half_vector::sum, {inf, minusInf, minusNaN}), nan) << "an invalid operation is positive";
  const std::vector<half_t> x{nan, minusNaN};
  EXPECT_BITS(along(half_vector::sum, x, {1, 1, 2}, true).front(), minusNaN);
  EXPECT_BITS(along(half_vector::sum, x, {1, 1, 2}, true, {false, FloatTypeSingle}).front(), nan);
  EXPECT_BITS(along(half_vector::sum, x, {1, 2}, false).front(), nan);
}

}  // namespace
}  // namespace zthalf
