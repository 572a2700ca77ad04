// The functions that choose an entry of min and max: with each combination of their flags exactly one entry is called,
// with the arguments as they came; and the results that are told by name.
#include <gtest/gtest.h>

#include <limits>
#include <string>
#include <vector>

#include "tests/support/selected_entries.h"
#include "zthalf/zthalf.h"

namespace zthalf {
namespace {

using testing::entriesReachedBy;
using testing::only;
using testing::reachedEntries;

constexpr bool flags[] = {false, true};

TEST(ExtremumSelectors, ReachTheEntryOfTheirFlags) {
  half_t src[16] = {};
  std::complex<half_t> cplxSrc[8] = {}, cplxDst[8];
  half_t dst[8];
  double index[8];
  unsigned long one[] = {4}, two[] = {2, 2};
  for (const bool isMax : flags) {
    const std::string op = isMax ? "max" : "min";
    const auto unary = isMax ? &half_vector::maxUnaryOp : &half_vector::minUnaryOp;
    const auto unaryWithIndex = isMax ? &half_vector::maxUnaryOpWithIndex : &half_vector::minUnaryOpWithIndex;
    for (const bool isComplex : flags) {
      void* const from = isComplex ? static_cast<void*>(cplxSrc) : src;
      void* const to = isComplex ? static_cast<void*>(cplxDst) : dst;
      for (const bool omitNaN : flags) {
        for (const unsigned long ndims : {1, 2}) {
          unsigned long* const dims = ndims == 1 ? one : two;
          const std::string stem = op + (isComplex ? "Cplx" : "") + (ndims == 1 ? "SimpleReduce" : "Reduce");
          const std::string ending = omitNaN ? "OmitNaN" : "";
          for (const bool firstReduced : flags) {
            EXPECT_EQ(entriesReachedBy([&] { unary(from, to, ndims, dims, firstReduced, omitNaN, isComplex); }),
                      ndims == 1 ? only(stem + ending, from, to, dims[0])
                                 : only(stem + ending, from, to, ndims, dims, firstReduced));
            for (const bool linear : flags) {
              EXPECT_EQ(entriesReachedBy([&] {
                          unaryWithIndex(from, to, index, ndims, dims, firstReduced, omitNaN, isComplex, linear);
                        }),
                        ndims == 1
                            ? only(stem + "WithIndex" + ending, from, to, index, dims[0])
                            : only(stem + "WithIndex" + ending, from, to, index, ndims, dims, firstReduced, linear));
            }
          }
        }
      }
    }
  }
}

TEST(ExtremumSelectors, OfWholeArraysReachTheEntriesInWhichNaNWins) {
  half_t x{0x3C00}, y;
  std::complex<half_t> z{x, x}, w;
  double index;
  EXPECT_EQ(entriesReachedBy([&] { half_vector::minSimpleReduce(&x, &y, 1); }), only("minSimpleReduce", &x, &y, 1));
  EXPECT_EQ(entriesReachedBy([&] { half_vector::maxSimpleReduce(&x, &y, 1); }), only("maxSimpleReduce", &x, &y, 1));
  EXPECT_EQ(entriesReachedBy([&] { half_vector::minSimpleReduce(&z, &w, 1); }), only("minCplxSimpleReduce", &z, &w, 1));
  EXPECT_EQ(entriesReachedBy([&] { half_vector::maxSimpleReduce(&z, &w, 1); }), only("maxCplxSimpleReduce", &z, &w, 1));
  EXPECT_EQ(entriesReachedBy([&] { half_vector::minSimpleReduceWithIndex(&x, &y, &index, 1); }),
            only("minSimpleReduceWithIndex", &x, &y, &index, 1));
  EXPECT_EQ(entriesReachedBy([&] { half_vector::maxSimpleReduceWithIndex(&x, &y, &index, 1); }),
            only("maxSimpleReduceWithIndex", &x, &y, &index, 1));
  EXPECT_EQ(entriesReachedBy([&] { half_vector::minSimpleReduceWithIndex(&z, &w, &index, 1); }),
            only("minCplxSimpleReduceWithIndex", &z, &w, &index, 1));
  EXPECT_EQ(entriesReachedBy([&] { half_vector::maxSimpleReduceWithIndex(&z, &w, &index, 1); }),
            only("maxCplxSimpleReduceWithIndex", &z, &w, &index, 1));
}

using binarySelector = decltype(half_vector::minBinOp);

double a[8], b[8], c[8];
const unsigned long sizes[] = {1, 1, 1};

reachedEntries entriesReachedBy(binarySelector* select, unsigned typeA, unsigned typeB, bool complexA, bool complexB,
                                bool omitNaN) {
  return entriesReachedBy([&] {
    select(a, b, c, 1, 2, sizes, 3, 4, sizes + 1, 5, 6, sizes + 2, static_cast<FloatTypeEnum>(typeA),
           static_cast<FloatTypeEnum>(typeB), complexA, complexB, omitNaN);
  });
}

reachedEntries onlyPair(std::string const& name) {
  return only(name, a, b, c, 1, 2, sizes, 3, 4, sizes + 1, 5, 6, sizes + 2);
}

TEST(ExtremumSelectors, OfTwoArraysReachTheEntryOfTheirTypes) {
  const std::string types[] = {"Half", "Single", "Double"};
  for (const bool isMax : flags) {
    for (const bool omitNaN : flags) {
      for (unsigned typeA = 0; typeA < 3; ++typeA) {
        for (unsigned typeB = 0; typeB < 3; ++typeB) {
          for (const bool complexA : flags) {
            for (const bool complexB : flags) {
              // A right operand beside a single or double left one is half, whatever it is said to be.
              const std::string expected = std::string(isMax ? "max" : "min") + (omitNaN ? "OmitNaN" : "") +
                                           (complexA ? "Cplx" : "") + types[typeA] + (complexB ? "Cplx" : "") +
                                           types[typeA == 0 ? typeB : 0];
              EXPECT_EQ(entriesReachedBy(isMax ? &half_vector::maxBinOp : &half_vector::minBinOp, typeA, typeB,
                                         complexA, complexB, omitNaN),
                        onlyPair(expected));
            }
          }
        }
      }
    }
  }
}

TEST(ExtremumSelectors, OfTwoArraysDoNothingForATypeThatIsNone) {
  const reachedEntries nothing;
  for (const auto select : {&half_vector::minBinOp, &half_vector::maxBinOp}) {
    for (const unsigned none : {3u, 4u, 7u, 16u, 0x40000000u, std::numeric_limits<unsigned>::max()}) {
      for (const bool omitNaN : flags) {
        EXPECT_EQ(entriesReachedBy(select, none, 0, false, false, omitNaN), nothing);
        EXPECT_EQ(entriesReachedBy(select, none, 1, true, false, omitNaN), nothing);
        EXPECT_EQ(entriesReachedBy(select, 0, none, false, true, omitNaN), nothing);
      }
    }
    // Not looked at beside a left operand that is not half.
    EXPECT_EQ(entriesReachedBy(select, 1, 7, false, false, false).size(), 1u);
  }
}

struct told {
  std::vector<half_t> src;
  bool isMax, omitNaN;
  std::uint16_t value;
  double index;
};

const half_t one{0x3C00}, two{0x4000}, three{0x4200}, nan{0x7E00}, zero{0x0000}, minusZero{0x8000};
const told toldResults[] = {
    {{three, nan, one}, false, false, 0x7E00, 2},   {{three, nan, one}, false, true, 0x3C00, 3},
    {{nan, three}, false, false, 0x7E00, 1},        {{nan, three}, false, true, 0x4200, 2},
    {{nan, nan}, false, true, 0x7E00, 2},           {{two, two}, true, false, 0x4000, 1},
    {{zero, minusZero}, false, false, 0x0000, 1},   {{minusZero, zero}, false, false, 0x8000, 1},
    {{one, half_t{0xFC01}}, true, false, 0xFE00, 2}};

TEST(Extrema, OfFewElementsAreAsTold) {
  for (told row : toldResults) {
    half_t value;
    double index;
    unsigned long n = row.src.size();
    (row.isMax ? half_vector::maxUnaryOpWithIndex : half_vector::minUnaryOpWithIndex)(
        row.src.data(), &value, &index, 1, &n, false, row.omitNaN, false, false);
    EXPECT_EQ(value.bits, row.value);
    EXPECT_EQ(index, row.index);
  }
}

TEST(Extrema, WithTheSmallestFirstKeepIndexOneBeyondALeaf) {
  std::vector<half_t> src(300, two);
  src[0] = one;
  half_t value;
  double index;
  half_vector::minSimpleReduceWithIndex(src.data(), &value, &index, 300);
  EXPECT_EQ(value.bits, one.bits);
  EXPECT_EQ(index, 1);
}

TEST(Extrema, OfRowsCountAlongTheReducedDimensionOrInTheWholeArray) {
  half_t src[] = {three, one, two, three, one, two}, values[2];  // 2 by 3
  double index[2];
  unsigned long dims[] = {2, 3};
  half_vector::minUnaryOpWithIndex(src, values, index, 2, dims, false, false, false, false);
  EXPECT_EQ(index[0], 3);
  EXPECT_EQ(index[1], 1);
  half_vector::minUnaryOpWithIndex(src, values, index, 2, dims, false, false, false, true);
  EXPECT_EQ(index[0], 5);
  EXPECT_EQ(index[1], 2);
}

// A value next to the largest index that a column has in the whole array.
TEST(Extrema, OfColumnsCountAlongTheReducedDimensionsOrInTheWholeArray) {
  std::vector<half_t> src(2 * 2 * 2, two);  // reduced, kept, reduced
  src[5] = src[6] = one;
  half_t values[2];
  double index[2];
  unsigned long dims[] = {2, 2, 2};
  half_vector::minUnaryOpWithIndex(src.data(), values, index, 3, dims, true, false, false, false);
  EXPECT_EQ(index[0], 4);
  EXPECT_EQ(index[1], 3);
  half_vector::minUnaryOpWithIndex(src.data(), values, index, 3, dims, true, false, false, true);
  EXPECT_EQ(index[0], 6);
  EXPECT_EQ(index[1], 7);
}

// (-1, -0) and (-1, +0) are equal and have the smallest and the largest angle, so the order of steps can be seen.
TEST(Extrema, OfComplexColumnsBeginWithTheFirstElementWhereNoIndexIsAsked) {
  using cplx = std::complex<half_t>;
  const half_t minusOne{0xBC00};
  cplx src[] = {{minusOne, minusZero}, {one, zero}, {minusOne, zero}, {zero, zero}, {zero, zero}, {zero, zero}};
  cplx values[2];
  double index[2];
  unsigned long dims[] = {3, 2};
  half_vector::maxUnaryOp(src, values, 2, dims, true, false, true);
  EXPECT_EQ(values[0].imag().bits, 0x8000);
  half_vector::maxUnaryOpWithIndex(src, values, index, 2, dims, true, false, true, false);
  EXPECT_EQ(values[0].imag().bits, 0x0000);
  EXPECT_EQ(index[0], 3);
}

}  // namespace
}  // namespace zthalf
