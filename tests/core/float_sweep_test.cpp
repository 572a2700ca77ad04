// Narrowing over whole ranges of floats and doubles.
#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <bit>
#include <cmath>
#include <future>
#include <limits>
#include <vector>

#include "core/float_conversion.h"
#include "tests/support/exact.h"
#include "tests/support/expect_bits.h"
#include "tests/support/patterns.h"
#include "tests/support/reference.h"
#include "zthalf/half_scalar.h"

namespace zthalf {
namespace {

using testing::bitComparison;

// The midpoint of the magnitude h and the next one, exact in double and in float; after the largest finite half the
// next one counts as 65536.
double midpointAbove(std::uint16_t h) {
  return std::ldexp(static_cast<double>(exact::unitsOf(h) + exact::unitsOf(h + 1)), -25);
}

// The half nearest to x by integers alone.
template <class Wide>
std::uint16_t nearestByIntegers(Wide x) {
  const auto sign = static_cast<std::uint16_t>(std::signbit(x) ? 0x8000 : 0);
  if (std::isnan(x)) return sign | 0x7E00;
  if (std::isinf(x)) return sign | 0x7C00;
  constexpr int digits = std::numeric_limits<Wide>::digits;
  int exponent = 0;
  const Wide fraction = std::frexp(std::abs(x), &exponent);
  const auto count = static_cast<std::uint64_t>(std::ldexp(fraction, digits));
  return sign | exact::nearestHalf(count, exponent - digits);
}

template <class Wide>
void checkNarrowing(bitComparison& compare, Wide x) {
  const std::uint16_t expected = reference::narrowed(x);
  compare.check(narrow(x), expected, x);
  if constexpr (sizeof(Wide) == 4) {
    compare.check(half_scalar::impl::convertSingleToHalf(x), expected, x);
  } else {
    compare.check(half_scalar::impl::convertDoubleToHalf(x), expected, x);
  }
}

template <class Wide>
void checkBothSigns(bitComparison& compare, Wide magnitude) {
  checkNarrowing(compare, magnitude);
  checkNarrowing(compare, -magnitude);
}

TEST(NarrowSweep, TheTwoReferencesAgree) {
  bitComparison compare("nearest half by integers");
  testing::randomBits bits(2);
  for (int i = 0; i < 200'000; ++i) {
    const double wide = doubleOf((bits.below(64) + 990) << 52 | (bits.next() >> 12) | bits.next() << 63);
    compare.check(nearestByIntegers(wide), reference::narrowed(wide), wide);
    const auto single = static_cast<float>(wide);
    compare.check(nearestByIntegers(single), reference::narrowed(single), single);
  }
  for (std::uint16_t h = 0; h < 0x7C00; ++h) {
    for (const double x : {midpointAbove(h), std::nextafter(midpointAbove(h), 0.0)}) {
      compare.check(nearestByIntegers(x), reference::narrowed(x), x);
    }
  }
}

TEST(NarrowSweep, StridedFloats) {
  bitComparison compare("single to half");
  constexpr std::uint64_t stride = 127;  // a prime, so that the low bits take all values
  for (std::uint64_t word = 0; word <= 0xFFFFFFFF; word += stride) {
    checkNarrowing(compare, floatOf(static_cast<std::uint32_t>(word)));
  }
}

TEST(NarrowSweep, MidpointsOfAdjacentHalvesAndTheirNeighbours) {
  bitComparison single("single to half");
  bitComparison wide("double to half");
  for (std::uint16_t h = 0; h < 0x7C00; ++h) {
    const double tie = midpointAbove(h);
    for (const double towards : {0.0, tie, 1e6}) {
      checkBothSigns(wide, std::nextafter(tie, towards));
      checkBothSigns(single, std::nextafter(static_cast<float>(tie), static_cast<float>(towards)));
      // A double whose nearest float is the tie, and that float.
      checkBothSigns(wide, tie + (towards > tie ? 1 : towards < tie ? -1 : 0) * tie * 0x1p-30);
      checkBothSigns(single, static_cast<float>(std::nextafter(tie, towards)));
    }
  }
}

TEST(NarrowSweep, NeighboursOfEveryHalf) {
  bitComparison single("single to half");
  bitComparison wide("double to half");
  for (std::uint16_t h = 0; h <= 0x7C00; ++h) {
    const double value = std::ldexp(static_cast<double>(exact::unitsOf(h)), -24);
    for (const double towards : {0.0, value, 1e6}) {
      checkBothSigns(wide, std::nextafter(value, towards));
      checkBothSigns(single, std::nextafter(static_cast<float>(value), static_cast<float>(towards)));
    }
  }
}

TEST(NarrowSweep, RandomDoubles) {
  bitComparison compare("double to half");
  testing::randomBits bits(3);
  for (int i = 0; i < 1'000'000; ++i) {
    checkNarrowing(compare, doubleOf(bits.next()));
    // And one in the range of half: an exponent from 2^-30 to 2^17, with every kind of fraction.
    const std::uint64_t fraction = bits.next() >> (12 + bits.below(40));
    const std::uint64_t aligned = fraction << (i % 2 == 0 ? 0 : std::countl_zero(fraction | 1) - 12);
    checkNarrowing(compare, doubleOf((bits.below(48) + 993) << 52 | (aligned & 0xFFFFFFFFFFFFF) | bits.next() << 63));
  }
}

TEST(NarrowSweep, EveryNaNExponentWithOneFractionBit) {
  bitComparison single("single to half");
  bitComparison wide("double to half");
  for (int bit = 0; bit < 23; ++bit) checkBothSigns(single, floatOf(0x7F800000u | 1u << bit));
  for (int bit = 0; bit < 52; ++bit) checkBothSigns(wide, doubleOf(0x7FF0000000000000u | std::uint64_t{1} << bit));
}

// All 2^32 floats. The floats that round to one half are an interval of words, whose ends are midpoints of halves: it
// includes a midpoint where the half is even. So one comparison of patterns per float is enough.
struct interval {
  std::uint64_t first;  // words without sign
  std::uint64_t end;
  std::uint16_t expected;
};

std::vector<interval> intervalsOfHalves() {
  std::vector<interval> intervals{{0, 0, 0}};
  for (std::uint16_t h = 0; h < 0x7C00; ++h) {
    const std::uint64_t tie = bitsOf(static_cast<float>(midpointAbove(h)));
    const bool tieStays = h % 2 == 0;
    intervals.back().end = tie + tieStays;
    intervals.push_back({tie + tieStays, 0, static_cast<std::uint16_t>(h + 1)});
  }
  intervals.back().end = 0x7F800001;  // after infinity
  intervals.push_back({0x7F800001, 0x80000000, 0x7E00});
  return intervals;
}

std::uint64_t differencesIn(interval range, std::uint32_t sign) {
  const auto expected = static_cast<std::uint16_t>(range.expected | sign >> 16);
  std::uint64_t differences = 0;
  for (std::uint64_t start = range.first; start < range.end;) {
    const std::uint64_t stop = std::min<std::uint64_t>(range.end, start + 4096);
    std::uint32_t inBlock = 0;
    for (auto word = static_cast<std::uint32_t>(start); word < static_cast<std::uint32_t>(stop); ++word) {
      inBlock += narrow(floatOf(word | sign)) != expected;
    }
    differences += inBlock;
    start = stop;
  }
  return differences;
}

TEST(LongNarrowSweep, EveryFloat) {
  const std::vector<interval> intervals = intervalsOfHalves();
  const auto failing = [&](std::uint32_t sign) {
    std::vector<interval> found;
    std::uint64_t visited = 0;
    for (interval const& range : intervals) {
      visited += range.end - range.first;
      if (differencesIn(range, sign) != 0) found.push_back(range);
    }
    EXPECT_EQ(visited, std::uint64_t{1} << 31);
    return found;
  };
  auto negative = std::async(std::launch::async, failing, 0x80000000u);
  const std::array<std::vector<interval>, 2> found{failing(0u), negative.get()};
  for (const std::uint32_t sign : {0u, 1u}) {
    EXPECT_EQ(found[sign].size(), 0u) << "intervals with a wrong result";
    if (found[sign].empty()) continue;
    bitComparison compare("single to half");
    interval const& range = found[sign].front();
    for (std::uint64_t word = range.first; word < range.end; ++word) {
      const float x = floatOf(static_cast<std::uint32_t>(word) | sign << 31);
      compare.check(narrow(x), static_cast<std::uint16_t>(range.expected | sign << 15), x);
    }
  }
}

TEST(NarrowSweep, EveryFloatOfSomeBinades) {
  // The same intervals, for the halves whose neighbourhood is small: the binade of 2048, and the last one.
  std::uint64_t visited = 0;
  for (interval const& range : intervalsOfHalves()) {
    const unsigned binade = range.expected >> 10;
    if (binade != 26 && binade != 30) continue;
    visited += range.end - range.first;
    EXPECT_EQ(differencesIn(range, 0), 0u) << testing::hex(range.expected);
    EXPECT_EQ(differencesIn(range, 0x80000000u), 0u) << testing::hex(range.expected);
  }
  EXPECT_GT(visited, 16'000'000u);
}

}  // namespace
}  // namespace zthalf
